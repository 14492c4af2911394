// vormDotProduct of two vectors (vv), of an array and one vector (vav), of two arrays (vava).
#pragma once

#include "frame/call.hpp"
#include "measures/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define DOT_VV_PARAMS(T) const T *pSrc1, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int len
#define DOT_VV_ARGS pSrc1, src1Stride2, pSrc2, src2Stride2, pDst, len
#define DOT_VV_PARAMS_P(T) \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, T *pDst, int len
#define DOT_VV_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, pDst, len

#define DOT_VAV_PARAMS(T) \
    const T *pSrc1, int src1Stride0, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int len, int count
#define DOT_VAV_ARGS pSrc1, src1Stride0, src1Stride2, pSrc2, src2Stride2, pDst, len, count
#define DOT_VAV_PARAMS_L(T) \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int len, int count
#define DOT_VAV_ARGS_L ppSrc1, src1Shift, src1Stride2, pSrc2, src2Stride2, pDst, len, count
#define DOT_VAV_PARAMS_P(T)                                                                                          \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, T *pDst, int len, \
        int count
#define DOT_VAV_ARGS_P ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, pDst, len, count

#define DOT_VAVA_PARAMS(T)                                                                                       \
    const T *pSrc1, int src1Stride0, int src1Stride2, const T *pSrc2, int src2Stride0, int src2Stride2, T *pDst, \
        int len, int count
#define DOT_VAVA_ARGS pSrc1, src1Stride0, src1Stride2, pSrc2, src2Stride0, src2Stride2, pDst, len, count
#define DOT_VAVA_PARAMS_L(T)                                                                                        \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, const T *const *ppSrc2, int src2Shift, int src2Stride2, \
        T *pDst, int len, int count
#define DOT_VAVA_ARGS_L ppSrc1, src1Shift, src1Stride2, ppSrc2, src2Shift, src2Stride2, pDst, len, count
#define DOT_VAVA_PARAMS_P(T)                                                                                        \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, int src2Stride0, \
        T *pDst, int len, int count
#define DOT_VAVA_ARGS_P ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, src2Stride0, pDst, len, count

namespace vorm::measures {

// Elements read.
template <class T>
VORM_INLINE constexpr Work dotVavWork(int len, int count)
{
    return workOf(wrapMul(len, wrapAdd(count, 1)), byType<T>(150, 220), len, count);
}
template <class T>
VORM_INLINE constexpr Work dotVavaWork(int len, int count)
{
    return workOf(wrapMul(wrapMul(2, len), count), byType<T>(150, 220), len, count);
}

template <class T>
VORM_INLINE auto dotVv(DOT_VV_PARAMS(T))
{
    return callOf<T>(Vector{pSrc1, src1Stride2}, Vector{pSrc2, src2Stride2}, ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto dotVvP(DOT_VV_PARAMS_P(T))
{
    return callOf<T>(VectorPointers{ppSrc1, src1Shift}, VectorPointers{ppSrc2, src2Shift}, ObjectTable{pDst, 1},
                     Size{len});
}

template <class T>
VORM_INLINE auto dotVav(DOT_VAV_PARAMS(T))
{
    return arrayCallOf<T>(dotVavWork<T>(len, count), count, VectorArray{pSrc1, src1Stride0, src1Stride2},
                          Vector{pSrc2, src2Stride2}, ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto dotVavL(DOT_VAV_PARAMS_L(T))
{
    return arrayCallOf<T>(dotVavWork<T>(len, count), count, VectorList{ppSrc1, src1Shift, src1Stride2},
                          Vector{pSrc2, src2Stride2}, ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto dotVavP(DOT_VAV_PARAMS_P(T))
{
    return arrayCallOf<T>(dotVavWork<T>(len, count), count, VectorArrayPointers{ppSrc1, src1Shift, src1Stride0},
                          VectorPointers{ppSrc2, src2Shift}, ObjectTable{pDst, 1}, Size{len});
}

template <class T>
VORM_INLINE auto dotVava(DOT_VAVA_PARAMS(T))
{
    return arrayCallOf<T>(dotVavaWork<T>(len, count), count, VectorArray{pSrc1, src1Stride0, src1Stride2},
                          VectorArray{pSrc2, src2Stride0, src2Stride2}, ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto dotVavaL(DOT_VAVA_PARAMS_L(T))
{
    return arrayCallOf<T>(dotVavaWork<T>(len, count), count, VectorList{ppSrc1, src1Shift, src1Stride2},
                          VectorList{ppSrc2, src2Shift, src2Stride2}, ObjectTable{pDst, 1}, Size{len});
}
template <class T>
VORM_INLINE auto dotVavaP(DOT_VAVA_PARAMS_P(T))
{
    return arrayCallOf<T>(dotVavaWork<T>(len, count), count, VectorArrayPointers{ppSrc1, src1Shift, src1Stride0},
                          VectorArrayPointers{ppSrc2, src2Shift, src2Stride0}, ObjectTable{pDst, 1}, Size{len});
}

}  // namespace vorm::measures
