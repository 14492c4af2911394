// vormExtract_va: public layers, and the kernels for elements anywhere.

#include "movement/shapes/extract_va.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormExtract_va_32f(EXTRACT_VA_PARAMS(float))
{
    return checked(extractVa(EXTRACT_VA_ARGS), n8_ownvormExtract_va_32f, n8_ownvormExtract_va_32f_S2, EXTRACT_VA_ARGS);
}
VormStatus n8_vormExtract_va_64f(EXTRACT_VA_PARAMS(double))
{
    return checked(extractVa(EXTRACT_VA_ARGS), n8_ownvormExtract_va_64f, n8_ownvormExtract_va_64f_S2, EXTRACT_VA_ARGS);
}
VormStatus n8_vormExtract_va_32f_L(EXTRACT_VA_PARAMS_L(float))
{
    return checked(extractVaL(EXTRACT_VA_ARGS_L), n8_ownvormExtract_va_32f_L, n8_ownvormExtract_va_32f_LS2,
                   EXTRACT_VA_ARGS_L);
}
VormStatus n8_vormExtract_va_64f_L(EXTRACT_VA_PARAMS_L(double))
{
    return checked(extractVaL(EXTRACT_VA_ARGS_L), n8_ownvormExtract_va_64f_L, n8_ownvormExtract_va_64f_LS2,
                   EXTRACT_VA_ARGS_L);
}
VormStatus n8_vormExtract_va_32f_P(EXTRACT_VA_PARAMS_P(float))
{
    return checked(extractVaP(EXTRACT_VA_ARGS_P), n8_ownvormExtract_va_32f_P, EXTRACT_VA_ARGS_P);
}
VormStatus n8_vormExtract_va_64f_P(EXTRACT_VA_PARAMS_P(double))
{
    return checked(extractVaP(EXTRACT_VA_ARGS_P), n8_ownvormExtract_va_64f_P, EXTRACT_VA_ARGS_P);
}

VormStatus n8_ownvormExtract_va_32f_S2(EXTRACT_VA_PARAMS(float)) { return extractKernel(extractVa(EXTRACT_VA_ARGS)); }
VormStatus n8_ownvormExtract_va_64f_S2(EXTRACT_VA_PARAMS(double)) { return extractKernel(extractVa(EXTRACT_VA_ARGS)); }
VormStatus n8_ownvormExtract_va_32f_LS2(EXTRACT_VA_PARAMS_L(float))
{
    return extractKernel(extractVaL(EXTRACT_VA_ARGS_L));
}
VormStatus n8_ownvormExtract_va_64f_LS2(EXTRACT_VA_PARAMS_L(double))
{
    return extractKernel(extractVaL(EXTRACT_VA_ARGS_L));
}
VormStatus n8_ownvormExtract_va_32f_P(EXTRACT_VA_PARAMS_P(float))
{
    return extractKernel(extractVaP(EXTRACT_VA_ARGS_P));
}
VormStatus n8_ownvormExtract_va_64f_P(EXTRACT_VA_PARAMS_P(double))
{
    return extractKernel(extractVaP(EXTRACT_VA_ARGS_P));
}
}
