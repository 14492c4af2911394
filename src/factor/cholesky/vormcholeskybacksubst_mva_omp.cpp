// vormCholeskyBackSubst_mva: team-parallel drivers.

#include "factor/cholesky/cholesky_back_subst.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormCholeskyBackSubst_mva_32f(CHOLESKY_MVA_PARAMS(float))
{
    return team(choleskyMva(CHOLESKY_MVA_ARGS), n8_ownvormCholeskyBackSubst_mva_32f,
                n8_ownvormCholeskyBackSubst_mva_32f_S2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mva_64f(CHOLESKY_MVA_PARAMS(double))
{
    return team(choleskyMva(CHOLESKY_MVA_ARGS), n8_ownvormCholeskyBackSubst_mva_64f,
                n8_ownvormCholeskyBackSubst_mva_64f_S2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mva_32f_L(CHOLESKY_MVA_PARAMS_L(float))
{
    return team(choleskyMvaL(CHOLESKY_MVA_ARGS_L), n8_ownvormCholeskyBackSubst_mva_32f_L,
                n8_ownvormCholeskyBackSubst_mva_32f_LS2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mva_64f_L(CHOLESKY_MVA_PARAMS_L(double))
{
    return team(choleskyMvaL(CHOLESKY_MVA_ARGS_L), n8_ownvormCholeskyBackSubst_mva_64f_L,
                n8_ownvormCholeskyBackSubst_mva_64f_LS2);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mva_32f_P(CHOLESKY_MVA_PARAMS_P(float))
{
    return team(choleskyMvaP(CHOLESKY_MVA_ARGS_P), n8_ownvormCholeskyBackSubst_mva_32f_P);
}
VormStatus n8_ownOMP_vormCholeskyBackSubst_mva_64f_P(CHOLESKY_MVA_PARAMS_P(double))
{
    return team(choleskyMvaP(CHOLESKY_MVA_ARGS_P), n8_ownvormCholeskyBackSubst_mva_64f_P);
}
}
