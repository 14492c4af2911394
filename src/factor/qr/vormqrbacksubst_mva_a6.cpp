// vormQRBackSubst_mva: the kernels for contiguous elements, single precision.

#include "factor/qr/qr_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormQRBackSubst_mva_32f(QR_MVA_PARAMS(float)) { return contiguousKernel(qrMva(QR_MVA_ARGS)); }
VormStatus n8_ownvormQRBackSubst_mva_32f_L(QR_MVA_PARAMS_L(float)) { return contiguousKernel(qrMvaL(QR_MVA_ARGS_L)); }
}
