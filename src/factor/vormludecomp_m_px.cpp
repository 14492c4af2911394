// vormLUDecomp_m: public layers, the kernels for elements anywhere, and their general routines.

#include "factor/lu_decomp.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormLUDecomp_m_32f(LU_DECOMP_M_PARAMS(float))
{
    return luDecompMChecked(n8_ownvormLUDecomp_m_32f, n8_ownvormLUDecomp_m_32f_S2, LU_DECOMP_M_ARGS);
}
VormStatus n8_vormLUDecomp_m_64f(LU_DECOMP_M_PARAMS(double))
{
    return luDecompMChecked(n8_ownvormLUDecomp_m_64f, n8_ownvormLUDecomp_m_64f_S2, LU_DECOMP_M_ARGS);
}
VormStatus n8_vormLUDecomp_m_32f_P(LU_DECOMP_M_PARAMS_P(float))
{
    return luDecompMCheckedP(n8_ownvormLUDecomp_m_32f_P, LU_DECOMP_M_ARGS_P);
}
VormStatus n8_vormLUDecomp_m_64f_P(LU_DECOMP_M_PARAMS_P(double))
{
    return luDecompMCheckedP(n8_ownvormLUDecomp_m_64f_P, LU_DECOMP_M_ARGS_P);
}

VormStatus n8_ownvormLUDecomp_m_32f_S2(LU_DECOMP_M_PARAMS(float))
{
    return luDecompMAnyStride(n8_ownvormLUDecomp_32f_S2_com, LU_DECOMP_M_ARGS);
}
VormStatus n8_ownvormLUDecomp_m_64f_S2(LU_DECOMP_M_PARAMS(double))
{
    return luDecompMAnyStride(n8_ownvormLUDecomp_64f_S2_com, LU_DECOMP_M_ARGS);
}
VormStatus n8_ownvormLUDecomp_m_32f_P(LU_DECOMP_M_PARAMS_P(float))
{
    return luDecompMPointers(n8_ownvormLUDecomp_32f_P_com, LU_DECOMP_M_ARGS_P);
}
VormStatus n8_ownvormLUDecomp_m_64f_P(LU_DECOMP_M_PARAMS_P(double))
{
    return luDecompMPointers(n8_ownvormLUDecomp_64f_P_com, LU_DECOMP_M_ARGS_P);
}

VormStatus n8_ownvormLUDecomp_32f_S2_com(LU_COM_PARAMS_S2(float)) { return luComS2(LU_COM_ARGS_S2); }
VormStatus n8_ownvormLUDecomp_64f_S2_com(LU_COM_PARAMS_S2(double)) { return luComS2(LU_COM_ARGS_S2); }
VormStatus n8_ownvormLUDecomp_32f_P_com(LU_COM_PARAMS_P(float)) { return luComP(LU_COM_ARGS_P); }
VormStatus n8_ownvormLUDecomp_64f_P_com(LU_COM_PARAMS_P(double)) { return luComP(LU_COM_ARGS_P); }

}
