// vormMul_tv: the kernel for contiguous elements, single precision.

#include "products/mv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tv_32f(MV_PARAMS(float)) { return mvContiguous<Turned>(MV_ARGS); }
}
