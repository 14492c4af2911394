// vormQRBackSubst_mava: public layers, and the kernels for elements anywhere.

#include "factor/qr/qr_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormQRBackSubst_mava_32f(QR_MAVA_PARAMS(float))
{
    return checked<2800>(qrMava(QR_MAVA_ARGS), n8_ownOMP_vormQRBackSubst_mava_32f, n8_ownvormQRBackSubst_mava_32f,
                         n8_ownvormQRBackSubst_mava_32f_S2, QR_MAVA_ARGS);
}
VormStatus n8_vormQRBackSubst_mava_64f(QR_MAVA_PARAMS(double))
{
    return checked<2800>(qrMava(QR_MAVA_ARGS), n8_ownOMP_vormQRBackSubst_mava_64f, n8_ownvormQRBackSubst_mava_64f,
                         n8_ownvormQRBackSubst_mava_64f_S2, QR_MAVA_ARGS);
}
VormStatus n8_vormQRBackSubst_mava_32f_L(QR_MAVA_PARAMS_L(float))
{
    return checked<1800>(qrMavaL(QR_MAVA_ARGS_L), n8_ownOMP_vormQRBackSubst_mava_32f_L,
                         n8_ownvormQRBackSubst_mava_32f_L, n8_ownvormQRBackSubst_mava_32f_LS2, QR_MAVA_ARGS_L);
}
VormStatus n8_vormQRBackSubst_mava_64f_L(QR_MAVA_PARAMS_L(double))
{
    return checked<1800>(qrMavaL(QR_MAVA_ARGS_L), n8_ownOMP_vormQRBackSubst_mava_64f_L,
                         n8_ownvormQRBackSubst_mava_64f_L, n8_ownvormQRBackSubst_mava_64f_LS2, QR_MAVA_ARGS_L);
}
VormStatus n8_vormQRBackSubst_mava_32f_P(QR_MAVA_PARAMS_P(float))
{
    return checked<1800>(qrMavaP(QR_MAVA_ARGS_P), n8_ownOMP_vormQRBackSubst_mava_32f_P,
                         n8_ownvormQRBackSubst_mava_32f_P, QR_MAVA_ARGS_P);
}
VormStatus n8_vormQRBackSubst_mava_64f_P(QR_MAVA_PARAMS_P(double))
{
    return checked<1800>(qrMavaP(QR_MAVA_ARGS_P), n8_ownOMP_vormQRBackSubst_mava_64f_P,
                         n8_ownvormQRBackSubst_mava_64f_P, QR_MAVA_ARGS_P);
}

VormStatus n8_ownvormQRBackSubst_mava_32f_S2(QR_MAVA_PARAMS(float)) { return anyStrideKernel(qrMava(QR_MAVA_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mava_64f_S2(QR_MAVA_PARAMS(double)) { return anyStrideKernel(qrMava(QR_MAVA_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mava_32f_LS2(QR_MAVA_PARAMS_L(float))
{
    return anyStrideKernel(qrMavaL(QR_MAVA_ARGS_L));
}
VormStatus n8_ownvormQRBackSubst_mava_64f_LS2(QR_MAVA_PARAMS_L(double))
{
    return anyStrideKernel(qrMavaL(QR_MAVA_ARGS_L));
}
VormStatus n8_ownvormQRBackSubst_mava_32f_P(QR_MAVA_PARAMS_P(float)) { return pointerKernel(qrMavaP(QR_MAVA_ARGS_P)); }
VormStatus n8_ownvormQRBackSubst_mava_64f_P(QR_MAVA_PARAMS_P(double)) { return pointerKernel(qrMavaP(QR_MAVA_ARGS_P)); }
}
