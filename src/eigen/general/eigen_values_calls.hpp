// The kernels of vormEigenValues over the parts of a call: the source, the values, the order, the work space.
#pragma once

#include "eigen/general/aligned.hpp"
#include "eigen/general/eigen_values.hpp"
#include "eigen/general/values_of.hpp"
#include "eigen/registers_of_objects.hpp"
#include "frame/blocks.hpp"

namespace vorm::eigen {

// One object in the caller's work space, from its first aligned element on. Of an object that fails the values that
// have left are written.
template <class T, class Src>
VORM_SHARED VormStatus eigenValuesOne(const Src src, int object, T* dstRe, T* dstIm, int order, T* buffer)
{
    T* const matrix = aligned(buffer);
    T *const re = matrix + std::ptrdiff_t{order} * order, *const im = re + order, *const work = im + order;
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) matrix[std::ptrdiff_t{r} * order + c] = src(object, r, c);
    const int left = valuesOf(matrix, order, re, im, work);
    for (int k = left; k < order; ++k) entry(dstRe, k) = re[k], entry(dstIm, k) = im[k];
    return left == 0 ? StatusOk : StatusNoConvergence;
}

template <class T, class Src>
VORM_SHARED VormStatus eigenValuesArray(const Src src, const ObjectTable<T> re, const ObjectTable<T> im, int order,
                                        T* buffer, int count)
{
    const bool areSmall = order <= mostSideBySide;
    return inBlocks<TwoRegisters<T>>(
        count,
        [&]<class Number>(int) VORM_INLINE_LAMBDA { return areSmall && (order > 2 || registersIn<Number> == 1); },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA -> VormStatus {
            if constexpr (!inLanes<Number>) {
                return eigenValuesOne(src, first, re.object(first), im.object(first), order, buffer);
            } else {
                Number matrix[mostSideBySide * mostSideBySide], values[2][mostSideBySide];
                loadObjects(src, first, order, matrix);
                if (!valuesSideBySide(matrix, order, values[0], values[1])) return StatusNoConvergence;
                for (int part = 0; part < 2; ++part) storeValues(values[part], first, order, part == 0 ? re.p : im.p);
                return StatusOk;
            }
        });
}
template <class T, class Src>
VORM_INLINE VormStatus eigenValuesOf(const Src& src, const ObjectTable<T>& re, const ObjectTable<T>& im, int order,
                                     T* buffer, int count)
{
    if constexpr (requires {
                      src.pp;
                      src.stride0;
                  }) {
        if (inPlanes(src)) return eigenValuesArray(asPlanes(src), re, im, order, buffer, count);
    } else if constexpr (requires { src.stride2; }) {
        if (src.stride2 == int{sizeof(T)}) return eigenValuesArray(src.withAdjacent(), re, im, order, buffer, count);
    }
    return eigenValuesArray(src, re, im, order, buffer, count);
}

// One matrix.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus eigenValuesKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& re, const auto& im, Size order, const auto& buffer)
            VORM_INLINE_LAMBDA { return eigenValuesOne<T>(src, 0, re.p, im.p, order.value, buffer.p); });
}
// Arrays of matrices.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus eigenValuesKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& re, const auto& im, Size order, Count count, const auto& buffer)
            VORM_INLINE_LAMBDA { return eigenValuesOf<T>(src, re, im, order.value, buffer.p, count.value); });
}

}  // namespace vorm::eigen
