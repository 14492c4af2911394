// vormCopy_ma: public layers.

#include "movement/shapes/copy_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_vormCopy_ma_32f_SS(COPY_MA_PARAMS_SS(float))
{
    return checked(copyMaSS(COPY_MA_ARGS_SS), n8_ownvormCopy_ma_32f_SS, COPY_MA_ARGS_SS);
}
VormStatus n8_vormCopy_ma_64f_SS(COPY_MA_PARAMS_SS(double))
{
    return checked(copyMaSS(COPY_MA_ARGS_SS), n8_ownvormCopy_ma_64f_SS, COPY_MA_ARGS_SS);
}
VormStatus n8_vormCopy_ma_32f_SP(COPY_MA_PARAMS_SP(float))
{
    return checked(copyMaSP(COPY_MA_ARGS_SP), n8_ownvormCopy_ma_32f_SP, COPY_MA_ARGS_SP);
}
VormStatus n8_vormCopy_ma_64f_SP(COPY_MA_PARAMS_SP(double))
{
    return checked(copyMaSP(COPY_MA_ARGS_SP), n8_ownvormCopy_ma_64f_SP, COPY_MA_ARGS_SP);
}
VormStatus n8_vormCopy_ma_32f_SL(COPY_MA_PARAMS_SL(float))
{
    return checked(copyMaSL(COPY_MA_ARGS_SL), n8_ownvormCopy_ma_32f_SL, COPY_MA_ARGS_SL);
}
VormStatus n8_vormCopy_ma_64f_SL(COPY_MA_PARAMS_SL(double))
{
    return checked(copyMaSL(COPY_MA_ARGS_SL), n8_ownvormCopy_ma_64f_SL, COPY_MA_ARGS_SL);
}
VormStatus n8_vormCopy_ma_32f_PS(COPY_MA_PARAMS_PS(float))
{
    return checked(copyMaPS(COPY_MA_ARGS_PS), n8_ownvormCopy_ma_32f_PS, COPY_MA_ARGS_PS);
}
VormStatus n8_vormCopy_ma_64f_PS(COPY_MA_PARAMS_PS(double))
{
    return checked(copyMaPS(COPY_MA_ARGS_PS), n8_ownvormCopy_ma_64f_PS, COPY_MA_ARGS_PS);
}
VormStatus n8_vormCopy_ma_32f_PP(COPY_MA_PARAMS_PP(float))
{
    return checked(copyMaPP(COPY_MA_ARGS_PP), n8_ownvormCopy_ma_32f_PP, COPY_MA_ARGS_PP);
}
VormStatus n8_vormCopy_ma_64f_PP(COPY_MA_PARAMS_PP(double))
{
    return checked(copyMaPP(COPY_MA_ARGS_PP), n8_ownvormCopy_ma_64f_PP, COPY_MA_ARGS_PP);
}
VormStatus n8_vormCopy_ma_32f_PL(COPY_MA_PARAMS_PL(float))
{
    return checked(copyMaPL(COPY_MA_ARGS_PL), n8_ownvormCopy_ma_32f_PL, COPY_MA_ARGS_PL);
}
VormStatus n8_vormCopy_ma_64f_PL(COPY_MA_PARAMS_PL(double))
{
    return checked(copyMaPL(COPY_MA_ARGS_PL), n8_ownvormCopy_ma_64f_PL, COPY_MA_ARGS_PL);
}
VormStatus n8_vormCopy_ma_32f_LS(COPY_MA_PARAMS_LS(float))
{
    return checked(copyMaLS(COPY_MA_ARGS_LS), n8_ownvormCopy_ma_32f_LS, COPY_MA_ARGS_LS);
}
VormStatus n8_vormCopy_ma_64f_LS(COPY_MA_PARAMS_LS(double))
{
    return checked(copyMaLS(COPY_MA_ARGS_LS), n8_ownvormCopy_ma_64f_LS, COPY_MA_ARGS_LS);
}
VormStatus n8_vormCopy_ma_32f_LP(COPY_MA_PARAMS_LP(float))
{
    return checked(copyMaLP(COPY_MA_ARGS_LP), n8_ownvormCopy_ma_32f_LP, COPY_MA_ARGS_LP);
}
VormStatus n8_vormCopy_ma_64f_LP(COPY_MA_PARAMS_LP(double))
{
    return checked(copyMaLP(COPY_MA_ARGS_LP), n8_ownvormCopy_ma_64f_LP, COPY_MA_ARGS_LP);
}
VormStatus n8_vormCopy_ma_32f_LL(COPY_MA_PARAMS_LL(float))
{
    return checked(copyMaLL(COPY_MA_ARGS_LL), n8_ownvormCopy_ma_32f_LL, COPY_MA_ARGS_LL);
}
VormStatus n8_vormCopy_ma_64f_LL(COPY_MA_PARAMS_LL(double))
{
    return checked(copyMaLL(COPY_MA_ARGS_LL), n8_ownvormCopy_ma_64f_LL, COPY_MA_ARGS_LL);
}
}
