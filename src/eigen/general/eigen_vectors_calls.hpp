// The kernels of the general eigenvectors over the parts of a call: the source, the destination or both of them, the
// values, the order and the work space.
#pragma once

#include "eigen/general/aligned.hpp"
#include "eigen/general/eigen_vectors.hpp"
#include "eigen/general/eigen_vectors_of.hpp"
#include "frame/blocks.hpp"

namespace vorm::eigen {

template <class T, class Src>
VORM_SHARED void readMatrix(const Src src, int n, int order, T* to)
{
    for (int i = 0; i < order; ++i)
        for (int j = 0; j < order; ++j) *to++ = src(n, i, j);
}
template <class T, class Destination>
VORM_SHARED void writeVectors(const Destination destination, int n, int side, int order, const T* vectors)
{
    for (int i = 0; i < order; ++i)
        for (int j = 0; j < order; ++j) destination(n, side, i, j) = vectors[std::ptrdiff_t{j} * order + i];
}

// One object in the caller's work space, from its first aligned element on. destination(n, side, i, j) is an element of
// the vectors of object n.
template <Sides sides, class T, class Src, class Destination>
VORM_INLINE VormStatus eigenVectorsOne(const Src& src, const Destination& destination, const ObjectTable<T>& valuesRe,
                                       const ObjectTable<T>& valuesIm, int order, int n, T* buffer)
{
    constexpr int stores = storesOf(sides);
    const std::ptrdiff_t square = std::ptrdiff_t{order} * order;
    T* const matrix = aligned(buffer);
    T* const vectors[2] = {matrix + square, matrix + 2 * square};
    T *const re = matrix + 3 * square, *const im = re + order, *const work = im + order;
    T *const dstRe = valuesRe.object(n), *const dstIm = valuesIm.object(n);
    if (order == 1) {
        entry(dstRe, 0) = src(n, 0, 0);
        entry(dstIm, 0) = 0;
        for (int side = 0; side < stores; ++side) destination(n, side, 0, 0) = 1;
        return StatusOk;
    }
    readMatrix(src, n, order, matrix);
    const Outcome outcome = eigenVectorsOf(sides, order, matrix, vectors, re, im, work);
    for (int k = outcome.firstValue; k < order; ++k) entry(dstRe, k) = re[k], entry(dstIm, k) = im[k];
    if (outcome.status != StatusOk) return outcome.status;
    for (int side = 0; side < stores; ++side) writeVectors(destination, n, side, order, vectors[side]);
    return StatusOk;
}

// As many objects as a number has lanes, of which nothing is written if one fails.
template <class Number, Sides sides, class T, class Src, class Destination>
VORM_INLINE bool eigenVectorsGroup(const Src& src, const Destination& destination, const ObjectTable<T>& valuesRe,
                                   const ObjectTable<T>& valuesIm, int order, int first)
{
    constexpr int objects = Number::width;
    Group<T, objects> group;
    for (int l = 0; l < objects; ++l) readMatrix(src, first + l, order, group.matrices + l * order * order);
    if (!eigenVectorsSideBySide<Number>(sides, order, group)) return false;
    const T *re = group.re, *im = group.im;
    for (int l = 0; l < objects; ++l) {
        T *const dstRe = valuesRe.object(first + l), *const dstIm = valuesIm.object(first + l);
        for (int k = 0; k < order; ++k) entry(dstRe, k) = *re++, entry(dstIm, k) = *im++;
        for (int side = 0; side < storesOf(sides); ++side)
            writeVectors<T>(destination, first + l, side, order, group.vectors[side] + l * order * order);
    }
    return true;
}

// Objects up to the first that fails.
template <Sides sides, class T, class Src, class Destination>
VORM_INLINE VormStatus eigenVectorsObjects(const Src& src, const Destination& destination,
                                           const ObjectTable<T>& valuesRe, const ObjectTable<T>& valuesIm, int order,
                                           Count count, T* buffer)
{
    const bool areSmall = order > 1 && order <= mostVectorsSideBySide;
    return inBlocks<Wide<T>>(
        count.value, [&]<class>(int) VORM_INLINE_LAMBDA { return areSmall; },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA -> VormStatus {
            if constexpr (!inLanes<Number>)
                return eigenVectorsOne<sides>(src, destination, valuesRe, valuesIm, order, first, buffer);
            else
                return eigenVectorsGroup<Number, sides>(src, destination, valuesRe, valuesIm, order, first)
                           ? StatusOk
                           : StatusNoConvergence;
        });
}
template <Sides sides, class T, class Src, class Destination>
VORM_INLINE VormStatus eigenVectorsObjects(const Src& src, const Destination& destination,
                                           const ObjectTable<T>& valuesRe, const ObjectTable<T>& valuesIm, int order,
                                           T* buffer)
{
    return eigenVectorsOne<sides>(src, destination, valuesRe, valuesIm, order, 0, buffer);
}

template <Sides sides, class T, class Src, class Dst, class... Rest>
VORM_INLINE VormStatus eigenVectorsInto(const Src& src, const Dst& dst, const ObjectTable<T>& re,
                                        const ObjectTable<T>& im, int order, Rest... rest)
{
    return eigenVectorsObjects<sides>(
        src, [&](int n, int, int i, int j) VORM_INLINE_LAMBDA -> decltype(auto) { return dst(n, i, j); }, re, im, order,
        rest...);
}
template <Sides sides, class T, class Src, class Right, class Left, class... Rest>
VORM_INLINE VormStatus eigenVectorsInto(const Src& src, const Together<Right, Left>& dst, const ObjectTable<T>& re,
                                        const ObjectTable<T>& im, int order, Rest... rest)
{
    return eigenVectorsObjects<sides>(
        src,
        [&](int n, int side, int i, int j)
            VORM_INLINE_LAMBDA -> decltype(auto) { return side == 0 ? dst.first(n, i, j) : dst.second(n, i, j); },
        re, im, order, rest...);
}

// One matrix.
template <Sides sides, class T, class TheTests, class Parts>
VORM_INLINE VormStatus eigenVectorsKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& dst, const auto& re, const auto& im, Size order, const auto& buffer)
            VORM_INLINE_LAMBDA { return eigenVectorsInto<sides, T>(src, dst, re, im, order.value, buffer.p); });
}
// Arrays of matrices.
template <Sides sides, class T, class TheTests, class Parts>
VORM_INLINE VormStatus eigenVectorsKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& dst, const auto& re, const auto& im, Size order, Count count,
                              const auto& buffer) VORM_INLINE_LAMBDA {
        return eigenVectorsInto<sides, T>(src, dst, re, im, order.value, count, buffer.p);
    });
}

}  // namespace vorm::eigen
