// The kernels of the products with vectors over the parts of a call: the stored matrix with its sizes, the vector
// with its length.
#pragma once

#include "frame/call.hpp"
#include "products/vector_kernels.hpp"

namespace vorm::products {

template <class As, Bodies bodies = Bodies::upTo6, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& y, Fit,
                              Count count) VORM_INLINE_LAMBDA {
        return contiguousProducts<As, bodies, T>(a.withAdjacent(), x.withAdjacent(), y.withAdjacent(), width.value,
                                                 height.value, count.value);
    });
}
template <class As, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size len, const auto& y, Fit,
                              Count count) VORM_INLINE_LAMBDA {
        return productsAnywhere<T>(As::used(a), x, y, As::rows(width.value, height.value), len.value, 0, count.value);
    });
}
template <class As, class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size len, const auto& y, Fit,
                              Count count) VORM_INLINE_LAMBDA {
        return pointerProducts<T>(As::used(a), x, y, As::rows(width.value, height.value), len.value, count.value);
    });
}

// Of one object.
template <class As, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& y, Fit)
                               VORM_INLINE_LAMBDA {
                                   return contiguousProduct<As, T>(a.withAdjacent(), x.withAdjacent(), y.withAdjacent(),
                                                                   width.value, height.value);
                               });
}
template <class As, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& a, Size width, Size height, const auto& x, Size len, const auto& y, Fit) VORM_INLINE_LAMBDA {
            return productsAnywhere<T>(As::used(a), x, y, As::rows(width.value, height.value), len.value, 0, 1);
        });
}

}  // namespace vorm::products
