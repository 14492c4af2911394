// The values and vectors of one matrix, and of several side by side: what does not depend on how operands lie.

#include "eigen/general/eigen_vectors_of.hpp"
#include "eigen/general/schur.hpp"
#include "eigen/general/schur_vectors.hpp"
#include "eigen/general/side_by_side.hpp"
#include "frame/object_lanes.hpp"

namespace vorm::eigen {

namespace {

// From a Schur form and its transformation, which lies in the first store, to the vectors.
template <class T>
VORM_SHARED bool vectorsOf(Sides sides, int order, const T* form, T* const* stores, T* work)
{
    T *const first = stores[0], *const last = stores[storesOf(sides) - 1];
    if (last != first)
        for (std::ptrdiff_t e = 0; e < std::ptrdiff_t{order} * order; ++e) last[e] = first[e];
    return (sides == Sides::left || schurVectors<Side::right>(form, first, work, order)) &&
           (sides == Sides::right || schurVectors<Side::left>(form, last, work, order));
}

}  // namespace

template <class T>
Outcome eigenVectorsOf(Sides sides, int order, T* matrix, T* const* stores, T* re, T* im, T* work)
{
    if (const int left = schurForm(matrix, stores[0], work, order, re, im); left > 0)
        return {StatusNoConvergence, left};
    return {vectorsOf(sides, order, matrix, stores, work) ? StatusOk : StatusBadArgument, 0};
}

template <class Number>
bool eigenVectorsSideBySide(Sides sides, int order, Group<Element<Number>, Number::width>& group)
{
    using T = Element<Number>;
    constexpr int most = mostVectorsSideBySide, objects = Number::width;
    const int square = order * order;
    Number matrix[most * most], values[2][most];
    const T* from[objects];
    for (int l = 0; l < objects; ++l) from[l] = group.matrices + l * square;
    loadRows(
        from, [&](int e) VORM_INLINE_LAMBDA -> Number& { return matrix[e]; }, square);
    const SideBySide<true, Number, int> iteration(matrix, order, values[0], values[1],
                                                  {group.matrices, group.vectors[0]});
    if (!iteration.isComplete()) return false;
    for (int l = 0; l < objects; ++l) {
        for (int k = 0; k < order; ++k) {
            group.re[l * order + k] = reinterpret_cast<const T*>(&values[0][k])[l];
            group.im[l * order + k] = reinterpret_cast<const T*>(&values[1][k])[l];
        }
        T* const stores[2] = {group.vectors[0] + l * square, group.vectors[1] + l * square};
        T work[3 * most];
        if (!vectorsOf(sides, order, group.matrices + l * square, stores, work)) return false;
    }
    return true;
}

#define EIGEN_VECTORS_OF(T)                                                 \
    template Outcome eigenVectorsOf(Sides, int, T*, T* const*, T*, T*, T*); \
    EIGEN_SIDE_BY_SIDE(T, narrow<T>)                                        \
    EIGEN_WIDE_SIDE_BY_SIDE(T)
#define EIGEN_SIDE_BY_SIDE(T, W) template bool eigenVectorsSideBySide<Lanes<T, W>>(Sides, int, Group<T, W>&);
#ifdef VORM_WIDER_REGISTERS
#define EIGEN_WIDE_SIDE_BY_SIDE(T) EIGEN_SIDE_BY_SIDE(T, widest<T>)
#else
#define EIGEN_WIDE_SIDE_BY_SIDE(T)
#endif

EIGEN_VECTORS_OF(float)
EIGEN_VECTORS_OF(double)

}  // namespace vorm::eigen
