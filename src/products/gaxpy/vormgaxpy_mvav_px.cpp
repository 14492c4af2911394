// vormGaxpy_mvav: public layers, and the kernels for elements anywhere.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mvav.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormGaxpy_mvav_32f(GAXPY_MVAV_PARAMS(float))
{
    return checked<7000, 5000>(gaxpyMvav(GAXPY_MVAV_ARGS), n8_ownOMP_vormGaxpy_mvav_32f, n8_ownvormGaxpy_mvav_32f,
                               n8_ownvormGaxpy_mvav_32f_S2, GAXPY_MVAV_ARGS);
}
VormStatus n8_vormGaxpy_mvav_64f(GAXPY_MVAV_PARAMS(double))
{
    return checked<5000>(gaxpyMvav(GAXPY_MVAV_ARGS), n8_ownOMP_vormGaxpy_mvav_64f, n8_ownvormGaxpy_mvav_64f,
                         n8_ownvormGaxpy_mvav_64f_S2, GAXPY_MVAV_ARGS);
}
VormStatus n8_vormGaxpy_mvav_32f_L(GAXPY_MVAV_PARAMS_L(float))
{
    return checked<7000, 500>(gaxpyMvavL(GAXPY_MVAV_ARGS_L), n8_ownOMP_vormGaxpy_mvav_32f_L, n8_ownvormGaxpy_mvav_32f_L,
                              n8_ownvormGaxpy_mvav_32f_LS2, GAXPY_MVAV_ARGS_L);
}
VormStatus n8_vormGaxpy_mvav_64f_L(GAXPY_MVAV_PARAMS_L(double))
{
    return checked<6000, 5000>(gaxpyMvavL(GAXPY_MVAV_ARGS_L), n8_ownOMP_vormGaxpy_mvav_64f_L,
                               n8_ownvormGaxpy_mvav_64f_L, n8_ownvormGaxpy_mvav_64f_LS2, GAXPY_MVAV_ARGS_L);
}
VormStatus n8_vormGaxpy_mvav_32f_P(GAXPY_MVAV_PARAMS_P(float))
{
    return checked<4500>(gaxpyMvavP(GAXPY_MVAV_ARGS_P), n8_ownOMP_vormGaxpy_mvav_32f_P, n8_ownvormGaxpy_mvav_32f_P,
                         GAXPY_MVAV_ARGS_P);
}
VormStatus n8_vormGaxpy_mvav_64f_P(GAXPY_MVAV_PARAMS_P(double))
{
    return checked<7000>(gaxpyMvavP(GAXPY_MVAV_ARGS_P), n8_ownOMP_vormGaxpy_mvav_64f_P, n8_ownvormGaxpy_mvav_64f_P,
                         GAXPY_MVAV_ARGS_P);
}

VormStatus n8_ownvormGaxpy_mvav_32f_S2(GAXPY_MVAV_PARAMS(float)) { return gaxpyAnyStride(gaxpyMvav(GAXPY_MVAV_ARGS)); }
VormStatus n8_ownvormGaxpy_mvav_64f_S2(GAXPY_MVAV_PARAMS(double)) { return gaxpyAnyStride(gaxpyMvav(GAXPY_MVAV_ARGS)); }
VormStatus n8_ownvormGaxpy_mvav_32f_LS2(GAXPY_MVAV_PARAMS_L(float))
{
    return gaxpyAnyStrideList(gaxpyMvavL(GAXPY_MVAV_ARGS_L));
}
VormStatus n8_ownvormGaxpy_mvav_64f_LS2(GAXPY_MVAV_PARAMS_L(double))
{
    return gaxpyAnyStrideList(gaxpyMvavL(GAXPY_MVAV_ARGS_L));
}
VormStatus n8_ownvormGaxpy_mvav_32f_P(GAXPY_MVAV_PARAMS_P(float))
{
    return gaxpyPointers(gaxpyMvavP(GAXPY_MVAV_ARGS_P));
}
VormStatus n8_ownvormGaxpy_mvav_64f_P(GAXPY_MVAV_PARAMS_P(double))
{
    return gaxpyPointers(gaxpyMvavP(GAXPY_MVAV_ARGS_P));
}
}
