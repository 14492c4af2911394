// vormMul_tta: public layers, and the kernels for elements anywhere.

#include "products/mma.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tta_32f(MMA_PARAMS(float))
{
    return mmaChecked<Tt, 2500>(n8_ownOMP_vormMul_tta_32f, n8_ownvormMul_tta_32f, n8_ownvormMul_tta_32f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_tta_64f(MMA_PARAMS(double))
{
    return mmaChecked<Tt, 3600>(n8_ownOMP_vormMul_tta_64f, n8_ownvormMul_tta_64f, n8_ownvormMul_tta_64f_S2, MMA_ARGS);
}
VormStatus n8_vormMul_tta_32f_L(MMA_PARAMS_L(float))
{
    return mmaCheckedL<Tt>(n8_ownOMP_vormMul_tta_32f_L, n8_ownvormMul_tta_32f_L, n8_ownvormMul_tta_32f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_tta_64f_L(MMA_PARAMS_L(double))
{
    return mmaCheckedL<Tt>(n8_ownOMP_vormMul_tta_64f_L, n8_ownvormMul_tta_64f_L, n8_ownvormMul_tta_64f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormMul_tta_32f_P(MMA_PARAMS_P(float))
{
    return mmaCheckedP<Tt>(n8_ownOMP_vormMul_tta_32f_P, n8_ownvormMul_tta_32f_P, MMA_ARGS_P);
}
VormStatus n8_vormMul_tta_64f_P(MMA_PARAMS_P(double))
{
    return mmaCheckedP<Tt>(n8_ownOMP_vormMul_tta_64f_P, n8_ownvormMul_tta_64f_P, MMA_ARGS_P);
}

VormStatus n8_ownvormMul_tta_32f_S2(MMA_PARAMS(float)) { return mmaAnyStride<Tt>(MMA_ARGS); }
VormStatus n8_ownvormMul_tta_64f_S2(MMA_PARAMS(double)) { return mmaAnyStride<Tt>(MMA_ARGS); }
VormStatus n8_ownvormMul_tta_32f_LS2(MMA_PARAMS_L(float))
{
    return mmaEachSingle(n8_ownvormMul_tt_32f_S2, MMA_ARGS_L);
}
VormStatus n8_ownvormMul_tta_64f_LS2(MMA_PARAMS_L(double))
{
    return mmaEachSingle(n8_ownvormMul_tt_64f_S2, MMA_ARGS_L);
}
VormStatus n8_ownvormMul_tta_32f_P(MMA_PARAMS_P(float)) { return mmaPointers<Tt, Outermost::columns>(MMA_ARGS_P); }
VormStatus n8_ownvormMul_tta_64f_P(MMA_PARAMS_P(double)) { return mmaPointers<Tt, Outermost::columns>(MMA_ARGS_P); }

}
