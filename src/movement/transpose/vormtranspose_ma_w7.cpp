// vormTranspose_ma: the kernels for contiguous elements, double precision.

#include "movement/shapes/transpose_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormTranspose_ma_64f(TRANSPOSE_MA_PARAMS(double))
{
    return transposeKernel(withAdjacent(transposeMa(TRANSPOSE_MA_ARGS)));
}
VormStatus n8_ownvormTranspose_ma_64f_L(TRANSPOSE_MA_PARAMS_L(double))
{
    return transposeKernel(withAdjacent(transposeMaL(TRANSPOSE_MA_ARGS_L)));
}
}
