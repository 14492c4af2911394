// vormInvert_ma: the kernels for contiguous elements, single precision.

#include "factor/invert/invert_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormInvert_ma_32f(INVERT_MA_PARAMS(float)) { return contiguousKernel(invertMa(INVERT_MA_ARGS)); }
VormStatus n8_ownvormInvert_ma_32f_L(INVERT_MA_PARAMS_L(float)) { return listKernel(invertMaL(INVERT_MA_ARGS_L)); }
}
