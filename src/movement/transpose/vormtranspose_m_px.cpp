// vormTranspose_m: public layers, and the kernels for elements anywhere.

#include "movement/shapes/transpose_m.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormTranspose_m_32f(TRANSPOSE_M_PARAMS(float))
{
    return checked(transposeM(TRANSPOSE_M_ARGS), n8_ownvormTranspose_m_32f, n8_ownvormTranspose_m_32f_S2,
                   TRANSPOSE_M_ARGS);
}
VormStatus n8_vormTranspose_m_64f(TRANSPOSE_M_PARAMS(double))
{
    return checked(transposeM(TRANSPOSE_M_ARGS), n8_ownvormTranspose_m_64f, n8_ownvormTranspose_m_64f_S2,
                   TRANSPOSE_M_ARGS);
}
VormStatus n8_vormTranspose_m_32f_P(TRANSPOSE_M_PARAMS_P(float))
{
    return checked(transposeMP(TRANSPOSE_M_ARGS_P), n8_ownvormTranspose_m_32f_P, TRANSPOSE_M_ARGS_P);
}
VormStatus n8_vormTranspose_m_64f_P(TRANSPOSE_M_PARAMS_P(double))
{
    return checked(transposeMP(TRANSPOSE_M_ARGS_P), n8_ownvormTranspose_m_64f_P, TRANSPOSE_M_ARGS_P);
}

VormStatus n8_ownvormTranspose_m_32f_S2(TRANSPOSE_M_PARAMS(float))
{
    return transposeKernel(transposeM(TRANSPOSE_M_ARGS));
}
VormStatus n8_ownvormTranspose_m_64f_S2(TRANSPOSE_M_PARAMS(double))
{
    return transposeKernel(transposeM(TRANSPOSE_M_ARGS));
}
VormStatus n8_ownvormTranspose_m_32f_P(TRANSPOSE_M_PARAMS_P(float))
{
    return transposeKernel(transposeMP(TRANSPOSE_M_ARGS_P));
}
VormStatus n8_ownvormTranspose_m_64f_P(TRANSPOSE_M_PARAMS_P(double))
{
    return transposeKernel(transposeMP(TRANSPOSE_M_ARGS_P));
}
}
