// vormMul_tt: public layers, and the kernels for elements anywhere.

#include "products/mm.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_tt_32f(MM_PARAMS(float))
{
    return mmChecked<Tt>(n8_ownvormMul_tt_32f, n8_ownvormMul_tt_32f_S2, MM_ARGS);
}
VormStatus n8_vormMul_tt_64f(MM_PARAMS(double))
{
    return mmChecked<Tt>(n8_ownvormMul_tt_64f, n8_ownvormMul_tt_64f_S2, MM_ARGS);
}
VormStatus n8_vormMul_tt_32f_P(MM_PARAMS_P(float))
{
    return mmCheckedP<Tt>(n8_ownvormMul_tt_32f_P, MM_ARGS_P);
}
VormStatus n8_vormMul_tt_64f_P(MM_PARAMS_P(double))
{
    return mmCheckedP<Tt>(n8_ownvormMul_tt_64f_P, MM_ARGS_P);
}

VormStatus n8_ownvormMul_tt_32f_S2(MM_PARAMS(float)) { return mmAnyStride<Tt>(MM_ARGS); }
VormStatus n8_ownvormMul_tt_64f_S2(MM_PARAMS(double)) { return mmAnyStride<Tt>(MM_ARGS); }
VormStatus n8_ownvormMul_tt_32f_P(MM_PARAMS_P(float)) { return mmPointers<Tt, Outermost::columns>(MM_ARGS_P); }
VormStatus n8_ownvormMul_tt_64f_P(MM_PARAMS_P(double)) { return mmPointers<Tt, Outermost::columns>(MM_ARGS_P); }

}
