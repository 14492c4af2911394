// vormQRDecomp_m: public layers, and the kernels for elements anywhere.

#include "factor/qr/qr_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormQRDecomp_m_32f(QR_DECOMP_M_PARAMS(float))
{
    return checked(qrDecompM(QR_DECOMP_M_ARGS), n8_ownvormQRDecomp_m_32f, n8_ownvormQRDecomp_m_32f_S2,
                   QR_DECOMP_M_ARGS);
}
VormStatus n8_vormQRDecomp_m_64f(QR_DECOMP_M_PARAMS(double))
{
    return checked(qrDecompM(QR_DECOMP_M_ARGS), n8_ownvormQRDecomp_m_64f, n8_ownvormQRDecomp_m_64f_S2,
                   QR_DECOMP_M_ARGS);
}
VormStatus n8_vormQRDecomp_m_32f_P(QR_DECOMP_M_PARAMS_P(float))
{
    return checked(qrDecompMP(QR_DECOMP_M_ARGS_P), n8_ownvormQRDecomp_m_32f_P, QR_DECOMP_M_ARGS_P);
}
VormStatus n8_vormQRDecomp_m_64f_P(QR_DECOMP_M_PARAMS_P(double))
{
    return checked(qrDecompMP(QR_DECOMP_M_ARGS_P), n8_ownvormQRDecomp_m_64f_P, QR_DECOMP_M_ARGS_P);
}

VormStatus n8_ownvormQRDecomp_m_32f_S2(QR_DECOMP_M_PARAMS(float))
{
    return anyStrideKernel(qrDecompM(QR_DECOMP_M_ARGS));
}
VormStatus n8_ownvormQRDecomp_m_64f_S2(QR_DECOMP_M_PARAMS(double))
{
    return anyStrideKernel(qrDecompM(QR_DECOMP_M_ARGS));
}
VormStatus n8_ownvormQRDecomp_m_32f_P(QR_DECOMP_M_PARAMS_P(float))
{
    return pointerKernel(qrDecompMP(QR_DECOMP_M_ARGS_P));
}
VormStatus n8_ownvormQRDecomp_m_64f_P(QR_DECOMP_M_PARAMS_P(double))
{
    return pointerKernel(qrDecompMP(QR_DECOMP_M_ARGS_P));
}
}
