// The values and vectors of one matrix: what does not depend on how its operands lie.

#include "eigen/general/eigen_vectors_of.hpp"
#include "eigen/general/schur.hpp"
#include "eigen/general/schur_vectors.hpp"

namespace vorm::eigen {

template <class T>
Outcome eigenVectorsOf(Sides sides, int order, T* matrix, T* const* stores, T* re, T* im, T* work)
{
    T *const first = stores[0], *const last = stores[storesOf(sides) - 1];
    if (const int left = schurForm(matrix, first, work, order, re, im); left > 0) return {StatusNoConvergence, left};
    if (last != first)
        for (std::ptrdiff_t e = 0; e < std::ptrdiff_t{order} * order; ++e) last[e] = first[e];
    if ((sides != Sides::left && !schurVectors<Side::right>(matrix, first, work, order)) ||
        (sides != Sides::right && !schurVectors<Side::left>(matrix, last, work, order)))
        return {StatusBadArgument, 0};
    return {StatusOk, 0};
}
template Outcome eigenVectorsOf(Sides, int, float*, float* const*, float*, float*, float*);
template Outcome eigenVectorsOf(Sides, int, double*, double* const*, double*, double*, double*);

}  // namespace vorm::eigen
