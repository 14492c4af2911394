// vormAdd_tata: public layers, and the kernels for elements anywhere.

#include "elementwise/matrix_calls.hpp"
#include "elementwise/shapes/mama.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormAdd_tata_32f(MAMA_PARAMS(float))
{
    return checked<from(3000), from(2000)>(mama<Tt>(MAMA_ARGS), n8_ownOMP_vormAdd_tata_32f, n8_ownvormAdd_tata_32f,
                                           n8_ownvormAdd_tata_32f_S2, MAMA_ARGS);
}
VormStatus n8_vormAdd_tata_64f(MAMA_PARAMS(double))
{
    return checked<from(2000)>(mama<Tt>(MAMA_ARGS), n8_ownOMP_vormAdd_tata_64f, n8_ownvormAdd_tata_64f,
                               n8_ownvormAdd_tata_64f_S2, MAMA_ARGS);
}
VormStatus n8_vormAdd_tata_32f_L(MAMA_PARAMS_L(float))
{
    return checked<from(2000)>(mamaL<Tt>(MAMA_ARGS_L), n8_ownOMP_vormAdd_tata_32f_L, n8_ownvormAdd_tata_32f_L,
                               n8_ownvormAdd_tata_32f_LS2, MAMA_ARGS_L);
}
VormStatus n8_vormAdd_tata_64f_L(MAMA_PARAMS_L(double))
{
    return checked<from(2000)>(mamaL<Tt>(MAMA_ARGS_L), n8_ownOMP_vormAdd_tata_64f_L, n8_ownvormAdd_tata_64f_L,
                               n8_ownvormAdd_tata_64f_LS2, MAMA_ARGS_L);
}
VormStatus n8_vormAdd_tata_32f_P(MAMA_PARAMS_P(float))
{
    return checked<from(2000)>(mamaP<Tt>(MAMA_ARGS_P), n8_ownOMP_vormAdd_tata_32f_P, n8_ownvormAdd_tata_32f_P,
                               MAMA_ARGS_P);
}
VormStatus n8_vormAdd_tata_64f_P(MAMA_PARAMS_P(double))
{
    return checked<from(2000)>(mamaP<Tt>(MAMA_ARGS_P), n8_ownOMP_vormAdd_tata_64f_P, n8_ownvormAdd_tata_64f_P,
                               MAMA_ARGS_P);
}

VormStatus n8_ownvormAdd_tata_32f_S2(MAMA_PARAMS(float)) { return anyStrideKernel<Add>(mama<Tt>(MAMA_ARGS)); }
VormStatus n8_ownvormAdd_tata_64f_S2(MAMA_PARAMS(double)) { return anyStrideKernel<Add>(mama<Tt>(MAMA_ARGS)); }
VormStatus n8_ownvormAdd_tata_32f_LS2(MAMA_PARAMS_L(float))
{
    return eachSingle(mamaL<Tt>(MAMA_ARGS_L), n8_ownvormAdd_tt_32f_S2);
}
VormStatus n8_ownvormAdd_tata_64f_LS2(MAMA_PARAMS_L(double))
{
    return eachSingle(mamaL<Tt>(MAMA_ARGS_L), n8_ownvormAdd_tt_64f_S2);
}
VormStatus n8_ownvormAdd_tata_32f_P(MAMA_PARAMS_P(float)) { return pointerKernel<Add>(mamaP<Tt>(MAMA_ARGS_P)); }
VormStatus n8_ownvormAdd_tata_64f_P(MAMA_PARAMS_P(double)) { return pointerKernel<Add>(mamaP<Tt>(MAMA_ARGS_P)); }
}
