// vormLoadIdentity_ma: the kernels for contiguous elements, double precision.

#include "movement/shapes/load_identity_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormLoadIdentity_ma_64f(LOAD_IDENTITY_MA_PARAMS(double))
{
    return identityKernel(withAdjacent(loadIdentityMa(LOAD_IDENTITY_MA_ARGS)));
}
VormStatus n8_ownvormLoadIdentity_ma_64f_L(LOAD_IDENTITY_MA_PARAMS_L(double))
{
    return identityKernel(withAdjacent(loadIdentityMaL(LOAD_IDENTITY_MA_ARGS_L)));
}
}
