// vormLoadIdentity_ma: public layers, and the kernels for elements anywhere.

#include "movement/shapes/load_identity_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormLoadIdentity_ma_32f(LOAD_IDENTITY_MA_PARAMS(float))
{
    return checked(loadIdentityMa(LOAD_IDENTITY_MA_ARGS), n8_ownvormLoadIdentity_ma_32f,
                   n8_ownvormLoadIdentity_ma_32f_S2, LOAD_IDENTITY_MA_ARGS);
}
VormStatus n8_vormLoadIdentity_ma_64f(LOAD_IDENTITY_MA_PARAMS(double))
{
    return checked(loadIdentityMa(LOAD_IDENTITY_MA_ARGS), n8_ownvormLoadIdentity_ma_64f,
                   n8_ownvormLoadIdentity_ma_64f_S2, LOAD_IDENTITY_MA_ARGS);
}
VormStatus n8_vormLoadIdentity_ma_32f_L(LOAD_IDENTITY_MA_PARAMS_L(float))
{
    return checked(loadIdentityMaL(LOAD_IDENTITY_MA_ARGS_L), n8_ownvormLoadIdentity_ma_32f_L,
                   n8_ownvormLoadIdentity_ma_32f_LS2, LOAD_IDENTITY_MA_ARGS_L);
}
VormStatus n8_vormLoadIdentity_ma_64f_L(LOAD_IDENTITY_MA_PARAMS_L(double))
{
    return checked(loadIdentityMaL(LOAD_IDENTITY_MA_ARGS_L), n8_ownvormLoadIdentity_ma_64f_L,
                   n8_ownvormLoadIdentity_ma_64f_LS2, LOAD_IDENTITY_MA_ARGS_L);
}
VormStatus n8_vormLoadIdentity_ma_32f_P(LOAD_IDENTITY_MA_PARAMS_P(float))
{
    return checked(loadIdentityMaP(LOAD_IDENTITY_MA_ARGS_P), n8_ownvormLoadIdentity_ma_32f_P, LOAD_IDENTITY_MA_ARGS_P);
}
VormStatus n8_vormLoadIdentity_ma_64f_P(LOAD_IDENTITY_MA_PARAMS_P(double))
{
    return checked(loadIdentityMaP(LOAD_IDENTITY_MA_ARGS_P), n8_ownvormLoadIdentity_ma_64f_P, LOAD_IDENTITY_MA_ARGS_P);
}

VormStatus n8_ownvormLoadIdentity_ma_32f_S2(LOAD_IDENTITY_MA_PARAMS(float))
{
    return identityKernel(loadIdentityMa(LOAD_IDENTITY_MA_ARGS));
}
VormStatus n8_ownvormLoadIdentity_ma_64f_S2(LOAD_IDENTITY_MA_PARAMS(double))
{
    return identityKernel(loadIdentityMa(LOAD_IDENTITY_MA_ARGS));
}
VormStatus n8_ownvormLoadIdentity_ma_32f_LS2(LOAD_IDENTITY_MA_PARAMS_L(float))
{
    return identityKernel(loadIdentityMaL(LOAD_IDENTITY_MA_ARGS_L));
}
VormStatus n8_ownvormLoadIdentity_ma_64f_LS2(LOAD_IDENTITY_MA_PARAMS_L(double))
{
    return identityKernel(loadIdentityMaL(LOAD_IDENTITY_MA_ARGS_L));
}
VormStatus n8_ownvormLoadIdentity_ma_32f_P(LOAD_IDENTITY_MA_PARAMS_P(float))
{
    return identityKernel(loadIdentityMaP(LOAD_IDENTITY_MA_ARGS_P));
}
VormStatus n8_ownvormLoadIdentity_ma_64f_P(LOAD_IDENTITY_MA_PARAMS_P(double))
{
    return identityKernel(loadIdentityMaP(LOAD_IDENTITY_MA_ARGS_P));
}
}
