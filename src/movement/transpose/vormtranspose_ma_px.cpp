// vormTranspose_ma: public layers, and the kernels for elements anywhere.

#include "movement/shapes/transpose_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormTranspose_ma_32f(TRANSPOSE_MA_PARAMS(float))
{
    return checked(transposeMa(TRANSPOSE_MA_ARGS), n8_ownvormTranspose_ma_32f, n8_ownvormTranspose_ma_32f_S2,
                   TRANSPOSE_MA_ARGS);
}
VormStatus n8_vormTranspose_ma_64f(TRANSPOSE_MA_PARAMS(double))
{
    return checked(transposeMa(TRANSPOSE_MA_ARGS), n8_ownvormTranspose_ma_64f, n8_ownvormTranspose_ma_64f_S2,
                   TRANSPOSE_MA_ARGS);
}
VormStatus n8_vormTranspose_ma_32f_L(TRANSPOSE_MA_PARAMS_L(float))
{
    return checked(transposeMaL(TRANSPOSE_MA_ARGS_L), n8_ownvormTranspose_ma_32f_L, n8_ownvormTranspose_ma_32f_LS2,
                   TRANSPOSE_MA_ARGS_L);
}
VormStatus n8_vormTranspose_ma_64f_L(TRANSPOSE_MA_PARAMS_L(double))
{
    return checked(transposeMaL(TRANSPOSE_MA_ARGS_L), n8_ownvormTranspose_ma_64f_L, n8_ownvormTranspose_ma_64f_LS2,
                   TRANSPOSE_MA_ARGS_L);
}
VormStatus n8_vormTranspose_ma_32f_P(TRANSPOSE_MA_PARAMS_P(float))
{
    return checked(transposeMaP(TRANSPOSE_MA_ARGS_P), n8_ownvormTranspose_ma_32f_P, TRANSPOSE_MA_ARGS_P);
}
VormStatus n8_vormTranspose_ma_64f_P(TRANSPOSE_MA_PARAMS_P(double))
{
    return checked(transposeMaP(TRANSPOSE_MA_ARGS_P), n8_ownvormTranspose_ma_64f_P, TRANSPOSE_MA_ARGS_P);
}

VormStatus n8_ownvormTranspose_ma_32f_S2(TRANSPOSE_MA_PARAMS(float))
{
    return transposeKernel(transposeMa(TRANSPOSE_MA_ARGS));
}
VormStatus n8_ownvormTranspose_ma_64f_S2(TRANSPOSE_MA_PARAMS(double))
{
    return transposeKernel(transposeMa(TRANSPOSE_MA_ARGS));
}
VormStatus n8_ownvormTranspose_ma_32f_LS2(TRANSPOSE_MA_PARAMS_L(float))
{
    return transposeKernel(transposeMaL(TRANSPOSE_MA_ARGS_L));
}
VormStatus n8_ownvormTranspose_ma_64f_LS2(TRANSPOSE_MA_PARAMS_L(double))
{
    return transposeKernel(transposeMaL(TRANSPOSE_MA_ARGS_L));
}
VormStatus n8_ownvormTranspose_ma_32f_P(TRANSPOSE_MA_PARAMS_P(float))
{
    return transposeKernel(transposeMaP(TRANSPOSE_MA_ARGS_P));
}
VormStatus n8_ownvormTranspose_ma_64f_P(TRANSPOSE_MA_PARAMS_P(double))
{
    return transposeKernel(transposeMaP(TRANSPOSE_MA_ARGS_P));
}
}
