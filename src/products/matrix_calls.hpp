// The kernels of the matrix products over the parts of a call: the stored operands, each with its sizes.
#pragma once

#include "frame/call.hpp"
#include "products/matrix_kernels.hpp"

namespace vorm::products {

template <class Kind, Bodies bodies = Bodies::upTo6, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width1, Size height1, const auto& b, Size width2, Size height2,
                              const auto& dst, Fit, Count count) VORM_INLINE_LAMBDA {
        return contiguousProducts<Kind, bodies, T>(
            a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(),
            Kind::lengths(width1.value, height1.value, width2.value, height2.value), count.value);
    });
}
template <class Kind, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width1, Size height1, const auto& b, Size width2, Size height2,
                              const auto& dst, Fit, Count count) VORM_INLINE_LAMBDA {
        return productsAnywhere<T>(Kind::first(a), Kind::second(b), dst,
                                   Kind::lengths(width1.value, height1.value, width2.value, height2.value), 0,
                                   count.value);
    });
}
template <class Kind, Outermost outermost = Outermost::rows, class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width1, Size height1, const auto& b, Size width2, Size height2,
                              const auto& dst, Fit, Count count) VORM_INLINE_LAMBDA {
        return pointerProducts<T, outermost>(Kind::first(a), Kind::second(b), dst,
                                             Kind::lengths(width1.value, height1.value, width2.value, height2.value),
                                             count.value);
    });
}

// Of one object.
template <class Kind, Outermost outermost = Outermost::rows, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width1, Size height1, const auto& b, Size width2, Size height2,
                              const auto& dst, Fit) VORM_INLINE_LAMBDA {
        return productsAnywhere<T, outermost>(Kind::first(a), Kind::second(b), dst,
                                              Kind::lengths(width1.value, height1.value, width2.value, height2.value),
                                              0, 1);
    });
}

}  // namespace vorm::products
