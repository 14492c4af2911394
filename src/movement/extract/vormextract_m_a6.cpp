// vormExtract_m: the kernel for contiguous elements, single precision.

#include "movement/shapes/extract_m.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormExtract_m_32f(EXTRACT_M_PARAMS(float))
{
    return extractKernel(withAdjacent(extractM<AsStored>(EXTRACT_M_ARGS)));
}
}
