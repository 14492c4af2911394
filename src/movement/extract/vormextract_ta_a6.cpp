// vormExtract_ta: the kernels for contiguous elements, single precision.

#include "movement/shapes/extract_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormExtract_ta_32f(EXTRACT_MA_PARAMS(float))
{
    return extractKernel(withAdjacent(extractMa<AsTransposed>(EXTRACT_MA_ARGS)));
}
VormStatus n8_ownvormExtract_ta_32f_L(EXTRACT_MA_PARAMS_L(float))
{
    return extractKernel(withAdjacent(extractMaL<AsTransposed>(EXTRACT_MA_ARGS_L)));
}
}
