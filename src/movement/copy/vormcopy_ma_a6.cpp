// vormCopy_ma: the kernels, which take any strides, single precision.

#include "movement/shapes/copy_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormCopy_ma_32f_SS(COPY_MA_PARAMS_SS(float)) { return copyKernel(copyMaSS(COPY_MA_ARGS_SS)); }
VormStatus n8_ownvormCopy_ma_32f_SP(COPY_MA_PARAMS_SP(float)) { return copyKernel(copyMaSP(COPY_MA_ARGS_SP)); }
VormStatus n8_ownvormCopy_ma_32f_SL(COPY_MA_PARAMS_SL(float)) { return copyKernel(copyMaSL(COPY_MA_ARGS_SL)); }
VormStatus n8_ownvormCopy_ma_32f_PS(COPY_MA_PARAMS_PS(float)) { return copyKernel(copyMaPS(COPY_MA_ARGS_PS)); }
VormStatus n8_ownvormCopy_ma_32f_PP(COPY_MA_PARAMS_PP(float)) { return copyKernel(copyMaPP(COPY_MA_ARGS_PP)); }
VormStatus n8_ownvormCopy_ma_32f_PL(COPY_MA_PARAMS_PL(float)) { return copyKernel(copyMaPL(COPY_MA_ARGS_PL)); }
VormStatus n8_ownvormCopy_ma_32f_LS(COPY_MA_PARAMS_LS(float)) { return copyKernel(copyMaLS(COPY_MA_ARGS_LS)); }
VormStatus n8_ownvormCopy_ma_32f_LP(COPY_MA_PARAMS_LP(float)) { return copyKernel(copyMaLP(COPY_MA_ARGS_LP)); }
VormStatus n8_ownvormCopy_ma_32f_LL(COPY_MA_PARAMS_LL(float)) { return copyKernel(copyMaLL(COPY_MA_ARGS_LL)); }
}
