// vormSub_cva: public layers, and the kernels for elements anywhere.

#include "elementwise/vac.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormSub_cva_32f(VAC_PARAMS(float))
{
    return vacChecked<4799, Work::objects>(n8_ownOMP_vormSub_cva_32f, n8_ownvormSub_cva_32f, n8_ownvormSub_cva_32f_S2,
                                           VAC_ARGS);
}
VormStatus n8_vormSub_cva_64f(VAC_PARAMS(double))
{
    return vacChecked<1399, Work::objects>(n8_ownOMP_vormSub_cva_64f, n8_ownvormSub_cva_64f, n8_ownvormSub_cva_64f_S2,
                                           VAC_ARGS);
}
VormStatus n8_vormSub_cva_32f_L(VAC_PARAMS_L(float))
{
    return vacCheckedL<2499, Work::objects>(n8_ownOMP_vormSub_cva_32f_L, n8_ownvormSub_cva_32f_L,
                                            n8_ownvormSub_cva_32f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormSub_cva_64f_L(VAC_PARAMS_L(double))
{
    return vacCheckedL<2499, Work::objects>(n8_ownOMP_vormSub_cva_64f_L, n8_ownvormSub_cva_64f_L,
                                            n8_ownvormSub_cva_64f_LS2, VAC_ARGS_L);
}
VormStatus n8_vormSub_cva_32f_P(VAC_PARAMS_P(float))
{
    return vacCheckedP<1499, Work::objects>(n8_ownOMP_vormSub_cva_32f_P, n8_ownvormSub_cva_32f_P, VAC_ARGS_P);
}
VormStatus n8_vormSub_cva_64f_P(VAC_PARAMS_P(double))
{
    return vacCheckedP<1499, Work::objects>(n8_ownOMP_vormSub_cva_64f_P, n8_ownvormSub_cva_64f_P, VAC_ARGS_P);
}

VormStatus n8_ownvormSub_cva_32f_S2(VAC_PARAMS(float)) { return vacAnyStride<SubFrom>(VAC_ARGS); }
VormStatus n8_ownvormSub_cva_64f_S2(VAC_PARAMS(double)) { return vacAnyStride<SubFrom>(VAC_ARGS); }
VormStatus n8_ownvormSub_cva_32f_LS2(VAC_PARAMS_L(float)) { return vacAnyStrideL<SubFrom>(VAC_ARGS_L); }
VormStatus n8_ownvormSub_cva_64f_LS2(VAC_PARAMS_L(double)) { return vacAnyStrideL<SubFrom>(VAC_ARGS_L); }
VormStatus n8_ownvormSub_cva_32f_P(VAC_PARAMS_P(float)) { return vacPointers<SubFrom>(VAC_ARGS_P); }
VormStatus n8_ownvormSub_cva_64f_P(VAC_PARAMS_P(double)) { return vacPointers<SubFrom>(VAC_ARGS_P); }
}
