// vormTranspose_m: the kernel for contiguous elements, double precision.

#include "movement/shapes/transpose_m.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormTranspose_m_64f(TRANSPOSE_M_PARAMS(double))
{
    return transposeKernel(withAdjacent(transposeM(TRANSPOSE_M_ARGS)));
}
}
