// vormDet_ma: the kernels for contiguous elements, double precision.

#include "factor/det/det_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormDet_ma_64f(DET_MA_PARAMS(double)) { return contiguousKernel(detMa(DET_MA_ARGS)); }
VormStatus n8_ownvormDet_ma_64f_L(DET_MA_PARAMS_L(double)) { return contiguousKernel(detMaL(DET_MA_ARGS_L)); }
}
