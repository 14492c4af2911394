// vormQRBackSubst_mv: the kernel for contiguous elements, single precision.

#include "factor/qr/qr_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormQRBackSubst_mv_32f(QR_MV_PARAMS(float)) { return contiguousKernel(qrMv(QR_MV_ARGS)); }
}
