// Matrices element by element, dst[n](r, c) = a[n](r, c) op b[n](r, c), for operands that are told by the distances
// between their elements. Compiled once for each operation and type (matrices_*.cpp): all shapes, kernels and readings
// of a layout meet here.
#pragma once

#include "frame/elements.hpp"
#include "frame/operations.hpp"

namespace vorm::elementwise {

// Elements are those of standard, list or pointer layout, b may be a constant. width and height are those of dst.
template <class Op, class A, class B, class D>
VORM_HIDDEN VormStatus matrixObjects(const A& a, const B& b, const D& dst, int width, int height, int count);

}  // namespace vorm::elementwise
