// vormAdd_mm: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormAdd_mm_32f(MM_PARAMS(float))
{
    return checked(mm<Mm>(MM_ARGS), n8_ownvormAdd_mm_32f, n8_ownvormAdd_mm_32f_S2, MM_ARGS);
}
VormStatus n8_vormAdd_mm_64f(MM_PARAMS(double))
{
    return checked(mm<Mm>(MM_ARGS), n8_ownvormAdd_mm_64f, n8_ownvormAdd_mm_64f_S2, MM_ARGS);
}
VormStatus n8_vormAdd_mm_32f_P(MM_PARAMS_P(float))
{
    return checked(mmP<Mm>(MM_ARGS_P), n8_ownvormAdd_mm_32f_P, MM_ARGS_P);
}
VormStatus n8_vormAdd_mm_64f_P(MM_PARAMS_P(double))
{
    return checked(mmP<Mm>(MM_ARGS_P), n8_ownvormAdd_mm_64f_P, MM_ARGS_P);
}

VormStatus n8_ownvormAdd_mm_32f_S2(MM_PARAMS(float)) { return anyStrideKernel<Add>(mm<Mm>(MM_ARGS)); }
VormStatus n8_ownvormAdd_mm_64f_S2(MM_PARAMS(double)) { return anyStrideKernel<Add>(mm<Mm>(MM_ARGS)); }
VormStatus n8_ownvormAdd_mm_32f_P(MM_PARAMS_P(float)) { return pointerKernel<Add>(mmP<Mm>(MM_ARGS_P)); }
VormStatus n8_ownvormAdd_mm_64f_P(MM_PARAMS_P(double)) { return pointerKernel<Add>(mmP<Mm>(MM_ARGS_P)); }
}
