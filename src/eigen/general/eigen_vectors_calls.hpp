// The kernels of the general eigenvectors over the parts of a call: the source, the destination or both of them, the
// values, the order and the work space.
#pragma once

#include "eigen/general/aligned.hpp"
#include "eigen/general/eigen_vectors.hpp"
#include "eigen/general/eigen_vectors_of.hpp"

namespace vorm::eigen {

// Objects up to the first that fails. destination(n, side, i, j) is an element of the vectors of object n.
template <Sides sides, class T, class Src, class Destination>
VORM_INLINE VormStatus eigenVectorsObjects(const Src& src, const Destination& destination,
                                           const ObjectTable<T>& valuesRe, const ObjectTable<T>& valuesIm, int order,
                                           int count, T* buffer)
{
    constexpr int stores = storesOf(sides);
    const std::ptrdiff_t square = std::ptrdiff_t{order} * order;
    T* const matrix = aligned(buffer);
    T* const vectors[2] = {matrix + square, matrix + 2 * square};
    T *const re = matrix + 3 * square, *const im = re + order, *const work = im + order;
    for (int n = 0; n < count; ++n) {
        T *const dstRe = valuesRe.object(n), *const dstIm = valuesIm.object(n);
        if (order == 1) {
            entry(dstRe, 0) = src(n, 0, 0);
            entry(dstIm, 0) = 0;
            for (int side = 0; side < stores; ++side) destination(n, side, 0, 0) = 1;
            continue;
        }
        for (int i = 0; i < order; ++i)
            for (int j = 0; j < order; ++j) matrix[std::ptrdiff_t{i} * order + j] = src(n, i, j);
        const Outcome outcome = eigenVectorsOf(sides, order, matrix, vectors, re, im, work);
        for (int k = outcome.firstValue; k < order; ++k) entry(dstRe, k) = re[k], entry(dstIm, k) = im[k];
        if (outcome.status != StatusOk) return outcome.status;
        for (int side = 0; side < stores; ++side)
            for (int i = 0; i < order; ++i)
                for (int j = 0; j < order; ++j)
                    destination(n, side, i, j) = vectors[side][std::ptrdiff_t{j} * order + i];
    }
    return StatusOk;
}

template <Sides sides, class T, class Src, class Dst>
VORM_INLINE VormStatus eigenVectorsInto(const Src& src, const Dst& dst, const ObjectTable<T>& re,
                                        const ObjectTable<T>& im, int order, int count, T* buffer)
{
    return eigenVectorsObjects<sides>(
        src, [&](int n, int, int i, int j) VORM_INLINE_LAMBDA -> decltype(auto) { return dst(n, i, j); }, re, im, order,
        count, buffer);
}
template <Sides sides, class T, class Src, class Right, class Left>
VORM_INLINE VormStatus eigenVectorsInto(const Src& src, const Together<Right, Left>& dst, const ObjectTable<T>& re,
                                        const ObjectTable<T>& im, int order, int count, T* buffer)
{
    return eigenVectorsObjects<sides>(
        src,
        [&](int n, int side, int i, int j)
            VORM_INLINE_LAMBDA -> decltype(auto) { return side == 0 ? dst.first(n, i, j) : dst.second(n, i, j); },
        re, im, order, count, buffer);
}

template <Sides sides, class T, class TheTests, class Parts>
VORM_INLINE VormStatus eigenVectorsKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& dst, const auto& re, const auto& im, Size order,
                              const auto&... rest) VORM_INLINE_LAMBDA {
        int count = 1;
        T* buffer = nullptr;
        const auto take = [&](const auto& part) VORM_INLINE_LAMBDA {
            if constexpr (std::is_same_v<decltype(part), const Count&>)
                count = part.objects();
            else
                buffer = part.p;
        };
        (take(rest), ...);
        return eigenVectorsInto<sides, T>(src, dst, re, im, order.value, count, buffer);
    });
}

}  // namespace vorm::eigen
