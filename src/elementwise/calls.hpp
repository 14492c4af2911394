// The kernels of the element-wise shapes over the parts of a call: two sources, the destination, len, count; a sum of
// scaled elements has a factor behind its first source, or behind both.
#pragma once

#include "elementwise/kernels.hpp"
#include "frame/call.hpp"

namespace vorm::elementwise {

template <class Op>
constexpr int factorsIn = 0;
template <class T>
constexpr int factorsIn<Saxpy<T>> = 1;
template <class T>
constexpr int factorsIn<LComb<T>> = 2;

// Body over the operation and what it works on, as one over all parts of a call.
template <class Op, class Body>
VORM_INLINE auto overParts(const Body& body)
{
    if constexpr (factorsIn<Op> == 0)
        return [&body](const auto& a, const auto& b, auto... rest)
                   VORM_INLINE_LAMBDA { return body(Op(), a, b, rest...); };
    else if constexpr (factorsIn<Op> == 1)
        return [&body](const auto& a, auto factor, const auto& b, auto... rest)
                   VORM_INLINE_LAMBDA { return body(Op{factor.val}, a, b, rest...); };
    else
        return [&body](const auto& a, auto factorA, const auto& b, auto factorB, auto... rest) VORM_INLINE_LAMBDA {
            return body(Op{factorA.val, factorB.val}, a, b, rest...);
        };
}

template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(overParts<Op>([](const Op& op, const auto& a, const auto& b, const auto& dst, Size len,
                                            Count count) VORM_INLINE_LAMBDA {
        return contiguousObjects(op, a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(), len.value, count.value);
    }));
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        overParts<Op>([](const Op& op, const auto& a, const auto& b, const auto& dst, Size len, Count count)
                          VORM_INLINE_LAMBDA { return anyStride(op, a, b, dst, len.value, count.value); }));
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        overParts<Op>([](const Op& op, const auto& a, const auto& b, const auto& dst, Size len, Count count)
                          VORM_INLINE_LAMBDA { return pointerObjects(op, a, b, dst, len.value, count.value); }));
}

// Of one object.
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with(
        overParts<Op>([](const Op& op, const auto& a, const auto& b, const auto& dst, Size len) VORM_INLINE_LAMBDA {
            return contiguousObject(op, a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(), len.value);
        }));
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with(overParts<Op>([](const Op& op, const auto& a, const auto& b, const auto& dst, Size len)
                                             VORM_INLINE_LAMBDA { return anyStride(op, a, b, dst, len.value, 1); }));
}

}  // namespace vorm::elementwise
