// The kernels of the shapes with matrices over the parts of a call: two sources, the second of which may be a constant,
// the destination, width, height, count.
#pragma once

#include "elementwise/matrices.hpp"
#include "frame/call.hpp"

namespace vorm::elementwise {

// Every operand by the distances between its elements. In list layout those that all objects share are lists as well.
template <class Op, class A, class B, class D>
VORM_INLINE VormStatus matrixKernel(const A& a, const B& b, const D& dst, int width, int height, int count)
{
    const auto elements = [](const auto& view) VORM_INLINE_LAMBDA {
        using View = std::remove_cvref_t<decltype(view)>;
        if constexpr (isConstant<View>)
            return view;
        else if constexpr (requires(D d) { d.pp, d.stride1; })
            return listedElementsOf(view);
        else
            return elementsOf(view);
    };
    return matrixObjects<Op>(elements(a), elements(b), elements(dst), width, height, count);
}

template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& a, const auto& b, const auto& dst, Size width, Size height, Count count)
            VORM_INLINE_LAMBDA { return matrixKernel<Op>(a, b, dst, width.value, height.value, count.value); });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& a, const auto& b, const auto& dst, Size width, Size height)
            VORM_INLINE_LAMBDA { return matrixKernel<Op>(a, b, dst, width.value, height.value, 1); });
}
template <class Op, class TheCall>
VORM_INLINE VormStatus contiguousKernel(const TheCall& call)
{
    return anyStrideKernel<Op>(withAdjacent(call));
}
template <class Op, class TheCall>
VORM_INLINE VormStatus pointerKernel(const TheCall& call)
{
    return anyStrideKernel<Op>(call);
}

}  // namespace vorm::elementwise
