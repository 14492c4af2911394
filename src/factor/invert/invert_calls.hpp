// The kernels of vormInvert over the parts of a call: the source, the buffer, the destination, the order.
#pragma once

#include "factor/invert/invert.hpp"
#include "factor/invert/invert_methods.hpp"

namespace vorm::factor {

// Each order in a function of its own, with views of its own.
template <Kernel kernel, int n, class T, class Src, class Dst>
VORM_SHARED VormStatus invertArray(const Src src, const Dst dst, T* buffer, int count)
{
    using Widest = std::conditional_t<isAdjacent<Src> || isInPlanes<Src>, Wide<T>, Lanes<T>>;
    return inBlocks<Widest>(dst, n, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (n == 2)
            return invertTwo<Number>(src, dst, first, buffer);
        else
            return invertObjects<kernel, n, Number>(src, dst, first);
    });
}
template <class T, class Src, class Dst>
VORM_SHARED VormStatus invertArray(const Src src, const Dst dst, T* buffer, int order, int count)
{
    return inBlocks<Lanes<T>>(
        count, [&]<class>(int) VORM_INLINE_LAMBDA { return order <= bufferedOrder; },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            if constexpr (inLanes<Number>)
                return invertBlock<T>(src, dst, first, order);
            else
                return invertGeneral<T>(src, dst, first, order, buffer);
        });
}

template <Kernel kernel, class T, class Src, class Dst>
VORM_INLINE VormStatus invertKernel(const Src& src, T* buffer, const Dst& dst, int order, int count)
{
    switch (order) {
    case 2: return invertArray<kernel, 2, T>(src, dst, buffer, count);
    case 3: return invertArray<kernel, 3, T>(src, dst, buffer, count);
    case 4: return invertArray<kernel, 4, T>(src, dst, buffer, count);
    case 5: return invertArray<kernel, 5, T>(src, dst, buffer, count);
    case 6: return invertArray<kernel, 6, T>(src, dst, buffer, count);
    default: return invertArray<T>(plain(src), plain(dst), buffer, order, count);
    }
}
template <Kernel kernel, class T, class Src, class Dst>
VORM_INLINE VormStatus invertSingle(const Src& src, T* buffer, const Dst& dst, int order)
{
    switch (order) {
    case 2: return invertTwo<T>(src, dst, 0, buffer);
    case 3: return invertObjects<kernel, 3, T>(src, dst, 0);
    case 4: return invertObjects<kernel, 4, T>(src, dst, 0);
    case 5: return invertObjects<kernel, 5, T>(src, dst, 0);
    case 6: return invertObjects<kernel, 6, T>(src, dst, 0);
    default: return invertGeneral<T>(src, dst, 0, order, buffer);
    }
}

// One matrix.
template <Kernel kernel = Kernel::other, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& buffer, const auto& dst, Size order)
                               VORM_INLINE_LAMBDA { return invertSingle<kernel>(src, buffer.p, dst, order.value); });
}
// Arrays of matrices.
template <Kernel kernel = Kernel::other, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& buffer, const auto& dst, Size order, Count count)
            VORM_INLINE_LAMBDA { return invertKernel<kernel>(src, buffer.p, dst, order.value, count.value); });
}
template <class TheCall>
VORM_INLINE VormStatus contiguousKernel(const TheCall& call)
{
    return anyStrideKernel<Kernel::contiguous>(withAdjacent(call));
}
// Lists of packed objects too have the thresholds and reciprocals of elements anywhere.
template <class TheCall>
VORM_INLINE VormStatus listKernel(const TheCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& buffer, const auto& dst, Size order, Count count) VORM_INLINE_LAMBDA {
            constexpr Kernel kernel = Kernel::other;
            if (order.value <= 6 && inPlanes(src) && storableAsPlanes(dst, order.value, order.value, count.objects()))
                return invertKernel<kernel>(asPlanes(src), buffer.p, asPlanes(dst), order.value, count.value);
            return invertKernel<kernel>(src, buffer.p, dst, order.value, count.value);
        });
}

}  // namespace vorm::factor
