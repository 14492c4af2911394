// vormTrace_ma: team-parallel drivers.

#include "frame/driver.hpp"
#include "measures/trace/trace.hpp"

using namespace vorm;
using namespace vorm::measures;

extern "C" {

VormStatus n8_ownOMP_vormTrace_ma_32f(TRACE_MA_PARAMS(float))
{
    return team(traceMa(TRACE_MA_ARGS), n8_ownvormTrace_ma_32f, n8_ownvormTrace_ma_32f_S2);
}
VormStatus n8_ownOMP_vormTrace_ma_64f(TRACE_MA_PARAMS(double))
{
    return team(traceMa(TRACE_MA_ARGS), n8_ownvormTrace_ma_64f, n8_ownvormTrace_ma_64f_S2);
}
VormStatus n8_ownOMP_vormTrace_ma_32f_L(TRACE_MA_PARAMS_L(float))
{
    return team(traceMaL(TRACE_MA_ARGS_L), n8_ownvormTrace_ma_32f_L, n8_ownvormTrace_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormTrace_ma_64f_L(TRACE_MA_PARAMS_L(double))
{
    return team(traceMaL(TRACE_MA_ARGS_L), n8_ownvormTrace_ma_64f_L, n8_ownvormTrace_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormTrace_ma_32f_P(TRACE_MA_PARAMS_P(float))
{
    return team(traceMaP(TRACE_MA_ARGS_P), n8_ownvormTrace_ma_32f_P);
}
VormStatus n8_ownOMP_vormTrace_ma_64f_P(TRACE_MA_PARAMS_P(double))
{
    return team(traceMaP(TRACE_MA_ARGS_P), n8_ownvormTrace_ma_64f_P);
}
}
