// The values and vectors of one matrix, compiled once, in eigen_vectors.cpp.
#pragma once

#include "frame/layers.hpp"
#include "vorm/status.h"

namespace vorm::eigen {

enum class Sides { right, left, both };
constexpr int storesOf(Sides sides) { return sides == Sides::both ? 2 : 1; }

struct Outcome {
    VormStatus status;
    int firstValue;  // the values from there on have been found
};

// Of the matrix that lies in matrix by rows, whose order is above 1. Vector j of a side comes into the elements from
// stores[side] + j order on, sides in the order right, left, and the values into re and im. work holds 3 order - 1
// elements, and matrix is lost.
template <class T>
VORM_HIDDEN Outcome eigenVectorsOf(Sides sides, int order, T* matrix, T* const* stores, T* re, T* im, T* work);

}  // namespace vorm::eigen
