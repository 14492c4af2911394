// vormMul_tv: the kernel for contiguous elements, double precision.

#include "products/mv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_tv_64f(MV_PARAMS(double)) { return mvContiguous<Turned>(MV_ARGS); }
}
