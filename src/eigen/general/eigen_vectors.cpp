// The values and vectors of one matrix: what does not depend on how its operands lie.

#include "eigen/general/eigen_vectors_of.hpp"
#include "eigen/general/schur.hpp"
#include "eigen/general/schur_vectors.hpp"

namespace vorm::eigen {

template <class T, class Order>
VORM_INLINE Outcome vectorsOf(Sides sides, Order n, T* matrix, T* const* stores, T* re, T* im, T* work)
{
    T* const first = stores[0];
    if (const int left = schurForm(matrix, first, work, n, re, im); left > 0) return {StatusNoConvergence, left};
    if (sides == Sides::both)
        for (int e = 0; e < n * n; ++e) stores[1][e] = first[e];
    if ((sides != Sides::left && !schurVectors<Side::right>(matrix, first, work, n)) ||
        (sides != Sides::right && !schurVectors<Side::left>(matrix, stores[storesOf(sides) - 1], work, n)))
        return {StatusBadArgument, 0};
    return {StatusOk, 0};
}

template <class T>
Outcome eigenVectorsOf(Sides sides, int order, T* matrix, T* const* stores, T* re, T* im, T* work)
{
    return vectorsOf(sides, order, matrix, stores, re, im, work);
}
template Outcome eigenVectorsOf(Sides, int, float*, float* const*, float*, float*, float*);
template Outcome eigenVectorsOf(Sides, int, double*, double* const*, double*, double*, double*);

}  // namespace vorm::eigen
