// vormSub_mma: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mma.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_mma_32f(MMA_PARAMS(float))
{
    return checked<from(3000), from(2000)>(inOrder<StridesFirst>(mma<Mm>(MMA_ARGS)), n8_ownOMP_vormSub_mma_32f,
                                           n8_ownvormSub_mma_32f, n8_ownvormSub_mma_32f_S2, MMA_ARGS);
}
VormStatus n8_vormSub_mma_64f(MMA_PARAMS(double))
{
    return checked<from(2000)>(inOrder<StridesFirst>(mma<Mm>(MMA_ARGS)), n8_ownOMP_vormSub_mma_64f,
                               n8_ownvormSub_mma_64f, n8_ownvormSub_mma_64f_S2, MMA_ARGS);
}
VormStatus n8_vormSub_mma_32f_L(MMA_PARAMS_L(float))
{
    return checked<from(2000)>(mmaL<Mm>(MMA_ARGS_L), n8_ownOMP_vormSub_mma_32f_L, n8_ownvormSub_mma_32f_L,
                               n8_ownvormSub_mma_32f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormSub_mma_64f_L(MMA_PARAMS_L(double))
{
    return checked<from(2000)>(mmaL<Mm>(MMA_ARGS_L), n8_ownOMP_vormSub_mma_64f_L, n8_ownvormSub_mma_64f_L,
                               n8_ownvormSub_mma_64f_LS2, MMA_ARGS_L);
}
VormStatus n8_vormSub_mma_32f_P(MMA_PARAMS_P(float))
{
    return checked<from(2000)>(mmaP<Mm>(MMA_ARGS_P), n8_ownOMP_vormSub_mma_32f_P, n8_ownvormSub_mma_32f_P, MMA_ARGS_P);
}
VormStatus n8_vormSub_mma_64f_P(MMA_PARAMS_P(double))
{
    return checked<from(2000)>(mmaP<Mm>(MMA_ARGS_P), n8_ownOMP_vormSub_mma_64f_P, n8_ownvormSub_mma_64f_P, MMA_ARGS_P);
}

VormStatus n8_ownvormSub_mma_32f_S2(MMA_PARAMS(float)) { return anyStrideKernel<Sub>(mma<Mm>(MMA_ARGS)); }
VormStatus n8_ownvormSub_mma_64f_S2(MMA_PARAMS(double)) { return anyStrideKernel<Sub>(mma<Mm>(MMA_ARGS)); }
VormStatus n8_ownvormSub_mma_32f_LS2(MMA_PARAMS_L(float))
{
    return eachSingle(mmaL<Mm>(MMA_ARGS_L), n8_ownvormSub_mm_32f_S2);
}
VormStatus n8_ownvormSub_mma_64f_LS2(MMA_PARAMS_L(double))
{
    return eachSingle(mmaL<Mm>(MMA_ARGS_L), n8_ownvormSub_mm_64f_S2);
}
VormStatus n8_ownvormSub_mma_32f_P(MMA_PARAMS_P(float)) { return pointerKernel<Sub>(mmaP<Mm>(MMA_ARGS_P)); }
VormStatus n8_ownvormSub_mma_64f_P(MMA_PARAMS_P(double)) { return pointerKernel<Sub>(mmaP<Mm>(MMA_ARGS_P)); }
}
