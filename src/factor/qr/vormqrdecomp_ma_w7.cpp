// vormQRDecomp_ma: the kernels for contiguous elements, double precision.

#include "factor/qr/qr_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormQRDecomp_ma_64f(QR_DECOMP_MA_PARAMS(double))
{
    return contiguousKernel(qrDecompMa(QR_DECOMP_MA_ARGS));
}
VormStatus n8_ownvormQRDecomp_ma_64f_L(QR_DECOMP_MA_PARAMS_L(double))
{
    return contiguousKernel(qrDecompMaL(QR_DECOMP_MA_ARGS_L));
}
}
