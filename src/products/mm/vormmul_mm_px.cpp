// vormMul_mm: public layers, and the kernels for elements anywhere.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mm_32f(MM_PARAMS(float))
{
    return checked(mm<Mm>(MM_ARGS), n8_ownvormMul_mm_32f, n8_ownvormMul_mm_32f_S2, MM_ARGS);
}
VormStatus n8_vormMul_mm_64f(MM_PARAMS(double))
{
    return checked(mm<Mm>(MM_ARGS), n8_ownvormMul_mm_64f, n8_ownvormMul_mm_64f_S2, MM_ARGS);
}
VormStatus n8_vormMul_mm_32f_P(MM_PARAMS_P(float))
{
    return checked(mmP<Mm>(MM_ARGS_P), n8_ownvormMul_mm_32f_P, MM_ARGS_P);
}
VormStatus n8_vormMul_mm_64f_P(MM_PARAMS_P(double))
{
    return checked(mmP<Mm>(MM_ARGS_P), n8_ownvormMul_mm_64f_P, MM_ARGS_P);
}

VormStatus n8_ownvormMul_mm_32f_S2(MM_PARAMS(float)) { return anyStrideKernel<Mm>(mm<Mm>(MM_ARGS)); }
VormStatus n8_ownvormMul_mm_64f_S2(MM_PARAMS(double)) { return anyStrideKernel<Mm>(mm<Mm>(MM_ARGS)); }
VormStatus n8_ownvormMul_mm_32f_P(MM_PARAMS_P(float)) { return anyStrideKernel<Mm>(mmP<Mm>(MM_ARGS_P)); }
VormStatus n8_ownvormMul_mm_64f_P(MM_PARAMS_P(double)) { return anyStrideKernel<Mm>(mmP<Mm>(MM_ARGS_P)); }
}
