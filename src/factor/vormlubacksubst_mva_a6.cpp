// vormLUBackSubst_mva: the kernels for contiguous elements, single precision.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mva_32f(LU_MVA_PARAMS(float)) { return luMvaContiguous(LU_MVA_ARGS); }
VormStatus n8_ownvormLUBackSubst_mva_32f_L(LU_MVA_PARAMS_L(float)) { return luMvaContiguousL(LU_MVA_ARGS_L); }

}
