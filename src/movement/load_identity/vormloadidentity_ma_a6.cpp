// vormLoadIdentity_ma: the kernels for contiguous elements, single precision.

#include "movement/shapes/load_identity_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormLoadIdentity_ma_32f(LOAD_IDENTITY_MA_PARAMS(float))
{
    return identityKernel(withAdjacent(loadIdentityMa(LOAD_IDENTITY_MA_ARGS)));
}
VormStatus n8_ownvormLoadIdentity_ma_32f_L(LOAD_IDENTITY_MA_PARAMS_L(float))
{
    return identityKernel(withAdjacent(loadIdentityMaL(LOAD_IDENTITY_MA_ARGS_L)));
}
}
