// vormExtract_va: the kernels for contiguous elements, double precision.

#include "movement/shapes/extract_va.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormExtract_va_64f(EXTRACT_VA_PARAMS(double))
{
    return extractKernel(withAdjacent(extractVa(EXTRACT_VA_ARGS)));
}
VormStatus n8_ownvormExtract_va_64f_L(EXTRACT_VA_PARAMS_L(double))
{
    return extractKernel(withAdjacent(extractVaL(EXTRACT_VA_ARGS_L)));
}
}
