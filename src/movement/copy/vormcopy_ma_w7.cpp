// vormCopy_ma: the kernels, which take any strides, double precision.

#include "movement/shapes/copy_ma.hpp"

using namespace vorm;
using namespace vorm::movement;

extern "C" {

VormStatus n8_ownvormCopy_ma_64f_SS(COPY_MA_PARAMS_SS(double)) { return copyKernel(copyMaSS(COPY_MA_ARGS_SS)); }
VormStatus n8_ownvormCopy_ma_64f_SP(COPY_MA_PARAMS_SP(double)) { return copyKernel(copyMaSP(COPY_MA_ARGS_SP)); }
VormStatus n8_ownvormCopy_ma_64f_SL(COPY_MA_PARAMS_SL(double)) { return copyKernel(copyMaSL(COPY_MA_ARGS_SL)); }
VormStatus n8_ownvormCopy_ma_64f_PS(COPY_MA_PARAMS_PS(double)) { return copyKernel(copyMaPS(COPY_MA_ARGS_PS)); }
VormStatus n8_ownvormCopy_ma_64f_PP(COPY_MA_PARAMS_PP(double)) { return copyKernel(copyMaPP(COPY_MA_ARGS_PP)); }
VormStatus n8_ownvormCopy_ma_64f_PL(COPY_MA_PARAMS_PL(double)) { return copyKernel(copyMaPL(COPY_MA_ARGS_PL)); }
VormStatus n8_ownvormCopy_ma_64f_LS(COPY_MA_PARAMS_LS(double)) { return copyKernel(copyMaLS(COPY_MA_ARGS_LS)); }
VormStatus n8_ownvormCopy_ma_64f_LP(COPY_MA_PARAMS_LP(double)) { return copyKernel(copyMaLP(COPY_MA_ARGS_LP)); }
VormStatus n8_ownvormCopy_ma_64f_LL(COPY_MA_PARAMS_LL(double)) { return copyKernel(copyMaLL(COPY_MA_ARGS_LL)); }
}
