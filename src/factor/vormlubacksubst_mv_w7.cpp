// vormLUBackSubst_mv: the kernel for contiguous elements, double precision.

#include "factor/lu_back_subst.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_ownvormLUBackSubst_mv_64f(LU_MV_PARAMS(double)) { return luMvContiguous(LU_MV_ARGS); }

}
