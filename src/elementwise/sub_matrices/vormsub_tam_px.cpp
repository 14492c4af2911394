// vormSub_tam: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mam.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_tam_32f(MAM_PARAMS(float))
{
    return checked<from(3000), from(2000)>(mam<Tm>(MAM_ARGS), n8_ownOMP_vormSub_tam_32f, n8_ownvormSub_tam_32f,
                                           n8_ownvormSub_tam_32f_S2, MAM_ARGS);
}
VormStatus n8_vormSub_tam_64f(MAM_PARAMS(double))
{
    return checked<from(2000)>(mam<Tm>(MAM_ARGS), n8_ownOMP_vormSub_tam_64f, n8_ownvormSub_tam_64f,
                               n8_ownvormSub_tam_64f_S2, MAM_ARGS);
}
VormStatus n8_vormSub_tam_32f_L(MAM_PARAMS_L(float))
{
    return checked<from(2000)>(mamL<Tm>(MAM_ARGS_L), n8_ownOMP_vormSub_tam_32f_L, n8_ownvormSub_tam_32f_L,
                               n8_ownvormSub_tam_32f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormSub_tam_64f_L(MAM_PARAMS_L(double))
{
    return checked<from(2000)>(mamL<Tm>(MAM_ARGS_L), n8_ownOMP_vormSub_tam_64f_L, n8_ownvormSub_tam_64f_L,
                               n8_ownvormSub_tam_64f_LS2, MAM_ARGS_L);
}
VormStatus n8_vormSub_tam_32f_P(MAM_PARAMS_P(float))
{
    return checked<from(2000)>(mamP<Tm>(MAM_ARGS_P), n8_ownOMP_vormSub_tam_32f_P, n8_ownvormSub_tam_32f_P, MAM_ARGS_P);
}
VormStatus n8_vormSub_tam_64f_P(MAM_PARAMS_P(double))
{
    return checked<from(2000)>(mamP<Tm>(MAM_ARGS_P), n8_ownOMP_vormSub_tam_64f_P, n8_ownvormSub_tam_64f_P, MAM_ARGS_P);
}

VormStatus n8_ownvormSub_tam_32f_S2(MAM_PARAMS(float)) { return anyStrideKernel<Sub>(mam<Tm>(MAM_ARGS)); }
VormStatus n8_ownvormSub_tam_64f_S2(MAM_PARAMS(double)) { return anyStrideKernel<Sub>(mam<Tm>(MAM_ARGS)); }
VormStatus n8_ownvormSub_tam_32f_LS2(MAM_PARAMS_L(float))
{
    return eachSingle(mamL<Tm>(MAM_ARGS_L), n8_ownvormSub_tm_32f_S2);
}
VormStatus n8_ownvormSub_tam_64f_LS2(MAM_PARAMS_L(double))
{
    return eachSingle(mamL<Tm>(MAM_ARGS_L), n8_ownvormSub_tm_64f_S2);
}
VormStatus n8_ownvormSub_tam_32f_P(MAM_PARAMS_P(float)) { return pointerKernel<Sub>(mamP<Tm>(MAM_ARGS_P)); }
VormStatus n8_ownvormSub_tam_64f_P(MAM_PARAMS_P(double)) { return pointerKernel<Sub>(mamP<Tm>(MAM_ARGS_P)); }
}
