// vormCopy_va: public layers.

#include "movement/shapes/copy_va.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormCopy_va_32f_SS(COPY_VA_PARAMS_SS(float))
{
    return checked(copyVaSS(COPY_VA_ARGS_SS), n8_ownvormCopy_va_32f_SS, COPY_VA_ARGS_SS);
}
VormStatus n8_vormCopy_va_64f_SS(COPY_VA_PARAMS_SS(double))
{
    return checked(copyVaSS(COPY_VA_ARGS_SS), n8_ownvormCopy_va_64f_SS, COPY_VA_ARGS_SS);
}
VormStatus n8_vormCopy_va_32f_SP(COPY_VA_PARAMS_SP(float))
{
    return checked(copyVaSP(COPY_VA_ARGS_SP), n8_ownvormCopy_va_32f_SP, COPY_VA_ARGS_SP);
}
VormStatus n8_vormCopy_va_64f_SP(COPY_VA_PARAMS_SP(double))
{
    return checked(copyVaSP(COPY_VA_ARGS_SP), n8_ownvormCopy_va_64f_SP, COPY_VA_ARGS_SP);
}
VormStatus n8_vormCopy_va_32f_SL(COPY_VA_PARAMS_SL(float))
{
    return checked(copyVaSL(COPY_VA_ARGS_SL), n8_ownvormCopy_va_32f_SL, COPY_VA_ARGS_SL);
}
VormStatus n8_vormCopy_va_64f_SL(COPY_VA_PARAMS_SL(double))
{
    return checked(copyVaSL(COPY_VA_ARGS_SL), n8_ownvormCopy_va_64f_SL, COPY_VA_ARGS_SL);
}
VormStatus n8_vormCopy_va_32f_PS(COPY_VA_PARAMS_PS(float))
{
    return checked(copyVaPS(COPY_VA_ARGS_PS), n8_ownvormCopy_va_32f_PS, COPY_VA_ARGS_PS);
}
VormStatus n8_vormCopy_va_64f_PS(COPY_VA_PARAMS_PS(double))
{
    return checked(copyVaPS(COPY_VA_ARGS_PS), n8_ownvormCopy_va_64f_PS, COPY_VA_ARGS_PS);
}
VormStatus n8_vormCopy_va_32f_PP(COPY_VA_PARAMS_PP(float))
{
    return checked(copyVaPP(COPY_VA_ARGS_PP), n8_ownvormCopy_va_32f_PP, COPY_VA_ARGS_PP);
}
VormStatus n8_vormCopy_va_64f_PP(COPY_VA_PARAMS_PP(double))
{
    return checked(copyVaPP(COPY_VA_ARGS_PP), n8_ownvormCopy_va_64f_PP, COPY_VA_ARGS_PP);
}
VormStatus n8_vormCopy_va_32f_PL(COPY_VA_PARAMS_PL(float))
{
    return checked(copyVaPL(COPY_VA_ARGS_PL), n8_ownvormCopy_va_32f_PL, COPY_VA_ARGS_PL);
}
VormStatus n8_vormCopy_va_64f_PL(COPY_VA_PARAMS_PL(double))
{
    return checked(copyVaPL(COPY_VA_ARGS_PL), n8_ownvormCopy_va_64f_PL, COPY_VA_ARGS_PL);
}
VormStatus n8_vormCopy_va_32f_LS(COPY_VA_PARAMS_LS(float))
{
    return checked(copyVaLS(COPY_VA_ARGS_LS), n8_ownvormCopy_va_32f_LS, COPY_VA_ARGS_LS);
}
VormStatus n8_vormCopy_va_64f_LS(COPY_VA_PARAMS_LS(double))
{
    return checked(copyVaLS(COPY_VA_ARGS_LS), n8_ownvormCopy_va_64f_LS, COPY_VA_ARGS_LS);
}
VormStatus n8_vormCopy_va_32f_LP(COPY_VA_PARAMS_LP(float))
{
    return checked(copyVaLP(COPY_VA_ARGS_LP), n8_ownvormCopy_va_32f_LP, COPY_VA_ARGS_LP);
}
VormStatus n8_vormCopy_va_64f_LP(COPY_VA_PARAMS_LP(double))
{
    return checked(copyVaLP(COPY_VA_ARGS_LP), n8_ownvormCopy_va_64f_LP, COPY_VA_ARGS_LP);
}
VormStatus n8_vormCopy_va_32f_LL(COPY_VA_PARAMS_LL(float))
{
    return checked(copyVaLL(COPY_VA_ARGS_LL), n8_ownvormCopy_va_32f_LL, COPY_VA_ARGS_LL);
}
VormStatus n8_vormCopy_va_64f_LL(COPY_VA_PARAMS_LL(double))
{
    return checked(copyVaLL(COPY_VA_ARGS_LL), n8_ownvormCopy_va_64f_LL, COPY_VA_ARGS_LL);
}
}
