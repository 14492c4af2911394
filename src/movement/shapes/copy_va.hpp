// vormCopy_va: an array of vectors from one layout into another.
#pragma once

#include "movement/calls.hpp"
#include "movement/layers.hpp"

// The operands by layouts, source and destination, in the order and with the names of the exported prototypes.
#define COPY_VA_PARAMS_SS(T) \
    const T *pSrc, int srcStride0, int srcStride2, T *pDst, int dstStride0, int dstStride2, int len, int count
#define COPY_VA_ARGS_SS pSrc, srcStride0, srcStride2, pDst, dstStride0, dstStride2, len, count
#define COPY_VA_PARAMS_SP(T) \
    const T *pSrc, int srcStride0, int srcStride2, T *const *ppDst, int dstShift, int dstStride0, int len, int count
#define COPY_VA_ARGS_SP pSrc, srcStride0, srcStride2, ppDst, dstShift, dstStride0, len, count
#define COPY_VA_PARAMS_SL(T) \
    const T *pSrc, int srcStride0, int srcStride2, T *const *ppDst, int dstShift, int dstStride2, int len, int count
#define COPY_VA_ARGS_SL pSrc, srcStride0, srcStride2, ppDst, dstShift, dstStride2, len, count
#define COPY_VA_PARAMS_PS(T) \
    const T *const *ppSrc, int srcShift, int srcStride0, T *pDst, int dstStride0, int dstStride2, int len, int count
#define COPY_VA_ARGS_PS ppSrc, srcShift, srcStride0, pDst, dstStride0, dstStride2, len, count
#define COPY_VA_PARAMS_PP(T)                                                                                     \
    const T *const *ppSrc, int srcShift, int srcStride0, T *const *ppDst, int dstShift, int dstStride0, int len, \
        int count
#define COPY_VA_ARGS_PP ppSrc, srcShift, srcStride0, ppDst, dstShift, dstStride0, len, count
#define COPY_VA_PARAMS_PL(T)                                                                                     \
    const T *const *ppSrc, int srcShift, int srcStride0, T *const *ppDst, int dstShift, int dstStride2, int len, \
        int count
#define COPY_VA_ARGS_PL ppSrc, srcShift, srcStride0, ppDst, dstShift, dstStride2, len, count
#define COPY_VA_PARAMS_LS(T) \
    const T *const *ppSrc, int srcShift, int srcStride2, T *pDst, int dstStride0, int dstStride2, int len, int count
#define COPY_VA_ARGS_LS ppSrc, srcShift, srcStride2, pDst, dstStride0, dstStride2, len, count
#define COPY_VA_PARAMS_LP(T)                                                                                     \
    const T *const *ppSrc, int srcShift, int srcStride2, T *const *ppDst, int dstShift, int dstStride0, int len, \
        int count
#define COPY_VA_ARGS_LP ppSrc, srcShift, srcStride2, ppDst, dstShift, dstStride0, len, count
#define COPY_VA_PARAMS_LL(T)                                                                                     \
    const T *const *ppSrc, int srcShift, int srcStride2, T *const *ppDst, int dstShift, int dstStride2, int len, \
        int count
#define COPY_VA_ARGS_LL ppSrc, srcShift, srcStride2, ppDst, dstShift, dstStride2, len, count

namespace vorm::movement {

template <class T>
VORM_INLINE auto copyVaSS(COPY_VA_PARAMS_SS(T))
{
    return callOf<T, MovementTests>(VectorArray{pSrc, stride0Of<T>(srcStride0, count), srcStride2},
                                    VectorArray{pDst, stride0Of<T>(dstStride0, count), dstStride2}, Size{len},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyVaSP(COPY_VA_PARAMS_SP(T))
{
    return callOf<T, MovementTests>(VectorArray{pSrc, stride0Of<T>(srcStride0, count), srcStride2},
                                    VectorArrayPointers{ppDst, dstShift, stride0Of<T>(dstStride0, count)}, Size{len},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyVaSL(COPY_VA_PARAMS_SL(T))
{
    return callOf<T, MovementTests>(VectorArray{pSrc, stride0Of<T>(srcStride0, count), srcStride2},
                                    VectorList{ppDst, dstShift, dstStride2}, Size{len}, Count{count});
}
template <class T>
VORM_INLINE auto copyVaPS(COPY_VA_PARAMS_PS(T))
{
    return callOf<T, MovementTests>(VectorArrayPointers{ppSrc, srcShift, stride0Of<T>(srcStride0, count)},
                                    VectorArray{pDst, stride0Of<T>(dstStride0, count), dstStride2}, Size{len},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyVaPP(COPY_VA_PARAMS_PP(T))
{
    return callOf<T, MovementTests>(VectorArrayPointers{ppSrc, srcShift, stride0Of<T>(srcStride0, count)},
                                    VectorArrayPointers{ppDst, dstShift, stride0Of<T>(dstStride0, count)}, Size{len},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyVaPL(COPY_VA_PARAMS_PL(T))
{
    return callOf<T, MovementTests>(VectorArrayPointers{ppSrc, srcShift, stride0Of<T>(srcStride0, count)},
                                    VectorList{ppDst, dstShift, dstStride2}, Size{len}, Count{count});
}
template <class T>
VORM_INLINE auto copyVaLS(COPY_VA_PARAMS_LS(T))
{
    return callOf<T, MovementTests>(VectorList{ppSrc, srcShift, srcStride2},
                                    VectorArray{pDst, stride0Of<T>(dstStride0, count), dstStride2}, Size{len},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyVaLP(COPY_VA_PARAMS_LP(T))
{
    return callOf<T, MovementTests>(VectorList{ppSrc, srcShift, srcStride2},
                                    VectorArrayPointers{ppDst, dstShift, stride0Of<T>(dstStride0, count)}, Size{len},
                                    Count{count});
}
template <class T>
VORM_INLINE auto copyVaLL(COPY_VA_PARAMS_LL(T))
{
    return callOf<T, MovementTests>(VectorList{ppSrc, srcShift, srcStride2}, VectorList{ppDst, dstShift, dstStride2},
                                    Size{len}, Count{count});
}

}  // namespace vorm::movement
