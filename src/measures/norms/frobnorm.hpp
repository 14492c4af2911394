// vormFrobNorm of one matrix (m) and of an array of matrices (ma).
#pragma once

#include "frame/call.hpp"
#include "measures/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define FROB_M_PARAMS(T) const T *pSrc, int srcStride1, int srcStride2, T *pDst, int width, int height
#define FROB_M_ARGS pSrc, srcStride1, srcStride2, pDst, width, height
#define FROB_M_PARAMS_P(T) const T *const *ppSrc, int srcShift, T *pDst, int width, int height
#define FROB_M_ARGS_P ppSrc, srcShift, pDst, width, height
#define FROB_MA_PARAMS(T) \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T *pDst, int width, int height, int count
#define FROB_MA_ARGS pSrc, srcStride0, srcStride1, srcStride2, pDst, width, height, count
#define FROB_MA_PARAMS_L(T) \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T *pDst, int width, int height, int count
#define FROB_MA_ARGS_L ppSrc, srcShift, srcStride1, srcStride2, pDst, width, height, count
#define FROB_MA_PARAMS_P(T) \
    const T *const *ppSrc, int srcShift, int srcStride0, T *pDst, int width, int height, int count
#define FROB_MA_ARGS_P ppSrc, srcShift, srcStride0, pDst, width, height, count

namespace vorm::measures {

template <class T>
VORM_INLINE constexpr Work frobNormWork(int width, int height, int count)
{
    return workOf(wrapMul(wrapMul(width, height), count), byType<T>(75, 125), width, height, count);
}

template <class T>
VORM_INLINE auto frobNormM(FROB_M_PARAMS(T))
{
    return callOf<T>(Matrix{pSrc, srcStride1, srcStride2}, ObjectTable{pDst, 1}, Size{width}, Size{height});
}
template <class T>
VORM_INLINE auto frobNormMP(FROB_M_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{ppSrc, srcShift, width}, ObjectTable{pDst, 1}, Size{width}, Size{height});
}
template <class T>
VORM_INLINE auto frobNormMa(FROB_MA_PARAMS(T))
{
    return arrayCallOf<T>(frobNormWork<T>(width, height, count), count,
                          MatrixArray{pSrc, srcStride0, srcStride1, srcStride2}, ObjectTable{pDst, 1}, Size{width},
                          Size{height});
}
template <class T>
VORM_INLINE auto frobNormMaL(FROB_MA_PARAMS_L(T))
{
    return arrayCallOf<T>(frobNormWork<T>(width, height, count), count,
                          MatrixList{ppSrc, srcShift, srcStride1, srcStride2}, ObjectTable{pDst, 1}, Size{width},
                          Size{height});
}
template <class T>
VORM_INLINE auto frobNormMaP(FROB_MA_PARAMS_P(T))
{
    return arrayCallOf<T>(frobNormWork<T>(width, height, count), count,
                          MatrixArrayPointers{ppSrc, srcShift, srcStride0, width}, ObjectTable{pDst, 1}, Size{width},
                          Size{height});
}

}  // namespace vorm::measures
