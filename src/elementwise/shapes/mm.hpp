// The mm shape: one matrix and one matrix, dst = src1 op src2. A kind reads either one transposed and so makes the
// shapes mt, tm and tt of it.
#pragma once

#include "elementwise/layers.hpp"
#include "elementwise/matrix_kinds.hpp"
#include "frame/call.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define MM_PARAMS(T)                                                                                             \
    const T *pSrc1, int src1Stride1, int src1Stride2, const T *pSrc2, int src2Stride1, int src2Stride2, T *pDst, \
        int dstStride1, int dstStride2, int width, int height
#define MM_ARGS \
    pSrc1, src1Stride1, src1Stride2, pSrc2, src2Stride1, src2Stride2, pDst, dstStride1, dstStride2, width, height
#define MM_PARAMS_P(T)                                                                                           \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, T *const *ppDst, int dstShift, \
        int width, int height
#define MM_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, ppDst, dstShift, width, height

namespace vorm::elementwise {

template <class Kind, class T>
VORM_INLINE auto mm(MM_PARAMS(T))
{
    return callOf<T>(Kind::First::used(Matrix{pSrc1, src1Stride1, src1Stride2}),
                     Kind::Second::used(Matrix{pSrc2, src2Stride1, src2Stride2}), Matrix{pDst, dstStride1, dstStride2},
                     Size{width}, Size{height});
}
template <class Kind, class T>
VORM_INLINE auto mmP(MM_PARAMS_P(T))
{
    return callOf<T>(Kind::First::used(MatrixPointers{ppSrc1, src1Shift, Kind::First::columns(width, height)}),
                     Kind::Second::used(MatrixPointers{ppSrc2, src2Shift, Kind::Second::columns(width, height)}),
                     MatrixPointers{ppDst, dstShift, width}, Size{width}, Size{height});
}

}  // namespace vorm::elementwise
