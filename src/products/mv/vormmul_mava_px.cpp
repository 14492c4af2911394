// vormMul_mava: public layers, and the kernels for elements anywhere.

#include "products/mava.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mava_32f(MAVA_PARAMS(float))
{
    return mavaChecked<AsStored, 2500>(n8_ownOMP_vormMul_mava_32f, n8_ownvormMul_mava_32f, n8_ownvormMul_mava_32f_S2,
                                       MAVA_ARGS);
}
VormStatus n8_vormMul_mava_64f(MAVA_PARAMS(double))
{
    return mavaChecked<AsStored, 3600>(n8_ownOMP_vormMul_mava_64f, n8_ownvormMul_mava_64f, n8_ownvormMul_mava_64f_S2,
                                       MAVA_ARGS);
}
VormStatus n8_vormMul_mava_32f_L(MAVA_PARAMS_L(float))
{
    return mavaCheckedL<AsStored>(n8_ownOMP_vormMul_mava_32f_L, n8_ownvormMul_mava_32f_L, n8_ownvormMul_mava_32f_LS2,
                                  MAVA_ARGS_L);
}
VormStatus n8_vormMul_mava_64f_L(MAVA_PARAMS_L(double))
{
    return mavaCheckedL<AsStored>(n8_ownOMP_vormMul_mava_64f_L, n8_ownvormMul_mava_64f_L, n8_ownvormMul_mava_64f_LS2,
                                  MAVA_ARGS_L);
}
VormStatus n8_vormMul_mava_32f_P(MAVA_PARAMS_P(float))
{
    return mavaCheckedP<AsStored>(n8_ownOMP_vormMul_mava_32f_P, n8_ownvormMul_mava_32f_P, MAVA_ARGS_P);
}
VormStatus n8_vormMul_mava_64f_P(MAVA_PARAMS_P(double))
{
    return mavaCheckedP<AsStored>(n8_ownOMP_vormMul_mava_64f_P, n8_ownvormMul_mava_64f_P, MAVA_ARGS_P);
}

VormStatus n8_ownvormMul_mava_32f_S2(MAVA_PARAMS(float)) { return mavaAnyStride<AsStored>(MAVA_ARGS); }
VormStatus n8_ownvormMul_mava_64f_S2(MAVA_PARAMS(double)) { return mavaAnyStride<AsStored>(MAVA_ARGS); }
VormStatus n8_ownvormMul_mava_32f_LS2(MAVA_PARAMS_L(float))
{
    return mavaEachSingle(n8_ownvormMul_mv_32f_S2, MAVA_ARGS_L);
}
VormStatus n8_ownvormMul_mava_64f_LS2(MAVA_PARAMS_L(double))
{
    return mavaEachSingle(n8_ownvormMul_mv_64f_S2, MAVA_ARGS_L);
}
VormStatus n8_ownvormMul_mava_32f_P(MAVA_PARAMS_P(float)) { return mavaPointers<AsStored>(MAVA_ARGS_P); }
VormStatus n8_ownvormMul_mava_64f_P(MAVA_PARAMS_P(double)) { return mavaPointers<AsStored>(MAVA_ARGS_P); }
}
