// vormMul_mv: public layers, and the kernels for elements anywhere.

#include "products/mv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mv_32f(MV_PARAMS(float))
{
    return mvChecked<AsStored>(n8_ownvormMul_mv_32f, n8_ownvormMul_mv_32f_S2, MV_ARGS);
}
VormStatus n8_vormMul_mv_64f(MV_PARAMS(double))
{
    return mvChecked<AsStored>(n8_ownvormMul_mv_64f, n8_ownvormMul_mv_64f_S2, MV_ARGS);
}
VormStatus n8_vormMul_mv_32f_P(MV_PARAMS_P(float)) { return mvCheckedP<AsStored>(n8_ownvormMul_mv_32f_P, MV_ARGS_P); }
VormStatus n8_vormMul_mv_64f_P(MV_PARAMS_P(double)) { return mvCheckedP<AsStored>(n8_ownvormMul_mv_64f_P, MV_ARGS_P); }

VormStatus n8_ownvormMul_mv_32f_S2(MV_PARAMS(float)) { return mvAnyStride<AsStored>(MV_ARGS); }
VormStatus n8_ownvormMul_mv_64f_S2(MV_PARAMS(double)) { return mvAnyStride<AsStored>(MV_ARGS); }
VormStatus n8_ownvormMul_mv_32f_P(MV_PARAMS_P(float)) { return mvPointers<AsStored>(MV_ARGS_P); }
VormStatus n8_ownvormMul_mv_64f_P(MV_PARAMS_P(double)) { return mvPointers<AsStored>(MV_ARGS_P); }
}
