// vormMul_tac: the kernels for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "products/shapes/mac.hpp"

using namespace vorm;
using namespace vorm::products;
using elementwise::anyStrideKernel, elementwise::contiguousKernel, elementwise::pointerKernel;

extern "C" {

VormStatus n8_ownvormMul_tac_32f(MAC_PARAMS(float)) { return contiguousKernel<Mul>(mac<AsTransposed>(MAC_ARGS)); }
VormStatus n8_ownvormMul_tac_32f_L(MAC_PARAMS_L(float))
{
    return contiguousKernel<Mul>(macL<AsTransposed>(MAC_ARGS_L));
}
}
