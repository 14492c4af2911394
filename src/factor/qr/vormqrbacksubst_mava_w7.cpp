// vormQRBackSubst_mava: the kernels for contiguous elements, double precision.

#include "factor/qr/qr_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormQRBackSubst_mava_64f(QR_MAVA_PARAMS(double)) { return contiguousKernel(qrMava(QR_MAVA_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mava_64f_L(QR_MAVA_PARAMS_L(double))
{
    return contiguousKernel(qrMavaL(QR_MAVA_ARGS_L));
}
}
