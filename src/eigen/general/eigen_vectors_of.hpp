// The values and vectors of one matrix, compiled once, in eigen_vectors.cpp.
#pragma once

#include "frame/layers.hpp"
#include "vorm/status.h"

namespace vorm::eigen {

enum class Sides { right, left, both };
constexpr int storesOf(Sides sides) { return sides == Sides::both ? 2 : 1; }

// Of the matrix that lies in matrix by rows, whose order is above 1. Vector j of a side comes into the elements from
// stores[side] + j order on, in the order right, left; the values re + i im as far as they leave. work holds 3 order - 1
// elements, and matrix is lost.
template <class T>
VORM_HIDDEN VormStatus eigenVectorsOf(Sides sides, int order, T* matrix, T* const* stores, T* re, T* im, T* work);

}  // namespace vorm::eigen
