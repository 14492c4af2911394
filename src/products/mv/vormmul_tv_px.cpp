// vormMul_tv: public layers, and the kernels for elements anywhere.

#include "products/mv.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tv_32f(MV_PARAMS(float))
{
    return mvChecked<Turned>(n8_ownvormMul_tv_32f, n8_ownvormMul_tv_32f_S2, MV_ARGS);
}
VormStatus n8_vormMul_tv_64f(MV_PARAMS(double))
{
    return mvChecked<Turned>(n8_ownvormMul_tv_64f, n8_ownvormMul_tv_64f_S2, MV_ARGS);
}
VormStatus n8_vormMul_tv_32f_P(MV_PARAMS_P(float)) { return mvCheckedP<Turned>(n8_ownvormMul_tv_32f_P, MV_ARGS_P); }
VormStatus n8_vormMul_tv_64f_P(MV_PARAMS_P(double)) { return mvCheckedP<Turned>(n8_ownvormMul_tv_64f_P, MV_ARGS_P); }

VormStatus n8_ownvormMul_tv_32f_S2(MV_PARAMS(float)) { return mvAnyStride<Turned>(MV_ARGS); }
VormStatus n8_ownvormMul_tv_64f_S2(MV_PARAMS(double)) { return mvAnyStride<Turned>(MV_ARGS); }
VormStatus n8_ownvormMul_tv_32f_P(MV_PARAMS_P(float)) { return mvPointers<Turned>(MV_ARGS_P); }
VormStatus n8_ownvormMul_tv_64f_P(MV_PARAMS_P(double)) { return mvPointers<Turned>(MV_ARGS_P); }
}
