// vormSub_cva: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vac.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_cva_32f(VAC_PARAMS(float))
{
    return checked<4799>(cvaOf(vac(VAC_ARGS)), n8_ownOMP_vormSub_cva_32f, n8_ownvormSub_cva_32f,
                         n8_ownvormSub_cva_32f_S2, VAC_ARGS);
}
VormStatus n8_vormSub_cva_64f(VAC_PARAMS(double))
{
    return checked<1399>(cvaOf(vac(VAC_ARGS)), n8_ownOMP_vormSub_cva_64f, n8_ownvormSub_cva_64f,
                         n8_ownvormSub_cva_64f_S2, VAC_ARGS);
}
VormStatus n8_vormSub_cva_32f_L(VAC_PARAMS_L(float))
{
    return checked<2499>(cvaOf(vacL(VAC_ARGS_L)), n8_ownOMP_vormSub_cva_32f_L, n8_ownvormSub_cva_32f_L,
                         n8_ownvormSub_cva_32f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormSub_cva_64f_L(VAC_PARAMS_L(double))
{
    return checked<2499>(cvaOf(vacL(VAC_ARGS_L)), n8_ownOMP_vormSub_cva_64f_L, n8_ownvormSub_cva_64f_L,
                         n8_ownvormSub_cva_64f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormSub_cva_32f_P(VAC_PARAMS_P(float))
{
    return checked<1499>(cvaOf(vacP(VAC_ARGS_P)), n8_ownOMP_vormSub_cva_32f_P, n8_ownvormSub_cva_32f_P, VAC_ARGS_P);
}
VormStatus n8_vormSub_cva_64f_P(VAC_PARAMS_P(double))
{
    return checked<1499>(cvaOf(vacP(VAC_ARGS_P)), n8_ownOMP_vormSub_cva_64f_P, n8_ownvormSub_cva_64f_P, VAC_ARGS_P);
}

VormStatus n8_ownvormSub_cva_32f_S2(VAC_PARAMS(float)) { return anyStrideKernel<SubFrom>(vac(VAC_ARGS)); }
VormStatus n8_ownvormSub_cva_64f_S2(VAC_PARAMS(double)) { return anyStrideKernel<SubFrom>(vac(VAC_ARGS)); }
VormStatus n8_ownvormSub_cva_32f_LS2(VAC_PARAMS_L(float)) { return anyStrideKernel<SubFrom>(vacL(VAC_ARGS_L)); }
VormStatus n8_ownvormSub_cva_64f_LS2(VAC_PARAMS_L(double)) { return anyStrideKernel<SubFrom>(vacL(VAC_ARGS_L)); }
VormStatus n8_ownvormSub_cva_32f_P(VAC_PARAMS_P(float)) { return pointerKernel<SubFrom>(vacP(VAC_ARGS_P)); }
VormStatus n8_ownvormSub_cva_64f_P(VAC_PARAMS_P(double)) { return pointerKernel<SubFrom>(vacP(VAC_ARGS_P)); }
}
