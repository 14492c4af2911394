// vormMul_mva: public layers, and the kernels for elements anywhere.

#include "products/mva.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mva_32f(MVA_PARAMS(float))
{
    return mvaChecked<AsStored, 2500>(n8_ownOMP_vormMul_mva_32f, n8_ownvormMul_mva_32f, n8_ownvormMul_mva_32f_S2,
                                      MVA_ARGS);
}
VormStatus n8_vormMul_mva_64f(MVA_PARAMS(double))
{
    return mvaChecked<AsStored, 3600>(n8_ownOMP_vormMul_mva_64f, n8_ownvormMul_mva_64f, n8_ownvormMul_mva_64f_S2,
                                      MVA_ARGS);
}
VormStatus n8_vormMul_mva_32f_L(MVA_PARAMS_L(float))
{
    return mvaCheckedL<AsStored>(n8_ownOMP_vormMul_mva_32f_L, n8_ownvormMul_mva_32f_L, n8_ownvormMul_mva_32f_LS2,
                                 MVA_ARGS_L);
}
VormStatus n8_vormMul_mva_64f_L(MVA_PARAMS_L(double))
{
    return mvaCheckedL<AsStored>(n8_ownOMP_vormMul_mva_64f_L, n8_ownvormMul_mva_64f_L, n8_ownvormMul_mva_64f_LS2,
                                 MVA_ARGS_L);
}
VormStatus n8_vormMul_mva_32f_P(MVA_PARAMS_P(float))
{
    return mvaCheckedP<AsStored>(n8_ownOMP_vormMul_mva_32f_P, n8_ownvormMul_mva_32f_P, MVA_ARGS_P);
}
VormStatus n8_vormMul_mva_64f_P(MVA_PARAMS_P(double))
{
    return mvaCheckedP<AsStored>(n8_ownOMP_vormMul_mva_64f_P, n8_ownvormMul_mva_64f_P, MVA_ARGS_P);
}

VormStatus n8_ownvormMul_mva_32f_S2(MVA_PARAMS(float)) { return mvaAnyStride<AsStored>(MVA_ARGS); }
VormStatus n8_ownvormMul_mva_64f_S2(MVA_PARAMS(double)) { return mvaAnyStride<AsStored>(MVA_ARGS); }
VormStatus n8_ownvormMul_mva_32f_LS2(MVA_PARAMS_L(float)) { return mvaEachSingle(n8_ownvormMul_mv_32f_S2, MVA_ARGS_L); }
VormStatus n8_ownvormMul_mva_64f_LS2(MVA_PARAMS_L(double))
{
    return mvaEachSingle(n8_ownvormMul_mv_64f_S2, MVA_ARGS_L);
}
VormStatus n8_ownvormMul_mva_32f_P(MVA_PARAMS_P(float)) { return mvaPointers<AsStored>(MVA_ARGS_P); }
VormStatus n8_ownvormMul_mva_64f_P(MVA_PARAMS_P(double)) { return mvaPointers<AsStored>(MVA_ARGS_P); }
}
