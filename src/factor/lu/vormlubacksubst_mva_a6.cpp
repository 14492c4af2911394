// vormLUBackSubst_mva: the kernels for contiguous elements, single precision.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mva_32f(LU_MVA_PARAMS(float)) { return contiguousKernel(luMva(LU_MVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mva_32f_L(LU_MVA_PARAMS_L(float)) { return contiguousKernel(luMvaL(LU_MVA_ARGS_L)); }
}
