// vormCopy_va: the kernels, which take any strides, double precision.

#include "movement/shapes/copy_va.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormCopy_va_64f_SS(COPY_VA_PARAMS_SS(double)) { return copyKernel(copyVaSS(COPY_VA_ARGS_SS)); }
VormStatus n8_ownvormCopy_va_64f_SP(COPY_VA_PARAMS_SP(double)) { return copyKernel(copyVaSP(COPY_VA_ARGS_SP)); }
VormStatus n8_ownvormCopy_va_64f_SL(COPY_VA_PARAMS_SL(double)) { return copyKernel(copyVaSL(COPY_VA_ARGS_SL)); }
VormStatus n8_ownvormCopy_va_64f_PS(COPY_VA_PARAMS_PS(double)) { return copyKernel(copyVaPS(COPY_VA_ARGS_PS)); }
VormStatus n8_ownvormCopy_va_64f_PP(COPY_VA_PARAMS_PP(double)) { return copyKernel(copyVaPP(COPY_VA_ARGS_PP)); }
VormStatus n8_ownvormCopy_va_64f_PL(COPY_VA_PARAMS_PL(double)) { return copyKernel(copyVaPL(COPY_VA_ARGS_PL)); }
VormStatus n8_ownvormCopy_va_64f_LS(COPY_VA_PARAMS_LS(double)) { return copyKernel(copyVaLS(COPY_VA_ARGS_LS)); }
VormStatus n8_ownvormCopy_va_64f_LP(COPY_VA_PARAMS_LP(double)) { return copyKernel(copyVaLP(COPY_VA_ARGS_LP)); }
VormStatus n8_ownvormCopy_va_64f_LL(COPY_VA_PARAMS_LL(double)) { return copyKernel(copyVaLL(COPY_VA_ARGS_LL)); }
}
