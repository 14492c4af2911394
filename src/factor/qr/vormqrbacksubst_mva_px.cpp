// vormQRBackSubst_mva: public layers, and the kernels for elements anywhere.

#include "factor/qr/qr_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormQRBackSubst_mva_32f(QR_MVA_PARAMS(float))
{
    return checked<2800>(qrMva(QR_MVA_ARGS), n8_ownOMP_vormQRBackSubst_mva_32f, n8_ownvormQRBackSubst_mva_32f,
                         n8_ownvormQRBackSubst_mva_32f_S2, QR_MVA_ARGS);
}
VormStatus n8_vormQRBackSubst_mva_64f(QR_MVA_PARAMS(double))
{
    return checked<2800>(qrMva(QR_MVA_ARGS), n8_ownOMP_vormQRBackSubst_mva_64f, n8_ownvormQRBackSubst_mva_64f,
                         n8_ownvormQRBackSubst_mva_64f_S2, QR_MVA_ARGS);
}
VormStatus n8_vormQRBackSubst_mva_32f_L(QR_MVA_PARAMS_L(float))
{
    return checked<1800>(qrMvaL(QR_MVA_ARGS_L), n8_ownOMP_vormQRBackSubst_mva_32f_L, n8_ownvormQRBackSubst_mva_32f_L,
                         n8_ownvormQRBackSubst_mva_32f_LS2, QR_MVA_ARGS_L);
}
VormStatus n8_vormQRBackSubst_mva_64f_L(QR_MVA_PARAMS_L(double))
{
    return checked<1800>(qrMvaL(QR_MVA_ARGS_L), n8_ownOMP_vormQRBackSubst_mva_64f_L, n8_ownvormQRBackSubst_mva_64f_L,
                         n8_ownvormQRBackSubst_mva_64f_LS2, QR_MVA_ARGS_L);
}
VormStatus n8_vormQRBackSubst_mva_32f_P(QR_MVA_PARAMS_P(float))
{
    return checked<1800>(qrMvaP(QR_MVA_ARGS_P), n8_ownOMP_vormQRBackSubst_mva_32f_P, n8_ownvormQRBackSubst_mva_32f_P,
                         QR_MVA_ARGS_P);
}
VormStatus n8_vormQRBackSubst_mva_64f_P(QR_MVA_PARAMS_P(double))
{
    return checked<1800>(qrMvaP(QR_MVA_ARGS_P), n8_ownOMP_vormQRBackSubst_mva_64f_P, n8_ownvormQRBackSubst_mva_64f_P,
                         QR_MVA_ARGS_P);
}

VormStatus n8_ownvormQRBackSubst_mva_32f_S2(QR_MVA_PARAMS(float)) { return anyStrideKernel(qrMva(QR_MVA_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mva_64f_S2(QR_MVA_PARAMS(double)) { return anyStrideKernel(qrMva(QR_MVA_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mva_32f_LS2(QR_MVA_PARAMS_L(float)) { return anyStrideKernel(qrMvaL(QR_MVA_ARGS_L)); }
VormStatus n8_ownvormQRBackSubst_mva_64f_LS2(QR_MVA_PARAMS_L(double)) { return anyStrideKernel(qrMvaL(QR_MVA_ARGS_L)); }
VormStatus n8_ownvormQRBackSubst_mva_32f_P(QR_MVA_PARAMS_P(float)) { return pointerKernel(qrMvaP(QR_MVA_ARGS_P)); }
VormStatus n8_ownvormQRBackSubst_mva_64f_P(QR_MVA_PARAMS_P(double)) { return pointerKernel(qrMvaP(QR_MVA_ARGS_P)); }
}
