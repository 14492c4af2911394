// vormCholeskyBackSubst_mava: team-parallel drivers.

#include "factor/cholesky/cholesky_back_subst.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormCholeskyBackSubst_mava_32f(CHOLESKY_MAVA_PARAMS(float))
{
    return team(choleskyMava(CHOLESKY_MAVA_ARGS), n8_ownvormCholeskyBackSubst_mava_32f,
                n8_ownvormCholeskyBackSubst_mava_32f_S2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mava_64f(CHOLESKY_MAVA_PARAMS(double))
{
    return team(choleskyMava(CHOLESKY_MAVA_ARGS), n8_ownvormCholeskyBackSubst_mava_64f,
                n8_ownvormCholeskyBackSubst_mava_64f_S2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mava_32f_L(CHOLESKY_MAVA_PARAMS_L(float))
{
    return team(choleskyMavaL(CHOLESKY_MAVA_ARGS_L), n8_ownvormCholeskyBackSubst_mava_32f_L,
                n8_ownvormCholeskyBackSubst_mava_32f_LS2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mava_64f_L(CHOLESKY_MAVA_PARAMS_L(double))
{
    return team(choleskyMavaL(CHOLESKY_MAVA_ARGS_L), n8_ownvormCholeskyBackSubst_mava_64f_L,
                n8_ownvormCholeskyBackSubst_mava_64f_LS2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mava_32f_P(CHOLESKY_MAVA_PARAMS_P(float))
{
    return team(choleskyMavaP(CHOLESKY_MAVA_ARGS_P), n8_ownvormCholeskyBackSubst_mava_32f_P);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mava_64f_P(CHOLESKY_MAVA_PARAMS_P(double))
{
    return team(choleskyMavaP(CHOLESKY_MAVA_ARGS_P), n8_ownvormCholeskyBackSubst_mava_64f_P);
}
}
