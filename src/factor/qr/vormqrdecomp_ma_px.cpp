// vormQRDecomp_ma: public layers, and the kernels for elements anywhere.

#include "factor/qr/qr_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormQRDecomp_ma_32f(QR_DECOMP_MA_PARAMS(float))
{
    return checked<2800>(qrDecompMa(QR_DECOMP_MA_ARGS), n8_ownOMP_vormQRDecomp_ma_32f, n8_ownvormQRDecomp_ma_32f,
                         n8_ownvormQRDecomp_ma_32f_S2, QR_DECOMP_MA_ARGS);
}
VormStatus n8_vormQRDecomp_ma_64f(QR_DECOMP_MA_PARAMS(double))
{
    return checked<2800>(qrDecompMa(QR_DECOMP_MA_ARGS), n8_ownOMP_vormQRDecomp_ma_64f, n8_ownvormQRDecomp_ma_64f,
                         n8_ownvormQRDecomp_ma_64f_S2, QR_DECOMP_MA_ARGS);
}
VormStatus n8_vormQRDecomp_ma_32f_L(QR_DECOMP_MA_PARAMS_L(float))
{
    return checked<1800>(qrDecompMaL(QR_DECOMP_MA_ARGS_L), n8_ownOMP_vormQRDecomp_ma_32f_L, n8_ownvormQRDecomp_ma_32f_L,
                         n8_ownvormQRDecomp_ma_32f_LS2, QR_DECOMP_MA_ARGS_L);
}
VormStatus n8_vormQRDecomp_ma_64f_L(QR_DECOMP_MA_PARAMS_L(double))
{
    return checked<1800>(qrDecompMaL(QR_DECOMP_MA_ARGS_L), n8_ownOMP_vormQRDecomp_ma_64f_L, n8_ownvormQRDecomp_ma_64f_L,
                         n8_ownvormQRDecomp_ma_64f_LS2, QR_DECOMP_MA_ARGS_L);
}
VormStatus n8_vormQRDecomp_ma_32f_P(QR_DECOMP_MA_PARAMS_P(float))
{
    return checked<1800>(qrDecompMaP(QR_DECOMP_MA_ARGS_P), n8_ownOMP_vormQRDecomp_ma_32f_P, n8_ownvormQRDecomp_ma_32f_P,
                         QR_DECOMP_MA_ARGS_P);
}
VormStatus n8_vormQRDecomp_ma_64f_P(QR_DECOMP_MA_PARAMS_P(double))
{
    return checked<1800>(qrDecompMaP(QR_DECOMP_MA_ARGS_P), n8_ownOMP_vormQRDecomp_ma_64f_P, n8_ownvormQRDecomp_ma_64f_P,
                         QR_DECOMP_MA_ARGS_P);
}

VormStatus n8_ownvormQRDecomp_ma_32f_S2(QR_DECOMP_MA_PARAMS(float))
{
    return anyStrideKernel(qrDecompMa(QR_DECOMP_MA_ARGS));
}
VormStatus n8_ownvormQRDecomp_ma_64f_S2(QR_DECOMP_MA_PARAMS(double))
{
    return anyStrideKernel(qrDecompMa(QR_DECOMP_MA_ARGS));
}
VormStatus n8_ownvormQRDecomp_ma_32f_LS2(QR_DECOMP_MA_PARAMS_L(float))
{
    return anyStrideKernel(qrDecompMaL(QR_DECOMP_MA_ARGS_L));
}
VormStatus n8_ownvormQRDecomp_ma_64f_LS2(QR_DECOMP_MA_PARAMS_L(double))
{
    return anyStrideKernel(qrDecompMaL(QR_DECOMP_MA_ARGS_L));
}
VormStatus n8_ownvormQRDecomp_ma_32f_P(QR_DECOMP_MA_PARAMS_P(float))
{
    return pointerKernel(qrDecompMaP(QR_DECOMP_MA_ARGS_P));
}
VormStatus n8_ownvormQRDecomp_ma_64f_P(QR_DECOMP_MA_PARAMS_P(double))
{
    return pointerKernel(qrDecompMaP(QR_DECOMP_MA_ARGS_P));
}
}
