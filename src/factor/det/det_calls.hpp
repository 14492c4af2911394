// The kernels of vormDet over the parts of a call: the source, the order, the buffer, the results.
#pragma once

#include "factor/det/det.hpp"
#include "factor/det/det_methods.hpp"
#include "frame/blocks.hpp"

namespace vorm::factor {

// Results never share memory, and no object fails.
template <class Widest, class T, class Each>
VORM_INLINE VormStatus determinants(T* dst, int count, const Each& each)
{
    return inBlocks<Widest>(
        count, []<class>(int) VORM_INLINE_LAMBDA { return true; },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            const Number result = each.template operator()<Number>(first);
            if constexpr (inLanes<Number>)
                result.store(dst + first);
            else
                entry(dst, first) = result;
            return VormStatus{StatusOk};
        });
}
template <class T, class Src>
using WidestFor = std::conditional_t<isAdjacent<Src> || isInPlanes<Src>, Wide<T>, Lanes<T>>;

// Each order in a function of its own, with a view of its own.
template <int n, class T, class Src>
VORM_SHARED VormStatus detArray(const Src src, T* dst, int count)
{
    return determinants<WidestFor<T, Src>>(
        dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA { return determinantOf<n, Number>(src, first); });
}
template <class T, class Src>
VORM_SHARED T detGeneral(const Src src, T* buffer, int order, int object)
{
    copyToBuffer(src, object, order, buffer);
    return determinantInBuffer(buffer, order);
}
template <class T, class Src>
VORM_SHARED VormStatus detArray(const Src src, T* buffer, T* dst, int order, int count)
{
    if (order > bufferedOrder) {
        for (int n = 0; n < count; ++n) entry(dst, n) = detGeneral<T>(src, buffer, order, n);
        return StatusOk;
    }
    return determinants<WidestFor<T, Src>>(dst, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (!inLanes<Number>) {
            return detGeneral<T>(src, buffer, order, first);
        } else {
            Number a[bufferedOrder * bufferedOrder];
            loadMatrices(src, first, a, order);
            return determinantsInLanes(a, order);
        }
    });
}

template <class T, class Src>
VORM_INLINE VormStatus detKernel(const Src& src, int order, T* buffer, T* dst, int count)
{
    switch (order) {
    case 1: return detArray<1, T>(src, dst, count);
    case 2: return detArray<2, T>(src, dst, count);
    case 3: return detArray<3, T>(src, dst, count);
    case 4: return detArray<4, T>(src, dst, count);
    case 5: return detArray<5, T>(src, dst, count);
    case 6: return detArray<6, T>(src, dst, count);
    default: return detArray<T>(src, buffer, dst, order, count);
    }
}
template <class T, class Src>
VORM_INLINE VormStatus detSingle(const Src& src, int order, T* buffer, T* dst)
{
    const auto result = [&]() VORM_INLINE_LAMBDA {
        switch (order) {
        case 1: return determinantOf<1, T>(src, 0);
        case 2: return determinantOf<2, T>(src, 0);
        case 3: return determinantOf<3, T>(src, 0);
        case 4: return determinantOf<4, T>(src, 0);
        case 5: return determinantOf<5, T>(src, 0);
        case 6: return determinantOf<6, T>(src, 0);
        default: return detGeneral<T>(src, buffer, order, 0);
        }
    };
    entry(dst, 0) = result();
    return StatusOk;
}

// One matrix.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, Size order, const auto& buffer, const auto& dst)
                               VORM_INLINE_LAMBDA { return detSingle<T>(src, order.value, buffer.p, dst.p); });
}
// Arrays of matrices.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, Size order, const auto& buffer, const auto& dst, Count count)
            VORM_INLINE_LAMBDA { return detKernel<T>(src, order.value, buffer.p, dst.p, count.value); });
}
template <class TheCall>
VORM_INLINE VormStatus contiguousKernel(const TheCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, Size order, const auto& buffer, const auto& dst, Count count)
                               VORM_INLINE_LAMBDA {
                                   if (inPlanes(src))
                                       return detKernel<T>(asPlanes(src), order.value, buffer.p, dst.p, count.value);
                                   return detKernel<T>(src, order.value, buffer.p, dst.p, count.value);
                               });
}

}  // namespace vorm::factor
