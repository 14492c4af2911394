// vormQRBackSubst_mva: team-parallel drivers.

#include "factor/qr/qr_back_subst.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormQRBackSubst_mva_32f(QR_MVA_PARAMS(float))
{
    return team(qrMva(QR_MVA_ARGS), n8_ownvormQRBackSubst_mva_32f, n8_ownvormQRBackSubst_mva_32f_S2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mva_64f(QR_MVA_PARAMS(double))
{
    return team(qrMva(QR_MVA_ARGS), n8_ownvormQRBackSubst_mva_64f, n8_ownvormQRBackSubst_mva_64f_S2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mva_32f_L(QR_MVA_PARAMS_L(float))
{
    return team(qrMvaL(QR_MVA_ARGS_L), n8_ownvormQRBackSubst_mva_32f_L, n8_ownvormQRBackSubst_mva_32f_LS2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mva_64f_L(QR_MVA_PARAMS_L(double))
{
    return team(qrMvaL(QR_MVA_ARGS_L), n8_ownvormQRBackSubst_mva_64f_L, n8_ownvormQRBackSubst_mva_64f_LS2);
}
VormStatus n8_ownOMP_vormQRBackSubst_mva_32f_P(QR_MVA_PARAMS_P(float))
{
    return team(qrMvaP(QR_MVA_ARGS_P), n8_ownvormQRBackSubst_mva_32f_P);
}
VormStatus n8_ownOMP_vormQRBackSubst_mva_64f_P(QR_MVA_PARAMS_P(double))
{
    return team(qrMvaP(QR_MVA_ARGS_P), n8_ownvormQRBackSubst_mva_64f_P);
}
}
