// vormExtract_m: public layers, and the kernels for elements anywhere.

#include "movement/shapes/extract_m.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormExtract_m_32f(EXTRACT_M_PARAMS(float))
{
    return checked(extractM<AsStored>(EXTRACT_M_ARGS), n8_ownvormExtract_m_32f, n8_ownvormExtract_m_32f_S2,
                   EXTRACT_M_ARGS);
}
VormStatus n8_vormExtract_m_64f(EXTRACT_M_PARAMS(double))
{
    return checked(extractM<AsStored>(EXTRACT_M_ARGS), n8_ownvormExtract_m_64f, n8_ownvormExtract_m_64f_S2,
                   EXTRACT_M_ARGS);
}
VormStatus n8_vormExtract_m_32f_P(EXTRACT_M_PARAMS_P(float))
{
    return checked(extractMP<AsStored>(EXTRACT_M_ARGS_P), n8_ownvormExtract_m_32f_P, EXTRACT_M_ARGS_P);
}
VormStatus n8_vormExtract_m_64f_P(EXTRACT_M_PARAMS_P(double))
{
    return checked(extractMP<AsStored>(EXTRACT_M_ARGS_P), n8_ownvormExtract_m_64f_P, EXTRACT_M_ARGS_P);
}

VormStatus n8_ownvormExtract_m_32f_S2(EXTRACT_M_PARAMS(float))
{
    return extractKernel(extractM<AsStored>(EXTRACT_M_ARGS));
}
VormStatus n8_ownvormExtract_m_64f_S2(EXTRACT_M_PARAMS(double))
{
    return extractKernel(extractM<AsStored>(EXTRACT_M_ARGS));
}
VormStatus n8_ownvormExtract_m_32f_P(EXTRACT_M_PARAMS_P(float))
{
    return extractKernel(extractMP<AsStored>(EXTRACT_M_ARGS_P));
}
VormStatus n8_ownvormExtract_m_64f_P(EXTRACT_M_PARAMS_P(double))
{
    return extractKernel(extractMP<AsStored>(EXTRACT_M_ARGS_P));
}
}
