// vormMul_mta: public layers, and the kernels for elements anywhere.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mta_32f(MMA_PARAMS(float))
{
    return mmaChecked<Mt, 2500>(n8_ownOMP_vormMul_mta_32f, n8_ownvormMul_mta_32f, n8_ownvormMul_mta_32f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_mta_64f(MMA_PARAMS(double))
{
    return mmaChecked<Mt, 3600>(n8_ownOMP_vormMul_mta_64f, n8_ownvormMul_mta_64f, n8_ownvormMul_mta_64f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_mta_32f_L(MMA_PARAMS_L(float))
{
    return mmaCheckedL<Mt>(n8_ownOMP_vormMul_mta_32f_L, n8_ownvormMul_mta_32f_L, n8_ownvormMul_mta_32f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_mta_64f_L(MMA_PARAMS_L(double))
{
    return mmaCheckedL<Mt>(n8_ownOMP_vormMul_mta_64f_L, n8_ownvormMul_mta_64f_L, n8_ownvormMul_mta_64f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_mta_32f_P(MMA_PARAMS_P(float))
{
    return mmaCheckedP<Mt>(n8_ownOMP_vormMul_mta_32f_P, n8_ownvormMul_mta_32f_P, MMA_ARGS_P);
}
VormStatus n8_vormMul_mta_64f_P(MMA_PARAMS_P(double))
{
    return mmaCheckedP<Mt>(n8_ownOMP_vormMul_mta_64f_P, n8_ownvormMul_mta_64f_P, MMA_ARGS_P);
}

VormStatus n8_ownvormMul_mta_32f_S2(MMA_PARAMS(float)) { return mmaAnyStride<Mt>(MMA_ARGS); }
VormStatus n8_ownvormMul_mta_64f_S2(MMA_PARAMS(double)) { return mmaAnyStride<Mt>(MMA_ARGS); }
VormStatus n8_ownvormMul_mta_32f_LS2(MMA_PARAMS_L(float))
{
    return mmaEachSingle(n8_ownvormMul_mt_32f_S2, MMA_ARGS_L);
}
VormStatus n8_ownvormMul_mta_64f_LS2(MMA_PARAMS_L(double))
{
    return mmaEachSingle(n8_ownvormMul_mt_64f_S2, MMA_ARGS_L);
}
VormStatus n8_ownvormMul_mta_32f_P(MMA_PARAMS_P(float)) { return mmaPointers<Mt>(MMA_ARGS_P); }
VormStatus n8_ownvormMul_mta_64f_P(MMA_PARAMS_P(double)) { return mmaPointers<Mt>(MMA_ARGS_P); }

}
