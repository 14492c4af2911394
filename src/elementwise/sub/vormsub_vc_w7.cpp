// vormSub_vc: the kernel for contiguous elements, double precision.

#include "elementwise/vc.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormSub_vc_64f(VC_PARAMS(double)) { return vcContiguous<Sub>(VC_ARGS); }
}
