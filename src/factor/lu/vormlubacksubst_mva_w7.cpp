// vormLUBackSubst_mva: the kernels for contiguous elements, double precision.

#include "factor/lu/lu_back_subst_calls.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mva_64f(LU_MVA_PARAMS(double)) { return contiguousKernel(luMva(LU_MVA_ARGS)); }
VormStatus n8_ownvormLUBackSubst_mva_64f_L(LU_MVA_PARAMS_L(double)) { return contiguousKernel(luMvaL(LU_MVA_ARGS_L)); }
}
