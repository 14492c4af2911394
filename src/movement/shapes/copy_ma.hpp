// vormCopy_ma: an array of matrices from one layout into another.
#pragma once

#include "movement/calls.hpp"
#include "movement/layers.hpp"

// The operands by layouts, source and destination, in the order and with the names of the exported prototypes.
#define COPY_MA_PARAMS_SS(T)                                                                                \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T *pDst, int dstStride0, int dstStride1, \
        int dstStride2, int width, int height, int count
#define COPY_MA_ARGS_SS \
    pSrc, srcStride0, srcStride1, srcStride2, pDst, dstStride0, dstStride1, dstStride2, width, height, count
#define COPY_MA_PARAMS_SP(T)                                                                                      \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T *const *ppDst, int dstShift, int dstStride0, \
        int width, int height, int count
#define COPY_MA_ARGS_SP pSrc, srcStride0, srcStride1, srcStride2, ppDst, dstShift, dstStride0, width, height, count
#define COPY_MA_PARAMS_SL(T)                                                                                      \
    const T *pSrc, int srcStride0, int srcStride1, int srcStride2, T *const *ppDst, int dstShift, int dstStride1, \
        int dstStride2, int width, int height, int count
#define COPY_MA_ARGS_SL \
    pSrc, srcStride0, srcStride1, srcStride2, ppDst, dstShift, dstStride1, dstStride2, width, height, count
#define COPY_MA_PARAMS_PS(T)                                                                                      \
    const T *const *ppSrc, int srcShift, int srcStride0, T *pDst, int dstStride0, int dstStride1, int dstStride2, \
        int width, int height, int count
#define COPY_MA_ARGS_PS ppSrc, srcShift, srcStride0, pDst, dstStride0, dstStride1, dstStride2, width, height, count
#define COPY_MA_PARAMS_PP(T)                                                                                       \
    const T *const *ppSrc, int srcShift, int srcStride0, T *const *ppDst, int dstShift, int dstStride0, int width, \
        int height, int count
#define COPY_MA_ARGS_PP ppSrc, srcShift, srcStride0, ppDst, dstShift, dstStride0, width, height, count
#define COPY_MA_PARAMS_PL(T)                                                                            \
    const T *const *ppSrc, int srcShift, int srcStride0, T *const *ppDst, int dstShift, int dstStride1, \
        int dstStride2, int width, int height, int count
#define COPY_MA_ARGS_PL ppSrc, srcShift, srcStride0, ppDst, dstShift, dstStride1, dstStride2, width, height, count
#define COPY_MA_PARAMS_LS(T)                                                                                      \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T *pDst, int dstStride0, int dstStride1, \
        int dstStride2, int width, int height, int count
#define COPY_MA_ARGS_LS \
    ppSrc, srcShift, srcStride1, srcStride2, pDst, dstStride0, dstStride1, dstStride2, width, height, count
#define COPY_MA_PARAMS_LP(T)                                                                            \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T *const *ppDst, int dstShift, \
        int dstStride0, int width, int height, int count
#define COPY_MA_ARGS_LP ppSrc, srcShift, srcStride1, srcStride2, ppDst, dstShift, dstStride0, width, height, count
#define COPY_MA_PARAMS_LL(T)                                                                            \
    const T *const *ppSrc, int srcShift, int srcStride1, int srcStride2, T *const *ppDst, int dstShift, \
        int dstStride1, int dstStride2, int width, int height, int count
#define COPY_MA_ARGS_LL \
    ppSrc, srcShift, srcStride1, srcStride2, ppDst, dstShift, dstStride1, dstStride2, width, height, count

namespace vorm::movement {

template <class T>
VORM_INLINE auto copyMaSS(COPY_MA_PARAMS_SS(T))
{
    return callOf<T, MovementTests>(MatrixArray{pSrc, stride0Of<T>(srcStride0, count), srcStride1, srcStride2},
                                    MatrixArray{pDst, stride0Of<T>(dstStride0, count), dstStride1, dstStride2},
                                    Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto copyMaSP(COPY_MA_PARAMS_SP(T))
{
    return callOf<T, MovementTests>(MatrixArray{pSrc, stride0Of<T>(srcStride0, count), srcStride1, srcStride2},
                                    MatrixArrayPointers{ppDst, dstShift, stride0Of<T>(dstStride0, count), width},
                                    Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto copyMaSL(COPY_MA_PARAMS_SL(T))
{
    return callOf<T, MovementTests>(MatrixArray{pSrc, stride0Of<T>(srcStride0, count), srcStride1, srcStride2},
                                    MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyMaPS(COPY_MA_PARAMS_PS(T))
{
    return callOf<T, MovementTests>(MatrixArrayPointers{ppSrc, srcShift, stride0Of<T>(srcStride0, count), width},
                                    MatrixArray{pDst, stride0Of<T>(dstStride0, count), dstStride1, dstStride2},
                                    Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto copyMaPP(COPY_MA_PARAMS_PP(T))
{
    return callOf<T, MovementTests>(MatrixArrayPointers{ppSrc, srcShift, stride0Of<T>(srcStride0, count), width},
                                    MatrixArrayPointers{ppDst, dstShift, stride0Of<T>(dstStride0, count), width},
                                    Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto copyMaPL(COPY_MA_PARAMS_PL(T))
{
    return callOf<T, MovementTests>(MatrixArrayPointers{ppSrc, srcShift, stride0Of<T>(srcStride0, count), width},
                                    MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyMaLS(COPY_MA_PARAMS_LS(T))
{
    return callOf<T, MovementTests>(MatrixList{ppSrc, srcShift, srcStride1, srcStride2},
                                    MatrixArray{pDst, stride0Of<T>(dstStride0, count), dstStride1, dstStride2},
                                    Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto copyMaLP(COPY_MA_PARAMS_LP(T))
{
    return callOf<T, MovementTests>(MatrixList{ppSrc, srcShift, srcStride1, srcStride2},
                                    MatrixArrayPointers{ppDst, dstShift, stride0Of<T>(dstStride0, count), width},
                                    Size{width}, Size{height}, Count{count});
}
template <class T>
VORM_INLINE auto copyMaLL(COPY_MA_PARAMS_LL(T))
{
    return callOf<T, MovementTests>(MatrixList{ppSrc, srcShift, srcStride1, srcStride2},
                                    MatrixList{ppDst, dstShift, dstStride1, dstStride2}, Size{width}, Size{height},
                                    Count{count});
}

}  // namespace vorm::movement
