// vormDet_ma: the kernels for contiguous elements, single precision.

#include "factor/det/det_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormDet_ma_32f(DET_MA_PARAMS(float)) { return contiguousKernel(detMa(DET_MA_ARGS)); }
VormStatus n8_ownvormDet_ma_32f_L(DET_MA_PARAMS_L(float)) { return contiguousKernel(detMaL(DET_MA_ARGS_L)); }
}
