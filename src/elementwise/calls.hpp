// The kernels of the element-wise shapes over the parts of a call: two sources, the destination, len, count.
#pragma once

#include "elementwise/kernels.hpp"
#include "frame/call.hpp"

namespace vorm::elementwise {

template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call, const Op& op = {})
{
    return call.parts.with([&op](const auto& a, const auto& b, const auto& dst, Size len,
                                 Count count) VORM_INLINE_LAMBDA {
        return contiguousObjects(op, a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(), len.value, count.value);
    });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call, const Op& op = {})
{
    return call.parts.with([&op](const auto& a, const auto& b, const auto& dst, Size len, Count count)
                               VORM_INLINE_LAMBDA { return anyStride(op, a, b, dst, len.value, count.value); });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call, const Op& op = {})
{
    return call.parts.with([&op](const auto& a, const auto& b, const auto& dst, Size len, Count count)
                               VORM_INLINE_LAMBDA { return pointerObjects(op, a, b, dst, len.value, count.value); });
}

// Of one object.
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const Call<T, TheTests, Parts>& call, const Op& op = {})
{
    return call.parts.with([&op](const auto& a, const auto& b, const auto& dst, Size len) VORM_INLINE_LAMBDA {
        return contiguousObject(op, a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(), len.value);
    });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call, const Op& op = {})
{
    return call.parts.with([&op](const auto& a, const auto& b, const auto& dst, Size len)
                               VORM_INLINE_LAMBDA { return anyStride(op, a, b, dst, len.value, 1); });
}

}  // namespace vorm::elementwise
