// vormCopy_va: the kernels, which take any strides, single precision.

#include "movement/shapes/copy_va.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormCopy_va_32f_SS(COPY_VA_PARAMS_SS(float)) { return copyKernel(copyVaSS(COPY_VA_ARGS_SS)); }
VormStatus n8_ownvormCopy_va_32f_SP(COPY_VA_PARAMS_SP(float)) { return copyKernel(copyVaSP(COPY_VA_ARGS_SP)); }
VormStatus n8_ownvormCopy_va_32f_SL(COPY_VA_PARAMS_SL(float)) { return copyKernel(copyVaSL(COPY_VA_ARGS_SL)); }
VormStatus n8_ownvormCopy_va_32f_PS(COPY_VA_PARAMS_PS(float)) { return copyKernel(copyVaPS(COPY_VA_ARGS_PS)); }
VormStatus n8_ownvormCopy_va_32f_PP(COPY_VA_PARAMS_PP(float)) { return copyKernel(copyVaPP(COPY_VA_ARGS_PP)); }
VormStatus n8_ownvormCopy_va_32f_PL(COPY_VA_PARAMS_PL(float)) { return copyKernel(copyVaPL(COPY_VA_ARGS_PL)); }
VormStatus n8_ownvormCopy_va_32f_LS(COPY_VA_PARAMS_LS(float)) { return copyKernel(copyVaLS(COPY_VA_ARGS_LS)); }
VormStatus n8_ownvormCopy_va_32f_LP(COPY_VA_PARAMS_LP(float)) { return copyKernel(copyVaLP(COPY_VA_ARGS_LP)); }
VormStatus n8_ownvormCopy_va_32f_LL(COPY_VA_PARAMS_LL(float)) { return copyKernel(copyVaLL(COPY_VA_ARGS_LL)); }
}
