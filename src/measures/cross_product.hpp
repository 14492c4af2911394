// The shapes of vormCrossProduct: vectors of three elements, so that there is no length to test.
#pragma once

#include "frame/call.hpp"
#include "measures/layers.hpp"

// The operands by layout, in the order and with the names of the exported prototypes.
#define CROSS_VV_PARAMS(T) const T *pSrc1, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int dstStride2
#define CROSS_VV_ARGS pSrc1, src1Stride2, pSrc2, src2Stride2, pDst, dstStride2
#define CROSS_VV_PARAMS_P(T) \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, T *const *ppDst, int dstShift
#define CROSS_VV_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, ppDst, dstShift
#define CROSS_VAV_PARAMS(T)                                                                                     \
    const T *pSrc1, int src1Stride0, int src1Stride2, const T *pSrc2, int src2Stride2, T *pDst, int dstStride0, \
        int dstStride2, int count
#define CROSS_VAV_ARGS pSrc1, src1Stride0, src1Stride2, pSrc2, src2Stride2, pDst, dstStride0, dstStride2, count
#define CROSS_VAV_PARAMS_L(T)                                                                                 \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, const T *pSrc2, int src2Stride2, T *const *ppDst, \
        int dstShift, int dstStride2, int count
#define CROSS_VAV_ARGS_L ppSrc1, src1Shift, src1Stride2, pSrc2, src2Stride2, ppDst, dstShift, dstStride2, count
#define CROSS_VAV_PARAMS_P(T)                                                                                       \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, T *const *ppDst, \
        int dstShift, int dstStride0, int count
#define CROSS_VAV_ARGS_P ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, ppDst, dstShift, dstStride0, count
#define CROSS_VVA_PARAMS(T)                                                                                     \
    const T *pSrc1, int src1Stride2, const T *pSrc2, int src2Stride0, int src2Stride2, T *pDst, int dstStride0, \
        int dstStride2, int count
#define CROSS_VVA_ARGS pSrc1, src1Stride2, pSrc2, src2Stride0, src2Stride2, pDst, dstStride0, dstStride2, count
#define CROSS_VVA_PARAMS_L(T)                                                                                 \
    const T *pSrc1, int src1Stride2, const T *const *ppSrc2, int src2Shift, int src2Stride2, T *const *ppDst, \
        int dstShift, int dstStride2, int count
#define CROSS_VVA_ARGS_L pSrc1, src1Stride2, ppSrc2, src2Shift, src2Stride2, ppDst, dstShift, dstStride2, count
#define CROSS_VVA_PARAMS_P(T)                                                                                       \
    const T *const *ppSrc1, int src1Shift, const T *const *ppSrc2, int src2Shift, int src2Stride0, T *const *ppDst, \
        int dstShift, int dstStride0, int count
#define CROSS_VVA_ARGS_P ppSrc1, src1Shift, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, count
#define CROSS_VAVA_PARAMS(T)                                                                                     \
    const T *pSrc1, int src1Stride0, int src1Stride2, const T *pSrc2, int src2Stride0, int src2Stride2, T *pDst, \
        int dstStride0, int dstStride2, int count
#define CROSS_VAVA_ARGS \
    pSrc1, src1Stride0, src1Stride2, pSrc2, src2Stride0, src2Stride2, pDst, dstStride0, dstStride2, count
#define CROSS_VAVA_PARAMS_L(T)                                                                                      \
    const T *const *ppSrc1, int src1Shift, int src1Stride2, const T *const *ppSrc2, int src2Shift, int src2Stride2, \
        T *const *ppDst, int dstShift, int dstStride2, int count
#define CROSS_VAVA_ARGS_L \
    ppSrc1, src1Shift, src1Stride2, ppSrc2, src2Shift, src2Stride2, ppDst, dstShift, dstStride2, count
#define CROSS_VAVA_PARAMS_P(T)                                                                                      \
    const T *const *ppSrc1, int src1Shift, int src1Stride0, const T *const *ppSrc2, int src2Shift, int src2Stride0, \
        T *const *ppDst, int dstShift, int dstStride0, int count
#define CROSS_VAVA_ARGS_P \
    ppSrc1, src1Shift, src1Stride0, ppSrc2, src2Shift, src2Stride0, ppDst, dstShift, dstStride0, count

