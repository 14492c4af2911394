// vormQRDecomp_ma: the kernels for contiguous elements, single precision.

#include "factor/qr/qr_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormQRDecomp_ma_32f(QR_DECOMP_MA_PARAMS(float))
{
    return contiguousKernel(qrDecompMa(QR_DECOMP_MA_ARGS));
}
VormStatus n8_ownvormQRDecomp_ma_32f_L(QR_DECOMP_MA_PARAMS_L(float))
{
    return contiguousKernel(qrDecompMaL(QR_DECOMP_MA_ARGS_L));
}
}
