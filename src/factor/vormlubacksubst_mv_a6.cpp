// vormLUBackSubst_mv: the kernel for contiguous elements, single precision.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mv_32f(LU_MV_PARAMS(float)) { return luMvContiguous(LU_MV_ARGS); }

}
