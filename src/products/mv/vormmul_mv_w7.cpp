// vormMul_mv: the kernel for contiguous elements, double precision.

#include "products/mv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormMul_mv_64f(MV_PARAMS(double)) { return mvContiguous<AsStored>(MV_ARGS); }
}
