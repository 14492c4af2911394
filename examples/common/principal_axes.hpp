// The principal axes of 3x3 covariances, taken with vorm.
#pragma once

#include <vector>

#include "common/stages.hpp"

namespace examples {

template <class T>
struct PrincipalAxes {
    std::vector<T> shares;   // of each axis in the trace, three for each object, the largest first
    std::vector<T> vectors;  // unit vectors, a row for each axis: nine elements for each object
    int doneAgain = 0;       // objects whose values came out wrong at first
};

// covariances are packed; one without a trace has shares of zero and any axes. T is float or double.
template <class T>
PrincipalAxes<T> principalAxes(const std::vector<T>& covariances, Stage stage = once);

}  // namespace examples
