// The public layers of vormInvert, which do order 1 themselves.
#pragma once

#include <limits>

#include "factor/invert/invert.hpp"
#include "frame/lanes.hpp"

namespace vorm::factor {

template <class T, class Src, class Dst>
VORM_INLINE VormStatus reciprocals(const Src& src, const Dst& dst, int count)
{
    for (int n = 0; n < count; ++n) {
        const T element = src(n, 0, 0);
        if (!(abs(element) > 2 * std::numeric_limits<T>::min())) return StatusSingular;
        dst(n, 0, 0) = 1 / element;
    }
    return StatusOk;
}

template <class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus checkedInverse(const Call<T, TheTests, Parts>& call, Argument... argument)
{
    const int order = call.parts.with([](const auto&, const auto&, const auto&, Size size, auto...)
                                          VORM_INLINE_LAMBDA { return size.value; });
    if (order != 1) return checked(call, argument...);
    if (const VormStatus status = tested(call); status != StatusOk) return status;
    return call.parts.with([](const auto& src, const auto&, const auto& dst, Size)
                               VORM_INLINE_LAMBDA { return reciprocals<T>(src, dst, 1); });
}
template <int limit, int limitAnyStride = limit, class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus checkedInverse(const ArrayCall<T, TheTests, Parts>& call, Argument... argument)
{
    const int order = call.parts.with([](const auto&, const auto&, const auto&, Size size, auto...)
                                          VORM_INLINE_LAMBDA { return size.value; });
    if (order != 1) {
        if constexpr (limit == limitAnyStride)
            return checked<limit>(call, argument...);
        else
            return checked<limit, limitAnyStride>(call, argument...);
    }
    if (const VormStatus status = tested(call); status != StatusOk) return status;
    return call.parts.with([](const auto& src, const auto&, const auto& dst, Size, Count count)
                               VORM_INLINE_LAMBDA { return reciprocals<T>(src, dst, count.value); });
}

}  // namespace vorm::factor
