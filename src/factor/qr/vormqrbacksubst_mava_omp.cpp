// vormQRBackSubst_mava: team-parallel drivers.

#include "factor/qr/qr_back_subst.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormQRBackSubst_mava_32f(QR_MAVA_PARAMS(float))
{
    return team(qrMava(QR_MAVA_ARGS), n8_ownvormQRBackSubst_mava_32f, n8_ownvormQRBackSubst_mava_32f_S2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mava_64f(QR_MAVA_PARAMS(double))
{
    return team(qrMava(QR_MAVA_ARGS), n8_ownvormQRBackSubst_mava_64f, n8_ownvormQRBackSubst_mava_64f_S2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mava_32f_L(QR_MAVA_PARAMS_L(float))
{
    return team(qrMavaL(QR_MAVA_ARGS_L), n8_ownvormQRBackSubst_mava_32f_L, n8_ownvormQRBackSubst_mava_32f_LS2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mava_64f_L(QR_MAVA_PARAMS_L(double))
{
    return team(qrMavaL(QR_MAVA_ARGS_L), n8_ownvormQRBackSubst_mava_64f_L, n8_ownvormQRBackSubst_mava_64f_LS2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mava_32f_P(QR_MAVA_PARAMS_P(float))
{
    return team(qrMavaP(QR_MAVA_ARGS_P), n8_ownvormQRBackSubst_mava_32f_P);
}
VormStatus n8_ownOMP_vormQRBackSubst_mava_64f_P(QR_MAVA_PARAMS_P(double))
{
    return team(qrMavaP(QR_MAVA_ARGS_P), n8_ownvormQRBackSubst_mava_64f_P);
}
}
