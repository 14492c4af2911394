// vormGaxpy_mv: public layers, and the kernels for elements anywhere.

#include "products/gaxpy_calls.hpp"
#include "products/shapes/gaxpy_mv.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormGaxpy_mv_32f(GAXPY_MV_PARAMS(float))
{
    return checked(gaxpyMv(GAXPY_MV_ARGS), n8_ownvormGaxpy_mv_32f, n8_ownvormGaxpy_mv_32f_S2, GAXPY_MV_ARGS);
}
VormStatus n8_vormGaxpy_mv_64f(GAXPY_MV_PARAMS(double))
{
    return checked(gaxpyMv(GAXPY_MV_ARGS), n8_ownvormGaxpy_mv_64f, n8_ownvormGaxpy_mv_64f_S2, GAXPY_MV_ARGS);
}
VormStatus n8_vormGaxpy_mv_32f_P(GAXPY_MV_PARAMS_P(float))
{
    return checked(gaxpyMvP(GAXPY_MV_ARGS_P), n8_ownvormGaxpy_mv_32f_P, GAXPY_MV_ARGS_P);
}
VormStatus n8_vormGaxpy_mv_64f_P(GAXPY_MV_PARAMS_P(double))
{
    return checked(gaxpyMvP(GAXPY_MV_ARGS_P), n8_ownvormGaxpy_mv_64f_P, GAXPY_MV_ARGS_P);
}

VormStatus n8_ownvormGaxpy_mv_32f_S2(GAXPY_MV_PARAMS(float)) { return gaxpyAnyStride(gaxpyMv(GAXPY_MV_ARGS)); }
VormStatus n8_ownvormGaxpy_mv_64f_S2(GAXPY_MV_PARAMS(double)) { return gaxpyAnyStride(gaxpyMv(GAXPY_MV_ARGS)); }
VormStatus n8_ownvormGaxpy_mv_32f_P(GAXPY_MV_PARAMS_P(float)) { return gaxpyAnyStride(gaxpyMvP(GAXPY_MV_ARGS_P)); }
VormStatus n8_ownvormGaxpy_mv_64f_P(GAXPY_MV_PARAMS_P(double)) { return gaxpyAnyStride(gaxpyMvP(GAXPY_MV_ARGS_P)); }
}
