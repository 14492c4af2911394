// vormFrobNorm_ma: the kernels for contiguous elements, double precision.

#include "measures/calls.hpp"
#include "measures/norms/frobnorm.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownvormFrobNorm_ma_64f(FROB_MA_PARAMS(double))
{
    return contiguousKernel<Norm>(frobNormMa(FROB_MA_ARGS));
}
VormStatus n8_ownvormFrobNorm_ma_64f_L(FROB_MA_PARAMS_L(double))
{
    return contiguousKernel<Norm>(frobNormMaL(FROB_MA_ARGS_L));
}
}
