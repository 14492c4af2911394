// Do the errors of the filters fit the covariances that the filters state?
#pragma once

#include <vector>

#include "kalman_bank/model.hpp"

namespace kalman {

// The mean over all filters of e^T C^-1 e, where e is an error of `order` elements and C its covariance. If the
// covariances are right, it is the mean of chi-square numbers of `order` degrees of freedom, one for each filter.
double meanSquare(const Doubles& errors, const Doubles& covariances, int order);

// Where such a mean lies, but for the given share of all cases. count is the number of squares.
struct Interval {
    double low, high;
    bool contains(double x) const { return x >= low && x <= high; }
};
Interval chiSquareMean(int order, double count, double exceptions);

// The means of all steps: normalised innovation squares (NIS) and normalised estimation error squares (NEES).
struct Squares {
    std::vector<double> innovations, errors;
};

// Prints the means beside their bounds; false if they are outside, which a good filter meets once in a
// thousand runs.
bool consistent(const char* type, const Squares& squares, int filters);

// Prints the root mean squares over all filters of the errors and of what the covariances state.
void printErrors(const char* type, const Doubles& errors, const Doubles& covariances);

}  // namespace kalman
