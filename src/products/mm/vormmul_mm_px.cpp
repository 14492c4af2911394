// vormMul_mm: public layers, and the kernels for elements anywhere.

#include "products/mm.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mm_32f(MM_PARAMS(float))
{
    return mmChecked<Mm>(n8_ownvormMul_mm_32f, n8_ownvormMul_mm_32f_S2, MM_ARGS);
}
VormStatus n8_vormMul_mm_64f(MM_PARAMS(double))
{
    return mmChecked<Mm>(n8_ownvormMul_mm_64f, n8_ownvormMul_mm_64f_S2, MM_ARGS);
}
VormStatus n8_vormMul_mm_32f_P(MM_PARAMS_P(float))
{
    return mmCheckedP<Mm>(n8_ownvormMul_mm_32f_P, MM_ARGS_P);
}
VormStatus n8_vormMul_mm_64f_P(MM_PARAMS_P(double))
{
    return mmCheckedP<Mm>(n8_ownvormMul_mm_64f_P, MM_ARGS_P);
}

VormStatus n8_ownvormMul_mm_32f_S2(MM_PARAMS(float)) { return mmAnyStride<Mm>(MM_ARGS); }
VormStatus n8_ownvormMul_mm_64f_S2(MM_PARAMS(double)) { return mmAnyStride<Mm>(MM_ARGS); }
VormStatus n8_ownvormMul_mm_32f_P(MM_PARAMS_P(float)) { return mmPointers<Mm>(MM_ARGS_P); }
VormStatus n8_ownvormMul_mm_64f_P(MM_PARAMS_P(double)) { return mmPointers<Mm>(MM_ARGS_P); }

}
