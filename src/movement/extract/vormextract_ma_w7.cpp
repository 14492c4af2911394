// vormExtract_ma: the kernels for contiguous elements, double precision.

#include "movement/shapes/extract_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormExtract_ma_64f(EXTRACT_MA_PARAMS(double))
{
    return extractKernel(withAdjacent(extractMa<AsStored>(EXTRACT_MA_ARGS)));
}
VormStatus n8_ownvormExtract_ma_64f_L(EXTRACT_MA_PARAMS_L(double))
{
    return extractKernel(withAdjacent(extractMaL<AsStored>(EXTRACT_MA_ARGS_L)));
}
}
