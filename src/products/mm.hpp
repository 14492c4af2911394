// The mm shape: one matrix and one matrix, dst = src1 src2. A kind of product reads
// either one transposed and so makes the shapes mt, tm and tt of it.
#pragma once

#include "frame/checks.hpp"
#include "products/layers.hpp"
#include "products/matrix_kernels.hpp"

// The operands of the pointer layout, in the order and with the names of the exported prototypes; those
// of the standard layout are in matrix_general.hpp.
#define MM_PARAMS_P(T)                                                                                           \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Width, int src2Height, T *const *ppDst, int dstShift
#define MM_ARGS_P ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Width, src2Height, ppDst, dstShift

namespace vorm {

template <class T>
using MmLayer = VormStatus(MM_PARAMS(T));
template <class T>
using MmLayerP = VormStatus(MM_PARAMS_P(T));

// Public layers. ----------------------------------------------------------------------------------

template <class Kind, class T>
VORM_INLINE VormStatus mmChecked(MmLayer<T>* kernel, MmLayer<T>* kernelS2, MM_PARAMS(T))
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadStride<T>(src1Stride1, src1Stride2, src2Stride1, src2Stride2, dstStride1, dstStride2))
        return StatusBadStride;

    if (contiguous<T>(src1Stride2, src2Stride2, dstStride2)) return kernel(MM_ARGS);
    return kernelS2(MM_ARGS);
}

template <class Kind, class T>
VORM_INLINE VormStatus mmCheckedP(MmLayerP<T>* kernel, MM_PARAMS_P(T))
{
    if (anyNull(ppSrc1, ppSrc2, ppDst)) return StatusNullPointer;
    if (anyBelowOne(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (!Kind::fits(src1Width, src1Height, src2Width, src2Height)) return StatusSizeMismatch;
    if (anyBadShift<T>(src1Shift, src2Shift, dstShift)) return StatusBadShift;

    return kernel(MM_ARGS_P);
}

// Kernels. ----------------------------------------------------------------------------------------

// A function of its own for each order, so that none pays for the registers and memory of another.
template <class Kind, int n, Order order, class T>
[[gnu::noinline]] VormStatus mmFixed(MM_PARAMS(T))
{
    squareProducts<T, n, order>(Kind::first(Matrix{pSrc1, src1Stride1, adjacent}),
                                Kind::second(Matrix{pSrc2, src2Stride1, adjacent}), Matrix{pDst, dstStride1, adjacent},
                                0, 1);
    return StatusOk;
}

template <class Kind, Bodies bodies, class T>
[[gnu::noinline]] VormStatus mmSquare(MM_PARAMS(T))
{
    constexpr auto six = bodies == Bodies::upTo5 ? Order::asInTiles : Order::leftToRight;
    if (src1Width == 3) return mmFixed<Kind, 3, Order::leftToRight>(MM_ARGS);
    if (src1Width == 4) return mmFixed<Kind, 4, Order::leftToRight>(MM_ARGS);
    if (src1Width == 5) return mmFixed<Kind, 5, Order::leftToRight>(MM_ARGS);
    return mmFixed<Kind, 6, six>(MM_ARGS);
}

template <class Kind, Bodies bodies = Bodies::upTo6, class T>
VORM_INLINE VormStatus mmContiguous(MM_PARAMS(T))
{
    const auto [m, n, k] = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    if (opaque((m ^ k) | (n ^ k) | ((k - 3) & ~3)) != 0)  // as in Kind::fits
        return generalProduct<Kind>(MM_ARGS);
    return mmSquare<Kind, bodies>(MM_ARGS);
}

template <class Kind, class T>
VORM_INLINE VormStatus mmAnyStride(MM_PARAMS(T))
{
    return productsAnywhere<T>(
        Kind::first(Matrix{pSrc1, src1Stride1, src1Stride2}), Kind::second(Matrix{pSrc2, src2Stride1, src2Stride2}),
        Matrix{pDst, dstStride1, dstStride2}, Kind::lengths(src1Width, src1Height, src2Width, src2Height), 0, 1);
}

template <class Kind, Outermost outermost = Outermost::rows, class T>
VORM_INLINE VormStatus mmPointers(MM_PARAMS_P(T))
{
    const Lengths lengths = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    return productsAnywhere<T, outermost>(Kind::first(MatrixPointers{ppSrc1, src1Shift, src1Width}),
                                          Kind::second(MatrixPointers{ppSrc2, src2Shift, src2Width}),
                                          MatrixPointers{ppDst, dstShift, lengths.n}, lengths, 0, 1);
}

}  // namespace vorm
