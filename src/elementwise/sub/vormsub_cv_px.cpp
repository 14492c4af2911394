// vormSub_cv: public layers, and the kernels for elements anywhere.

#include "elementwise/calls.hpp"
#include "elementwise/shapes/vc.hpp"

using namespace vorm;
using namespace vorm::elementwise;

extern "C" {

VormStatus n8_vormSub_cv_32f(VC_PARAMS(float))
{
    return checked(vc(VC_ARGS), n8_ownvormSub_cv_32f, n8_ownvormSub_cv_32f_S2, VC_ARGS);
}
VormStatus n8_vormSub_cv_64f(VC_PARAMS(double))
{
    return checked(vc(VC_ARGS), n8_ownvormSub_cv_64f, n8_ownvormSub_cv_64f_S2, VC_ARGS);
}
VormStatus n8_vormSub_cv_32f_P(VC_PARAMS_P(float))
{
    return checked(vcP(VC_ARGS_P), n8_ownvormSub_cv_32f_P, VC_ARGS_P);
}
VormStatus n8_vormSub_cv_64f_P(VC_PARAMS_P(double))
{
    return checked(vcP(VC_ARGS_P), n8_ownvormSub_cv_64f_P, VC_ARGS_P);
}

VormStatus n8_ownvormSub_cv_32f_S2(VC_PARAMS(float)) { return anyStrideKernel<SubFrom>(vc(VC_ARGS)); }
VormStatus n8_ownvormSub_cv_64f_S2(VC_PARAMS(double)) { return anyStrideKernel<SubFrom>(vc(VC_ARGS)); }
VormStatus n8_ownvormSub_cv_32f_P(VC_PARAMS_P(float)) { return anyStrideKernel<SubFrom>(vcP(VC_ARGS_P)); }
VormStatus n8_ownvormSub_cv_64f_P(VC_PARAMS_P(double)) { return anyStrideKernel<SubFrom>(vcP(VC_ARGS_P)); }
}
