// vormInvert_ma: the kernels for contiguous elements, double precision.

#include "factor/invert/invert_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormInvert_ma_64f(INVERT_MA_PARAMS(double)) { return contiguousKernel(invertMa(INVERT_MA_ARGS)); }
VormStatus n8_ownvormInvert_ma_64f_L(INVERT_MA_PARAMS_L(double)) { return listKernel(invertMaL(INVERT_MA_ARGS_L)); }
}
