// The values and vectors of one matrix: what does not depend on how its operands lie.

#include "eigen/general/eigen_vectors_of.hpp"
#include "eigen/general/schur.hpp"
#include "eigen/general/schur_vectors.hpp"

namespace vorm::eigen {

template <class T, class Order>
VORM_INLINE VormStatus vectorsOf(Sides sides, Order n, T* matrix, T* const* stores, T* re, T* im, T* work)
{
    T* const first = stores[0];
    if (const VormStatus status = schurForm(matrix, first, work, n, re, im); status != StatusOk) return status;
    if (sides == Sides::both)
        for (int e = 0; e < n * n; ++e) stores[1][e] = first[e];
    if (sides != Sides::left && !schurVectors<Side::right>(matrix, first, work, n)) return StatusBadArgument;
    if (sides != Sides::right && !schurVectors<Side::left>(matrix, stores[sides == Sides::both], work, n))
        return StatusBadArgument;
    return StatusOk;
}

template <class T>
VormStatus eigenVectorsOf(Sides sides, int order, T* matrix, T* const* stores, T* re, T* im, T* work)
{
    return vectorsOf(sides, order, matrix, stores, re, im, work);
}
template VormStatus eigenVectorsOf(Sides, int, float*, float* const*, float*, float*, float*);
template VormStatus eigenVectorsOf(Sides, int, double*, double* const*, double*, double*, double*);

}  // namespace vorm::eigen
