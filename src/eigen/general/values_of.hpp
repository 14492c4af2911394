// The values of one matrix, and of several side by side: compiled once for all layouts, in values_of.cpp.
#pragma once

#include "frame/lanes.hpp"

namespace vorm::eigen {

// Orders of which several objects lie side by side.
constexpr int mostSideBySide = 16;
// Roots and divisions of a reflection wait for each other, so that two registers of objects share the time. Four take a
// twentieth less of it and twice the code.
template <class T>
using TwoRegisters = Several<Wide<T>, 2>;

// Of the matrix stored by columns, which does not survive, value k is re[k] + i im[k]. Returns how many have not left
// when the sweeps are spent, and are not written; those behind them have. work holds 2 n elements.
template <class T>
VORM_HIDDEN int valuesOf(T* matrix, int n, T* re, T* im, T* work);

// The same of as many objects as a number has lanes, and whether all of them have left. Orders 1 and 2, which wait for
// nothing, come in single registers.
template <class Number>
VORM_HIDDEN bool valuesSideBySide(Number* matrix, int n, Number* re, Number* im);

}  // namespace vorm::eigen
