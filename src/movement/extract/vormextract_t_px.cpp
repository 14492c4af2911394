// vormExtract_t: public layers, and the kernels for elements anywhere.

#include "movement/shapes/extract_m.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormExtract_t_32f(EXTRACT_M_PARAMS(float))
{
    return checked(extractM<AsTransposed>(EXTRACT_M_ARGS), n8_ownvormExtract_t_32f, n8_ownvormExtract_t_32f_S2,
                   EXTRACT_M_ARGS);
}
VormStatus n8_vormExtract_t_64f(EXTRACT_M_PARAMS(double))
{
    return checked(extractM<AsTransposed>(EXTRACT_M_ARGS), n8_ownvormExtract_t_64f, n8_ownvormExtract_t_64f_S2,
                   EXTRACT_M_ARGS);
}
VormStatus n8_vormExtract_t_32f_P(EXTRACT_M_PARAMS_P(float))
{
    return checked(extractMP<AsTransposed>(EXTRACT_M_ARGS_P), n8_ownvormExtract_t_32f_P, EXTRACT_M_ARGS_P);
}
VormStatus n8_vormExtract_t_64f_P(EXTRACT_M_PARAMS_P(double))
{
    return checked(extractMP<AsTransposed>(EXTRACT_M_ARGS_P), n8_ownvormExtract_t_64f_P, EXTRACT_M_ARGS_P);
}

VormStatus n8_ownvormExtract_t_32f_S2(EXTRACT_M_PARAMS(float))
{
    return extractKernel(extractM<AsTransposed>(EXTRACT_M_ARGS));
}
VormStatus n8_ownvormExtract_t_64f_S2(EXTRACT_M_PARAMS(double))
{
    return extractKernel(extractM<AsTransposed>(EXTRACT_M_ARGS));
}
VormStatus n8_ownvormExtract_t_32f_P(EXTRACT_M_PARAMS_P(float))
{
    return extractKernel(extractMP<AsTransposed>(EXTRACT_M_ARGS_P));
}
VormStatus n8_ownvormExtract_t_64f_P(EXTRACT_M_PARAMS_P(double))
{
    return extractKernel(extractMP<AsTransposed>(EXTRACT_M_ARGS_P));
}
}
