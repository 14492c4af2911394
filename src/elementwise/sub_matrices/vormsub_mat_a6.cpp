// vormSub_mat: the kernels for contiguous elements, single precision.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_ownvormSub_mat_32f(MAM_PARAMS(float)) { return contiguousKernel<Sub>(mam<Mt>(MAM_ARGS)); }
VormStatus n8_ownvormSub_mat_32f_L(MAM_PARAMS_L(float))
{
    return eachSingle(mamL<Mt>(MAM_ARGS_L), n8_ownvormSub_mt_32f);
}
}
