// vormMul_tt: public layers, and the kernels for elements anywhere.

#include "products/shapes/mm.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_tt_32f(MM_PARAMS(float))
{
    return checked(mm<Tt>(MM_ARGS), n8_ownvormMul_tt_32f, n8_ownvormMul_tt_32f_S2, MM_ARGS);
}
VormStatus n8_vormMul_tt_64f(MM_PARAMS(double))
{
    return checked(mm<Tt>(MM_ARGS), n8_ownvormMul_tt_64f, n8_ownvormMul_tt_64f_S2, MM_ARGS);
}
VormStatus n8_vormMul_tt_32f_P(MM_PARAMS_P(float))
{
    return checked(mmP<Tt>(MM_ARGS_P), n8_ownvormMul_tt_32f_P, MM_ARGS_P);
}
VormStatus n8_vormMul_tt_64f_P(MM_PARAMS_P(double))
{
    return checked(mmP<Tt>(MM_ARGS_P), n8_ownvormMul_tt_64f_P, MM_ARGS_P);
}

VormStatus n8_ownvormMul_tt_32f_S2(MM_PARAMS(float)) { return anyStrideKernel<Tt>(mm<Tt>(MM_ARGS)); }
VormStatus n8_ownvormMul_tt_64f_S2(MM_PARAMS(double)) { return anyStrideKernel<Tt>(mm<Tt>(MM_ARGS)); }
VormStatus n8_ownvormMul_tt_32f_P(MM_PARAMS_P(float))
{
    return anyStrideKernel<Tt, Outermost::columns>(mmP<Tt>(MM_ARGS_P));
}
VormStatus n8_ownvormMul_tt_64f_P(MM_PARAMS_P(double))
{
    return anyStrideKernel<Tt, Outermost::columns>(mmP<Tt>(MM_ARGS_P));
}
}
