// vormSub_tta: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_tta_32f(MMA_PARAMS(float))
{
    return checked<from(3000), from(2000)>(mma<Tt>(MMA_ARGS), n8_ownOMP_vormSub_tta_32f, n8_ownvormSub_tta_32f,
                                           n8_ownvormSub_tta_32f_S2, MMA_ARGS);
}
VormStatus n8_vormSub_tta_64f(MMA_PARAMS(double))
{
    return checked<from(2000)>(mma<Tt>(MMA_ARGS), n8_ownOMP_vormSub_tta_64f, n8_ownvormSub_tta_64f,
                               n8_ownvormSub_tta_64f_S2, MMA_ARGS);
}
VormStatus n8_vormSub_tta_32f_L(MMA_PARAMS_L(float))
{
    return checked<from(2000)>(mmaL<Tt>(MMA_ARGS_L), n8_ownOMP_vormSub_tta_32f_L, n8_ownvormSub_tta_32f_L,
                               n8_ownvormSub_tta_32f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormSub_tta_64f_L(MMA_PARAMS_L(double))
{
    return checked<from(2000)>(mmaL<Tt>(MMA_ARGS_L), n8_ownOMP_vormSub_tta_64f_L, n8_ownvormSub_tta_64f_L,
                               n8_ownvormSub_tta_64f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormSub_tta_32f_P(MMA_PARAMS_P(float))
{
    return checked<from(2000)>(mmaP<Tt>(MMA_ARGS_P), n8_ownOMP_vormSub_tta_32f_P, n8_ownvormSub_tta_32f_P, MMA_ARGS_P);
}
VormStatus n8_vormSub_tta_64f_P(MMA_PARAMS_P(double))
{
    return checked<from(2000)>(mmaP<Tt>(MMA_ARGS_P), n8_ownOMP_vormSub_tta_64f_P, n8_ownvormSub_tta_64f_P, MMA_ARGS_P);
}

VormStatus n8_ownvormSub_tta_32f_S2(MMA_PARAMS(float)) { return anyStrideKernel<Sub>(mma<Tt>(MMA_ARGS)); }
VormStatus n8_ownvormSub_tta_64f_S2(MMA_PARAMS(double)) { return anyStrideKernel<Sub>(mma<Tt>(MMA_ARGS)); }
VormStatus n8_ownvormSub_tta_32f_LS2(MMA_PARAMS_L(float))
{
    return eachSingle(mmaL<Tt>(MMA_ARGS_L), n8_ownvormSub_tt_32f_S2);
}
VormStatus n8_ownvormSub_tta_64f_LS2(MMA_PARAMS_L(double))
{
    return eachSingle(mmaL<Tt>(MMA_ARGS_L), n8_ownvormSub_tt_64f_S2);
}
VormStatus n8_ownvormSub_tta_32f_P(MMA_PARAMS_P(float)) { return pointerKernel<Sub>(mmaP<Tt>(MMA_ARGS_P)); }
VormStatus n8_ownvormSub_tta_64f_P(MMA_PARAMS_P(double)) { return pointerKernel<Sub>(mmaP<Tt>(MMA_ARGS_P)); }
}
