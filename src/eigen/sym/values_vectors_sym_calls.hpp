// The kernels of vormEigenValuesVectorsSym over the parts of a call: the source, the work space, the vectors, the
// values, the order.
#pragma once

#include "eigen/sym/objects.hpp"
#include "eigen/sym/values_vectors_sym.hpp"

namespace vorm::eigen::sym {

// The order's code is chosen once, outside the loop over the objects.
template <class T, class Src, class Dst>
VORM_INLINE VormStatus vectorsKernel(const Src& src, T* buffer, const Dst& dst, T* dstValues, int order, int count)
{
    if (order == 2) return vectorsOfArrayOfTwos<T>(src, dst, dstValues, count);
    return vectorsOfArray<T>(src, dst, buffer, dstValues, order, count);
}

// One matrix, whose values are sorted before they are tested.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& buffer, const auto& dst, const auto& values, Size order)
                               VORM_INLINE_LAMBDA {
                                   switch (order.value) {
                                   case 1:
                                       entry(values.p, 0) = T(src(0, 0, 0));
                                       dst(0, 0, 0) = T(1);
                                       return VormStatus{StatusOk};
                                   case 2: return vectorsOfTwos<T>(src, dst, 0, values.p);
                                   default: return vectorsOfOne<T>(src, dst, 0, buffer.p, values.p, order.value, true);
                                   }
                               });
}

// Arrays of matrices.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& buffer, const auto& dst, const auto& values, Size order, Count count)
            VORM_INLINE_LAMBDA { return vectorsKernel<T>(src, buffer.p, dst, values.p, order.value, count.value); });
}

template <class TheCall>
VORM_INLINE VormStatus contiguousKernel(const TheCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& buffer, const auto& dst, const auto& values, Size order,
                              Count count) VORM_INLINE_LAMBDA {
        if (inPlanes(src) && storableAsPlanes(dst, order.value, order.value, count.value))
            return vectorsKernel<T>(asPlanes(src), buffer.p, asPlanes(dst), values.p, order.value, count.value);
        return vectorsKernel<T>(src, buffer.p, dst, values.p, order.value, count.value);
    });
}

}  // namespace vorm::eigen::sym
