// The values and vectors of one matrix, and of several side by side: compiled once, in eigen_vectors.cpp.
#pragma once

#include "frame/lanes.hpp"
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

// Orders of which several objects lie side by side.
constexpr int mostVectorsSideBySide = 10;

// A few objects side by side: their matrices by rows, and what becomes of them, one after the other without gaps.
template <class T, int objects>
struct Group {
    static constexpr int square = mostVectorsSideBySide * mostVectorsSideBySide;
    T matrices[objects * square], vectors[2][objects * square];
    T re[objects * mostVectorsSideBySide], im[objects * mostVectorsSideBySide];
};

// The same of as many objects as a number has lanes, and whether none of them fails.
template <class Number>
VORM_HIDDEN bool eigenVectorsSideBySide(Sides sides, int order, Group<Element<Number>, Number::width>& group);

}  // namespace vorm::eigen
