// The kernels of vormCholeskyDecomp over the parts of a call: the source, the destination, the order.
#pragma once

#include "factor/cholesky/cholesky.hpp"
#include "factor/cholesky/cholesky_decomp.hpp"

namespace vorm::factor {

// The order's code is chosen once, outside the loop over the objects.
template <class T, class Src, class Dst>
VORM_INLINE VormStatus choleskyArrayKernel(const Src& src, const Dst& dst, int order, int count)
{
    switch (order) {
    case 3: return choleskyArray<3, T>(src, dst, count);
    case 4: return choleskyArray<4, T>(src, dst, count);
    case 5: return choleskyArray<5, T>(src, dst, count);
    case 6: return choleskyArray<6, T>(src, dst, count);
    default: return choleskyArray<T>(src, dst, order, count);
    }
}

// One matrix.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& dst, Size order) VORM_INLINE_LAMBDA {
        switch (order.value) {
        case 3: return choleskyObjects<3, T>(src, dst, 0);
        case 4: return choleskyObjects<4, T>(src, dst, 0);
        case 5: return choleskyObjects<5, T>(src, dst, 0);
        case 6: return choleskyObjects<6, T>(src, dst, 0);
        default: return choleskyGeneral<T>(src, dst, 0, order.value);
        }
    });
}

// Arrays of matrices.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& dst, Size order, Count count) VORM_INLINE_LAMBDA {
        return choleskyArrayKernel<T>(src, dst, order.value, count.value);
    });
}

template <class AnyCall>
VORM_INLINE VormStatus contiguousKernel(const AnyCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& dst, Size order, Count count) VORM_INLINE_LAMBDA {
        if (inPlanes(src) && trianglesStorableAsPlanes(dst, order.value, count.objects()))
            return choleskyArrayKernel<T>(asPlanes(src), asPlanes(dst), order.value, count.value);
        return choleskyArrayKernel<T>(src, dst, order.value, count.value);
    });
}

}  // namespace vorm::factor
