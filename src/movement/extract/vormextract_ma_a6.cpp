// vormExtract_ma: the kernels for contiguous elements, single precision.

#include "movement/shapes/extract_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormExtract_ma_32f(EXTRACT_MA_PARAMS(float))
{
    return extractKernel(withAdjacent(extractMa<AsStored>(EXTRACT_MA_ARGS)));
}
VormStatus n8_ownvormExtract_ma_32f_L(EXTRACT_MA_PARAMS_L(float))
{
    return extractKernel(withAdjacent(extractMaL<AsStored>(EXTRACT_MA_ARGS_L)));
}
}
