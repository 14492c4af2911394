// vormExtract_v: public layers, and the kernels for elements anywhere.

#include "movement/shapes/extract_v.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormExtract_v_32f(EXTRACT_V_PARAMS(float))
{
    return checked(extractV(EXTRACT_V_ARGS), n8_ownvormExtract_v_32f, n8_ownvormExtract_v_32f_S2, EXTRACT_V_ARGS);
}
VormStatus n8_vormExtract_v_64f(EXTRACT_V_PARAMS(double))
{
    return checked(extractV(EXTRACT_V_ARGS), n8_ownvormExtract_v_64f, n8_ownvormExtract_v_64f_S2, EXTRACT_V_ARGS);
}
VormStatus n8_vormExtract_v_32f_P(EXTRACT_V_PARAMS_P(float))
{
    return checked(extractVP(EXTRACT_V_ARGS_P), n8_ownvormExtract_v_32f_P, EXTRACT_V_ARGS_P);
}
VormStatus n8_vormExtract_v_64f_P(EXTRACT_V_PARAMS_P(double))
{
    return checked(extractVP(EXTRACT_V_ARGS_P), n8_ownvormExtract_v_64f_P, EXTRACT_V_ARGS_P);
}

VormStatus n8_ownvormExtract_v_32f_S2(EXTRACT_V_PARAMS(float)) { return extractKernel(extractV(EXTRACT_V_ARGS)); }
VormStatus n8_ownvormExtract_v_64f_S2(EXTRACT_V_PARAMS(double)) { return extractKernel(extractV(EXTRACT_V_ARGS)); }
VormStatus n8_ownvormExtract_v_32f_P(EXTRACT_V_PARAMS_P(float)) { return extractKernel(extractVP(EXTRACT_V_ARGS_P)); }
VormStatus n8_ownvormExtract_v_64f_P(EXTRACT_V_PARAMS_P(double)) { return extractKernel(extractVP(EXTRACT_V_ARGS_P)); }
}
