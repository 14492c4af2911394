// vormAdd_vava: the kernels for contiguous elements, single precision.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vava.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormAdd_vava_32f(VAVA_PARAMS(float)) { return contiguousKernel<Add>(vava(VAVA_ARGS)); }
VormStatus n8_ownvormAdd_vava_32f_L(VAVA_PARAMS_L(float)) { return contiguousKernel<Add>(vavaL(VAVA_ARGS_L)); }
}
