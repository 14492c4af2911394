// The kernels of vormEigenValues over the parts of a call: the source, the values, the order, the work space.
#pragma once

#include "eigen/general/eigen_values.hpp"
#include "eigen/general/schur.hpp"
#include "frame/planes.hpp"

namespace vorm::eigen {

// One object in the caller's work space, from its first aligned element on. Of an object that fails the values that
// have left are written.
template <class T, class Src>
VORM_INLINE VormStatus eigenValuesOne(const Src& src, int object, T* dstRe, T* dstIm, int order, T* buffer)
{
    T* const matrix = aligned(buffer);
    T *const re = matrix + std::ptrdiff_t{order} * order, *const im = re + order, *const work = im + order;
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) matrix[std::ptrdiff_t{r} * order + c] = src(object, r, c);
    hessenberg(matrix, order, work, work + order);
    clearBelowSubdiagonal(matrix, order);
    const int left = iterate<false>(matrix, static_cast<T*>(nullptr), order, re, im);
    for (int k = left; k < order; ++k) entry(dstRe, k) = re[k], entry(dstIm, k) = im[k];
    return left == 0 ? StatusOk : StatusNoConvergence;
}

template <class T, class Src>
VORM_INLINE VormStatus eigenValuesArray(const Src& src, const ObjectTable<T>& re, const ObjectTable<T>& im, int order,
                                        T* buffer, int count)
{
    for (int n = 0; n < count; ++n)
        if (const VormStatus status = eigenValuesOne(src, n, re.object(n), im.object(n), order, buffer);
            status != StatusOk)
            return status;
    return StatusOk;
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
            VORM_INLINE_LAMBDA { return eigenValuesArray<T>(src, re, im, order.value, buffer.p, count.value); });
}

}  // namespace vorm::eigen
