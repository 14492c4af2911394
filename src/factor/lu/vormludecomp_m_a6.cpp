// vormLUDecomp_m: the kernel for contiguous elements and its general routine, single precision.

#include "factor/lu/lu_decomp_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUDecomp_m_32f(LU_DECOMP_M_PARAMS(float))
{
    return contiguousKernel(luDecompM(LU_DECOMP_M_ARGS), n8_ownvormLUDecomp_32f_S_com);
}

VormStatus n8_ownvormLUDecomp_32f_S_com(LU_COM_PARAMS_S(float)) { return luComS(LU_COM_ARGS_S); }
}
