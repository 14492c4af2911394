// vormQRBackSubst_mv: public layers, and the kernels for elements anywhere.

#include "factor/qr/qr_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormQRBackSubst_mv_32f(QR_MV_PARAMS(float))
{
    return checked(qrMv(QR_MV_ARGS), n8_ownvormQRBackSubst_mv_32f, n8_ownvormQRBackSubst_mv_32f_S2, QR_MV_ARGS);
}
VormStatus n8_vormQRBackSubst_mv_64f(QR_MV_PARAMS(double))
{
    return checked(qrMv(QR_MV_ARGS), n8_ownvormQRBackSubst_mv_64f, n8_ownvormQRBackSubst_mv_64f_S2, QR_MV_ARGS);
}
VormStatus n8_vormQRBackSubst_mv_32f_P(QR_MV_PARAMS_P(float))
{
    return checked(qrMvP(QR_MV_ARGS_P), n8_ownvormQRBackSubst_mv_32f_P, QR_MV_ARGS_P);
}
VormStatus n8_vormQRBackSubst_mv_64f_P(QR_MV_PARAMS_P(double))
{
    return checked(qrMvP(QR_MV_ARGS_P), n8_ownvormQRBackSubst_mv_64f_P, QR_MV_ARGS_P);
}

VormStatus n8_ownvormQRBackSubst_mv_32f_S2(QR_MV_PARAMS(float)) { return anyStrideKernel(qrMv(QR_MV_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mv_64f_S2(QR_MV_PARAMS(double)) { return anyStrideKernel(qrMv(QR_MV_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mv_32f_P(QR_MV_PARAMS_P(float)) { return pointerKernel(qrMvP(QR_MV_ARGS_P)); }
VormStatus n8_ownvormQRBackSubst_mv_64f_P(QR_MV_PARAMS_P(double)) { return pointerKernel(qrMvP(QR_MV_ARGS_P)); }
}
