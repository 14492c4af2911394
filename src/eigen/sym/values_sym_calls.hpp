// The kernels of vormEigenValuesSym over the parts of a call: the source, the work space, the values, the order.
#pragma once

#include "eigen/sym/objects.hpp"
#include "eigen/sym/values_sym.hpp"

namespace vorm::eigen::sym {

// The order's code is chosen once, outside the loop over the objects.
template <class T, class Src>
VORM_INLINE VormStatus valuesKernel(const Src& src, T* buffer, T* dstValues, int order, int count)
{
    if (order == 2) return valuesOfArrayOfTwos<T>(src, dstValues, count);
    return valuesOfArray<T>(src, buffer, dstValues, order, count);
}

// One matrix.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& buffer, const auto& values, Size order) VORM_INLINE_LAMBDA {
        switch (order.value) {
        case 1: entry(values.p, 0) = T(src(0, 0, 0)); return VormStatus{StatusOk};
        case 2: return valuesOfTwos<T>(src, 0, values.p);
        default: return valuesOf<T>(src, 0, buffer.p, values.p, order.value);
        }
    });
}

// Arrays of matrices.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& buffer, const auto& values, Size order, Count count)
            VORM_INLINE_LAMBDA { return valuesKernel<T>(src, buffer.p, values.p, order.value, count.value); });
}

template <class TheCall>
VORM_INLINE VormStatus contiguousKernel(const TheCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& buffer, const auto& values, Size order, Count count) VORM_INLINE_LAMBDA {
            if (inPlanes(src)) return valuesKernel<T>(asPlanes(src), buffer.p, values.p, order.value, count.value);
            return valuesKernel<T>(src, buffer.p, values.p, order.value, count.value);
        });
}

}  // namespace vorm::eigen::sym
