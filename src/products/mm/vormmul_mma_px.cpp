// vormMul_mma: public layers, and the kernels for elements anywhere.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mma_32f(MMA_PARAMS(float))
{
    return mmaChecked<Mm, 2500>(n8_ownOMP_vormMul_mma_32f, n8_ownvormMul_mma_32f, n8_ownvormMul_mma_32f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_mma_64f(MMA_PARAMS(double))
{
    return mmaChecked<Mm, 3600>(n8_ownOMP_vormMul_mma_64f, n8_ownvormMul_mma_64f, n8_ownvormMul_mma_64f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_mma_32f_L(MMA_PARAMS_L(float))
{
    return mmaCheckedL<Mm>(n8_ownOMP_vormMul_mma_32f_L, n8_ownvormMul_mma_32f_L, n8_ownvormMul_mma_32f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_mma_64f_L(MMA_PARAMS_L(double))
{
    return mmaCheckedL<Mm>(n8_ownOMP_vormMul_mma_64f_L, n8_ownvormMul_mma_64f_L, n8_ownvormMul_mma_64f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_mma_32f_P(MMA_PARAMS_P(float))
{
    return mmaCheckedP<Mm>(n8_ownOMP_vormMul_mma_32f_P, n8_ownvormMul_mma_32f_P, MMA_ARGS_P);
}
VormStatus n8_vormMul_mma_64f_P(MMA_PARAMS_P(double))
{
    return mmaCheckedP<Mm>(n8_ownOMP_vormMul_mma_64f_P, n8_ownvormMul_mma_64f_P, MMA_ARGS_P);
}

VormStatus n8_ownvormMul_mma_32f_S2(MMA_PARAMS(float)) { return mmaAnyStride<Mm>(MMA_ARGS); }
VormStatus n8_ownvormMul_mma_64f_S2(MMA_PARAMS(double)) { return mmaAnyStride<Mm>(MMA_ARGS); }
VormStatus n8_ownvormMul_mma_32f_LS2(MMA_PARAMS_L(float))
{
    return mmaEachSingle(n8_ownvormMul_mm_32f_S2, MMA_ARGS_L);
}
VormStatus n8_ownvormMul_mma_64f_LS2(MMA_PARAMS_L(double))
{
    return mmaEachSingle(n8_ownvormMul_mm_64f_S2, MMA_ARGS_L);
}
VormStatus n8_ownvormMul_mma_32f_P(MMA_PARAMS_P(float)) { return mmaPointers<Mm>(MMA_ARGS_P); }
VormStatus n8_ownvormMul_mma_64f_P(MMA_PARAMS_P(double)) { return mmaPointers<Mm>(MMA_ARGS_P); }

}
