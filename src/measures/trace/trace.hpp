// vormTrace of one matrix (m) and of an array of matrices (ma).
#pragma once

#include "frame/call.hpp"
#include "measures/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define TRACE_M_PARAMS(T) const T *pSrc, int srcStride1, int srcStride2, T *pDst, int widthHeight
#define TRACE_M_ARGS pSrc, srcStride1, srcStride2, pDst, widthHeight
#define TRACE_M_PARAMS_P(T) const T *const *ppSrc, int srcShift, T *pDst, int widthHeight
#define TRACE_M_ARGS_P ppSrc, srcShift, pDst, widthHeight
#define TRACE_MA_PARAMS(T) \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T *pDst, int widthHeight, int count
#define TRACE_MA_ARGS pSrc, srcStride0, srcStride1, srcStride2, pDst, widthHeight, count
#define TRACE_MA_PARAMS_L(T) \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T *pDst, int widthHeight, int count
#define TRACE_MA_ARGS_L ppSrc, srcShift, srcStride1, srcStride2, pDst, widthHeight, count
#define TRACE_MA_PARAMS_P(T) const T *const *ppSrc, int srcShift, int srcStride0, T *pDst, int widthHeight, int count
#define TRACE_MA_ARGS_P ppSrc, srcShift, srcStride0, pDst, widthHeight, count

namespace vorm::measures {

template <class T>
VORM_INLINE constexpr Work traceWork(int widthHeight, int count)
{
    return workOf(wrapMul(widthHeight, count), byType<T>(190, 260), widthHeight, count);
}

template <class T>
VORM_INLINE auto traceM(TRACE_M_PARAMS(T))
{
    return callOf<T>(Matrix{pSrc, srcStride1, srcStride2}, ObjectTable{pDst, 1}, Size{widthHeight});
}
template <class T>
VORM_INLINE auto traceMP(TRACE_M_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{ppSrc, srcShift, widthHeight}, ObjectTable{pDst, 1}, Size{widthHeight});
}
template <class T>
VORM_INLINE auto traceMa(TRACE_MA_PARAMS(T))
{
    return arrayCallOf<T>(traceWork<T>(widthHeight, count), count,
                          MatrixArray{pSrc, srcStride0, srcStride1, srcStride2}, ObjectTable{pDst, 1},
                          Size{widthHeight});
}
template <class T>
VORM_INLINE auto traceMaL(TRACE_MA_PARAMS_L(T))
{
    return arrayCallOf<T>(traceWork<T>(widthHeight, count), count, MatrixList{ppSrc, srcShift, srcStride1, srcStride2},
                          ObjectTable{pDst, 1}, Size{widthHeight});
}
template <class T>
VORM_INLINE auto traceMaP(TRACE_MA_PARAMS_P(T))
{
    return arrayCallOf<T>(traceWork<T>(widthHeight, count), count,
                          MatrixArrayPointers{ppSrc, srcShift, srcStride0, widthHeight}, ObjectTable{pDst, 1},
                          Size{widthHeight});
}

}  // namespace vorm::measures
