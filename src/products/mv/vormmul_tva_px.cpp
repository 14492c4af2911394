// vormMul_tva: public layers, and the kernels for elements anywhere.

#include "products/mva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tva_32f(MVA_PARAMS(float))
{
    return mvaChecked<Turned, 2500>(n8_ownOMP_vormMul_tva_32f, n8_ownvormMul_tva_32f, n8_ownvormMul_tva_32f_S2,
                                    MVA_ARGS);
}
VormStatus n8_vormMul_tva_64f(MVA_PARAMS(double))
{
    return mvaChecked<Turned, 3600>(n8_ownOMP_vormMul_tva_64f, n8_ownvormMul_tva_64f, n8_ownvormMul_tva_64f_S2,
                                    MVA_ARGS);
}
VormStatus n8_vormMul_tva_32f_L(MVA_PARAMS_L(float))
{
    return mvaCheckedL<Turned>(n8_ownOMP_vormMul_tva_32f_L, n8_ownvormMul_tva_32f_L, n8_ownvormMul_tva_32f_LS2,
                               MVA_ARGS_L);
}
VormStatus n8_vormMul_tva_64f_L(MVA_PARAMS_L(double))
{
    return mvaCheckedL<Turned>(n8_ownOMP_vormMul_tva_64f_L, n8_ownvormMul_tva_64f_L, n8_ownvormMul_tva_64f_LS2,
                               MVA_ARGS_L);
}
VormStatus n8_vormMul_tva_32f_P(MVA_PARAMS_P(float))
{
    return mvaCheckedP<Turned>(n8_ownOMP_vormMul_tva_32f_P, n8_ownvormMul_tva_32f_P, MVA_ARGS_P);
}
VormStatus n8_vormMul_tva_64f_P(MVA_PARAMS_P(double))
{
    return mvaCheckedP<Turned>(n8_ownOMP_vormMul_tva_64f_P, n8_ownvormMul_tva_64f_P, MVA_ARGS_P);
}

VormStatus n8_ownvormMul_tva_32f_S2(MVA_PARAMS(float)) { return mvaAnyStride<Turned>(MVA_ARGS); }
VormStatus n8_ownvormMul_tva_64f_S2(MVA_PARAMS(double)) { return mvaAnyStride<Turned>(MVA_ARGS); }
VormStatus n8_ownvormMul_tva_32f_LS2(MVA_PARAMS_L(float)) { return mvaEachSingle(n8_ownvormMul_tv_32f_S2, MVA_ARGS_L); }
VormStatus n8_ownvormMul_tva_64f_LS2(MVA_PARAMS_L(double))
{
    return mvaEachSingle(n8_ownvormMul_tv_64f_S2, MVA_ARGS_L);
}
VormStatus n8_ownvormMul_tva_32f_P(MVA_PARAMS_P(float)) { return mvaPointers<Turned>(MVA_ARGS_P); }
VormStatus n8_ownvormMul_tva_64f_P(MVA_PARAMS_P(double)) { return mvaPointers<Turned>(MVA_ARGS_P); }
}
