// vormExtract_v: the kernel for contiguous elements, single precision.

#include "movement/shapes/extract_v.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormExtract_v_32f(EXTRACT_V_PARAMS(float))
{
    return extractKernel(withAdjacent(extractV(EXTRACT_V_ARGS)));
}
}
