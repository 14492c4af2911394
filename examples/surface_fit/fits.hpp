// Three ways to the least squares fit of every vertex.
#pragma once

#include "surface_fit/neighbourhoods.hpp"

namespace surface_fit {

// What a method makes of all vertices.
struct Fits {
    const char* name;
    bool normalEquations;
    Doubles quadrics;    // order elements each
    Doubles pivots;      // the least one over the largest one, 0 where the decomposition failed
    double nanoseconds;  // for a vertex, from the rows on
};

// X^T X and X^T z of every vertex, and what they took.
struct Systems {
    Doubles matrices, sides;
    double nanoseconds;
};
Systems systemsOf(const Designs& designs);

// P X^T X = L U. Its factors also solve for other sides than X^T z.
struct Factors {
    Doubles matrices;
    std::vector<int> pivots;  // of every system the row numbers

    // The pivots are the diagonal of U, row k of which is in row pivots[k].
    double pivot(std::size_t v, std::size_t k) const
    {
        return matrices[v * elements + index(pivots[v * order + k]) * order + k];
    }
};
Fits byLU(const Systems& systems, Factors& factors);
void solve(const Factors& factors, const Doubles& sides, Doubles& solutions);

// X^T X = L L^T: half the work, as the matrix is symmetric and, with enough neighbours, positive definite.
Fits byCholesky(const Systems& systems);

// X = Q R: no normal equations at all.
Fits byQR(const Designs& designs);

}  // namespace surface_fit
