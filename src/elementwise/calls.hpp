// The kernels of the element-wise shapes over the parts of a call: two sources, the destination, len, count.
#pragma once

#include "elementwise/kernels.hpp"
#include "frame/call.hpp"

namespace vorm::elementwise {

template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, const auto& b, const auto& dst, Size len, Count count) VORM_INLINE_LAMBDA {
        return contiguousObjects<Op>(a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(), len.value, count.value);
    });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, const auto& b, const auto& dst, Size len, Count count)
                               VORM_INLINE_LAMBDA { return anyStride<Op>(a, b, dst, len.value, count.value); });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, const auto& b, const auto& dst, Size len, Count count)
                               VORM_INLINE_LAMBDA { return pointerObjects<Op>(a, b, dst, len.value, count.value); });
}

// Of one object.
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, const auto& b, const auto& dst, Size len) VORM_INLINE_LAMBDA {
        return contiguousObject<Op>(a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(), len.value);
    });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, const auto& b, const auto& dst, Size len)
                               VORM_INLINE_LAMBDA { return anyStride<Op>(a, b, dst, len.value, 1); });
}

}  // namespace vorm::elementwise
