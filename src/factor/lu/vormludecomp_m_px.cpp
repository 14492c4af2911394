// vormLUDecomp_m: public layers, the kernels for elements anywhere, and their general routines.

#include "factor/lu/lu_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_vormLUDecomp_m_32f(LU_DECOMP_M_PARAMS(float))
{
    return checked(luDecompM(LU_DECOMP_M_ARGS), n8_ownvormLUDecomp_m_32f, n8_ownvormLUDecomp_m_32f_S2,
                   LU_DECOMP_M_ARGS);
}
VormStatus n8_vormLUDecomp_m_64f(LU_DECOMP_M_PARAMS(double))
{
    return checked(luDecompM(LU_DECOMP_M_ARGS), n8_ownvormLUDecomp_m_64f, n8_ownvormLUDecomp_m_64f_S2,
                   LU_DECOMP_M_ARGS);
}
VormStatus n8_vormLUDecomp_m_32f_P(LU_DECOMP_M_PARAMS_P(float))
{
    return checked(luDecompMP(LU_DECOMP_M_ARGS_P), n8_ownvormLUDecomp_m_32f_P, LU_DECOMP_M_ARGS_P);
}
VormStatus n8_vormLUDecomp_m_64f_P(LU_DECOMP_M_PARAMS_P(double))
{
    return checked(luDecompMP(LU_DECOMP_M_ARGS_P), n8_ownvormLUDecomp_m_64f_P, LU_DECOMP_M_ARGS_P);
}

VormStatus n8_ownvormLUDecomp_m_32f_S2(LU_DECOMP_M_PARAMS(float))
{
    return anyStrideKernel(luDecompM(LU_DECOMP_M_ARGS), n8_ownvormLUDecomp_32f_S2_com);
}
VormStatus n8_ownvormLUDecomp_m_64f_S2(LU_DECOMP_M_PARAMS(double))
{
    return anyStrideKernel(luDecompM(LU_DECOMP_M_ARGS), n8_ownvormLUDecomp_64f_S2_com);
}
VormStatus n8_ownvormLUDecomp_m_32f_P(LU_DECOMP_M_PARAMS_P(float))
{
    return pointerKernel(luDecompMP(LU_DECOMP_M_ARGS_P), n8_ownvormLUDecomp_32f_P_com);
}
VormStatus n8_ownvormLUDecomp_m_64f_P(LU_DECOMP_M_PARAMS_P(double))
{
    return pointerKernel(luDecompMP(LU_DECOMP_M_ARGS_P), n8_ownvormLUDecomp_64f_P_com);
}

VormStatus n8_ownvormLUDecomp_32f_S2_com(LU_COM_PARAMS_S2(float)) { return luComS2(LU_COM_ARGS_S2); }
VormStatus n8_ownvormLUDecomp_64f_S2_com(LU_COM_PARAMS_S2(double)) { return luComS2(LU_COM_ARGS_S2); }
VormStatus n8_ownvormLUDecomp_32f_P_com(LU_COM_PARAMS_P(float)) { return luComP(LU_COM_ARGS_P); }
VormStatus n8_ownvormLUDecomp_64f_P_com(LU_COM_PARAMS_P(double)) { return luComP(LU_COM_ARGS_P); }
}
