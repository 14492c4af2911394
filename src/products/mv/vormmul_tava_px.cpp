// vormMul_tava: public layers, and the kernels for elements anywhere.

#include "products/mava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tava_32f(MAVA_PARAMS(float))
{
    return mavaChecked<Turned, 2500>(n8_ownOMP_vormMul_tava_32f, n8_ownvormMul_tava_32f, n8_ownvormMul_tava_32f_S2,
                                     MAVA_ARGS);
}
VormStatus n8_vormMul_tava_64f(MAVA_PARAMS(double))
{
    return mavaChecked<Turned, 3600>(n8_ownOMP_vormMul_tava_64f, n8_ownvormMul_tava_64f, n8_ownvormMul_tava_64f_S2,
                                     MAVA_ARGS);
}
VormStatus n8_vormMul_tava_32f_L(MAVA_PARAMS_L(float))
{
    return mavaCheckedL<Turned>(n8_ownOMP_vormMul_tava_32f_L, n8_ownvormMul_tava_32f_L, n8_ownvormMul_tava_32f_LS2,
                                MAVA_ARGS_L);
}
VormStatus n8_vormMul_tava_64f_L(MAVA_PARAMS_L(double))
{
    return mavaCheckedL<Turned>(n8_ownOMP_vormMul_tava_64f_L, n8_ownvormMul_tava_64f_L, n8_ownvormMul_tava_64f_LS2,
                                MAVA_ARGS_L);
}
VormStatus n8_vormMul_tava_32f_P(MAVA_PARAMS_P(float))
{
    return mavaCheckedP<Turned>(n8_ownOMP_vormMul_tava_32f_P, n8_ownvormMul_tava_32f_P, MAVA_ARGS_P);
}
VormStatus n8_vormMul_tava_64f_P(MAVA_PARAMS_P(double))
{
    return mavaCheckedP<Turned>(n8_ownOMP_vormMul_tava_64f_P, n8_ownvormMul_tava_64f_P, MAVA_ARGS_P);
}

VormStatus n8_ownvormMul_tava_32f_S2(MAVA_PARAMS(float)) { return mavaAnyStride<Turned>(MAVA_ARGS); }
VormStatus n8_ownvormMul_tava_64f_S2(MAVA_PARAMS(double)) { return mavaAnyStride<Turned>(MAVA_ARGS); }
VormStatus n8_ownvormMul_tava_32f_LS2(MAVA_PARAMS_L(float))
{
    return mavaEachSingle(n8_ownvormMul_tv_32f_S2, MAVA_ARGS_L);
}
VormStatus n8_ownvormMul_tava_64f_LS2(MAVA_PARAMS_L(double))
{
    return mavaEachSingle(n8_ownvormMul_tv_64f_S2, MAVA_ARGS_L);
}
VormStatus n8_ownvormMul_tava_32f_P(MAVA_PARAMS_P(float)) { return mavaPointers<Turned>(MAVA_ARGS_P); }
VormStatus n8_ownvormMul_tava_64f_P(MAVA_PARAMS_P(double)) { return mavaPointers<Turned>(MAVA_ARGS_P); }
}
