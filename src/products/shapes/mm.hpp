// The mm shape: one matrix and one matrix, dst = src1 src2. A kind of product reads
// either one transposed and so makes the shapes mt, tm and tt of it.
#pragma once

#include "frame/call.hpp"
#include "products/layers.hpp"
#include "products/matrix_calls.hpp"

// The operands of the pointer layout, in the order and with the names of the exported prototypes; those
// of the standard layout are in matrix_general.hpp.
#define MM_PARAMS_P(T)                                                                                           \
    const T *const *ppSrc1, int src1Shift, int src1Width, int src1Height, const T *const *ppSrc2, int src2Shift, \
        int src2Width, int src2Height, T *const *ppDst, int dstShift
#define MM_ARGS_P ppSrc1, src1Shift, src1Width, src1Height, ppSrc2, src2Shift, src2Width, src2Height, ppDst, dstShift

namespace vorm::products {

template <class Kind, class T>
VORM_INLINE auto mm(MM_PARAMS(T))
{
    return callOf<T>(Matrix{pSrc1, src1Stride1, src1Stride2}, Size{src1Width}, Size{src1Height},
                     Matrix{pSrc2, src2Stride1, src2Stride2}, Size{src2Width}, Size{src2Height},
                     Matrix{pDst, dstStride1, dstStride2}, Kind::fit(src1Width, src1Height, src2Width, src2Height));
}
template <class Kind, class T>
VORM_INLINE auto mmP(MM_PARAMS_P(T))
{
    return callOf<T>(MatrixPointers{ppSrc1, src1Shift, src1Width}, Size{src1Width}, Size{src1Height},
                     MatrixPointers{ppSrc2, src2Shift, src2Width}, Size{src2Width}, Size{src2Height},
                     MatrixPointers{ppDst, dstShift, Kind::lengths(src1Width, src1Height, src2Width, src2Height).n},
                     Kind::fit(src1Width, src1Height, src2Width, src2Height));
}

// The contiguous kernel, over plain arguments: jumps all the way. --------------------------------------------

// A function of its own for each order, so that none pays for the registers and memory of another.
template <class Kind, int n, Order order, class T>
[[gnu::noinline]] VormStatus mmFixed(MM_PARAMS(T))
{
    squareProducts<T, n, order>(Kind::first(Matrix{pSrc1, src1Stride1, adjacent}),
                                Kind::second(Matrix{pSrc2, src2Stride1, adjacent}), Matrix{pDst, dstStride1, adjacent},
                                1);
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
    if (opaque((m ^ k) | (n ^ k) | ((k - 3) & ~3)) != 0)  // as in Fit (frame/arguments.hpp)
        return generalProduct<Kind>(MM_ARGS);
    return mmSquare<Kind, bodies>(MM_ARGS);
}

}  // namespace vorm::products
