// vormExtract_ma: public layers, and the kernels for elements anywhere.

#include "movement/shapes/extract_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormExtract_ma_32f(EXTRACT_MA_PARAMS(float))
{
    return checked(extractMa<AsStored>(EXTRACT_MA_ARGS), n8_ownvormExtract_ma_32f, n8_ownvormExtract_ma_32f_S2,
                   EXTRACT_MA_ARGS);
}
VormStatus n8_vormExtract_ma_64f(EXTRACT_MA_PARAMS(double))
{
    return checked(extractMa<AsStored>(EXTRACT_MA_ARGS), n8_ownvormExtract_ma_64f, n8_ownvormExtract_ma_64f_S2,
                   EXTRACT_MA_ARGS);
}
VormStatus n8_vormExtract_ma_32f_L(EXTRACT_MA_PARAMS_L(float))
{
    return checked(extractMaL<AsStored>(EXTRACT_MA_ARGS_L), n8_ownvormExtract_ma_32f_L, n8_ownvormExtract_ma_32f_LS2,
                   EXTRACT_MA_ARGS_L);
}
VormStatus n8_vormExtract_ma_64f_L(EXTRACT_MA_PARAMS_L(double))
{
    return checked(extractMaL<AsStored>(EXTRACT_MA_ARGS_L), n8_ownvormExtract_ma_64f_L, n8_ownvormExtract_ma_64f_LS2,
                   EXTRACT_MA_ARGS_L);
}
VormStatus n8_vormExtract_ma_32f_P(EXTRACT_MA_PARAMS_P(float))
{
    return checked(extractMaP<AsStored>(EXTRACT_MA_ARGS_P), n8_ownvormExtract_ma_32f_P, EXTRACT_MA_ARGS_P);
}
VormStatus n8_vormExtract_ma_64f_P(EXTRACT_MA_PARAMS_P(double))
{
    return checked(extractMaP<AsStored>(EXTRACT_MA_ARGS_P), n8_ownvormExtract_ma_64f_P, EXTRACT_MA_ARGS_P);
}

VormStatus n8_ownvormExtract_ma_32f_S2(EXTRACT_MA_PARAMS(float))
{
    return extractKernel(extractMa<AsStored>(EXTRACT_MA_ARGS));
}
VormStatus n8_ownvormExtract_ma_64f_S2(EXTRACT_MA_PARAMS(double))
{
    return extractKernel(extractMa<AsStored>(EXTRACT_MA_ARGS));
}
VormStatus n8_ownvormExtract_ma_32f_LS2(EXTRACT_MA_PARAMS_L(float))
{
    return extractKernel(extractMaL<AsStored>(EXTRACT_MA_ARGS_L));
}
VormStatus n8_ownvormExtract_ma_64f_LS2(EXTRACT_MA_PARAMS_L(double))
{
    return extractKernel(extractMaL<AsStored>(EXTRACT_MA_ARGS_L));
}
VormStatus n8_ownvormExtract_ma_32f_P(EXTRACT_MA_PARAMS_P(float))
{
    return extractKernel(extractMaP<AsStored>(EXTRACT_MA_ARGS_P));
}
VormStatus n8_ownvormExtract_ma_64f_P(EXTRACT_MA_PARAMS_P(double))
{
    return extractKernel(extractMaP<AsStored>(EXTRACT_MA_ARGS_P));
}
}