namespace vorm::measures {

// The driver runs above these measures (docs/thresholds.md), by layout.
constexpr int crossLimit = 36000, crossLimitL = 27000, crossLimitP = 45000;

// The elements that are read and written.
constexpr int commonMeasure(int count) { return wrapMul(3, wrapAdd(wrapMul(2, count), 1)); }
constexpr int arraysMeasure(int count) { return wrapMul(9, count); }

template <class T>
VORM_INLINE auto crossVv(CROSS_VV_PARAMS(T))
{
    return callOf<T>(Vector{pSrc1, src1Stride2}, Vector{pSrc2, src2Stride2}, Vector{pDst, dstStride2});
}
template <class T>
VORM_INLINE auto crossVvP(CROSS_VV_PARAMS_P(T))
{
    return callOf<T>(VectorPointers{ppSrc1, src1Shift}, VectorPointers{ppSrc2, src2Shift},
                     VectorPointers{ppDst, dstShift});
}

// Unlike the other array shapes, vav tests the strides before the count.
using CrossVavTests = Tests<Test::null, Test::stride, Test::count, Test::shift>;
using CrossVavTestsL = Tests<Test::null, Test::stride, Test::shift, Test::count>;

template <class T>
VORM_INLINE auto crossVav(CROSS_VAV_PARAMS(T))
{
    return arrayCallOf<T, CrossVavTests>(workOf(commonMeasure(count), byType<T>(550, 1300), count), count,
                                         VectorArray{pSrc1, src1Stride0, src1Stride2}, Vector{pSrc2, src2Stride2},
                                         VectorArray{pDst, dstStride0, dstStride2});
}
template <class T>
VORM_INLINE auto crossVavL(CROSS_VAV_PARAMS_L(T))
{
    return arrayCallOf<T, CrossVavTestsL>(workOf(commonMeasure(count), byType<T>(1100, 1800), count), count,
                                          VectorList{ppSrc1, src1Shift, src1Stride2}, Vector{pSrc2, src2Stride2},
                                          VectorList{ppDst, dstShift, dstStride2});
}
template <class T>
VORM_INLINE auto crossVavP(CROSS_VAV_PARAMS_P(T))
{
    return arrayCallOf<T, CrossVavTests>(workOf(commonMeasure(count), byType<T>(450, 1200), count), count,
                                         VectorArrayPointers{ppSrc1, src1Shift, src1Stride0},
                                         VectorPointers{ppSrc2, src2Shift},
                                         VectorArrayPointers{ppDst, dstShift, dstStride0});
}

template <class T>
VORM_INLINE auto crossVva(CROSS_VVA_PARAMS(T))
{
    return arrayCallOf<T>(workOf(commonMeasure(count), byType<T>(550, 1300), count), count, Vector{pSrc1, src1Stride2},
                          VectorArray{pSrc2, src2Stride0, src2Stride2}, VectorArray{pDst, dstStride0, dstStride2});
}
template <class T>
VORM_INLINE auto crossVvaL(CROSS_VVA_PARAMS_L(T))
{
    return arrayCallOf<T>(workOf(commonMeasure(count), byType<T>(1100, 1800), count), count, Vector{pSrc1, src1Stride2},
                          VectorList{ppSrc2, src2Shift, src2Stride2}, VectorList{ppDst, dstShift, dstStride2});
}
template <class T>
VORM_INLINE auto crossVvaP(CROSS_VVA_PARAMS_P(T))
{
    return arrayCallOf<T>(workOf(commonMeasure(count), byType<T>(450, 1200), count), count,
                          VectorPointers{ppSrc1, src1Shift}, VectorArrayPointers{ppSrc2, src2Shift, src2Stride0},
                          VectorArrayPointers{ppDst, dstShift, dstStride0});
}

template <class T>
VORM_INLINE auto crossVava(CROSS_VAVA_PARAMS(T))
{
    return arrayCallOf<T>(workOf(arraysMeasure(count), byType<T>(950, 1900), count), count,
                          VectorArray{pSrc1, src1Stride0, src1Stride2}, VectorArray{pSrc2, src2Stride0, src2Stride2},
                          VectorArray{pDst, dstStride0, dstStride2});
}
template <class T>
VORM_INLINE auto crossVavaL(CROSS_VAVA_PARAMS_L(T))
{
    return arrayCallOf<T>(workOf(arraysMeasure(count), byType<T>(1600, 2500), count), count,
                          VectorList{ppSrc1, src1Shift, src1Stride2}, VectorList{ppSrc2, src2Shift, src2Stride2},
                          VectorList{ppDst, dstShift, dstStride2});
}
template <class T>
VORM_INLINE auto crossVavaP(CROSS_VAVA_PARAMS_P(T))
{
    return arrayCallOf<T>(workOf(arraysMeasure(count), byType<T>(850, 1900), count), count,
                          VectorArrayPointers{ppSrc1, src1Shift, src1Stride0},
                          VectorArrayPointers{ppSrc2, src2Shift, src2Stride0},
                          VectorArrayPointers{ppDst, dstShift, dstStride0});
}

}  // namespace vorm::measures
