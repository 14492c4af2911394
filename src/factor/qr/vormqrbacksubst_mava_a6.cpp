// vormQRBackSubst_mava: the kernels for contiguous elements, single precision.

#include "factor/qr/qr_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormQRBackSubst_mava_32f(QR_MAVA_PARAMS(float)) { return contiguousKernel(qrMava(QR_MAVA_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mava_32f_L(QR_MAVA_PARAMS_L(float))
{
    return contiguousKernel(qrMavaL(QR_MAVA_ARGS_L));
}
}
