// vormMul_mt: public layers, and the kernels for elements anywhere.

#include "products/mm.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mt_32f(MM_PARAMS(float))
{
    return mmChecked<Mt>(n8_ownvormMul_mt_32f, n8_ownvormMul_mt_32f_S2, MM_ARGS);
}
VormStatus n8_vormMul_mt_64f(MM_PARAMS(double))
{
    return mmChecked<Mt>(n8_ownvormMul_mt_64f, n8_ownvormMul_mt_64f_S2, MM_ARGS);
}
VormStatus n8_vormMul_mt_32f_P(MM_PARAMS_P(float))
{
    return mmCheckedP<Mt>(n8_ownvormMul_mt_32f_P, MM_ARGS_P);
}
VormStatus n8_vormMul_mt_64f_P(MM_PARAMS_P(double))
{
    return mmCheckedP<Mt>(n8_ownvormMul_mt_64f_P, MM_ARGS_P);
}

VormStatus n8_ownvormMul_mt_32f_S2(MM_PARAMS(float)) { return mmAnyStride<Mt>(MM_ARGS); }
VormStatus n8_ownvormMul_mt_64f_S2(MM_PARAMS(double)) { return mmAnyStride<Mt>(MM_ARGS); }
VormStatus n8_ownvormMul_mt_32f_P(MM_PARAMS_P(float)) { return mmPointers<Mt>(MM_ARGS_P); }
VormStatus n8_ownvormMul_mt_64f_P(MM_PARAMS_P(double)) { return mmPointers<Mt>(MM_ARGS_P); }

}
