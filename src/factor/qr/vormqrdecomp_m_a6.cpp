// vormQRDecomp_m: the kernel for contiguous elements, single precision.

#include "factor/qr/qr_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormQRDecomp_m_32f(QR_DECOMP_M_PARAMS(float)) { return contiguousKernel(qrDecompM(QR_DECOMP_M_ARGS)); }
}
