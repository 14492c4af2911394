// Elimination with partial pivoting for determinants and minors. Rows that have been pivots are not looked at again,
// so nothing is kept of them: one object in a caller's buffer, whose rows stay where they are; or lanes of objects,
// whose rows change places by masks.
#pragma once

#include <cstdint>
#include <limits>

#include "factor/lu/lu_general.hpp"
#include "frame/object_rows.hpp"

namespace vorm::factor {

// What pivots are compared with, for the order of the whole matrix.
template <class T>
constexpr T detThreshold(int order)
{
    return T(std::int64_t{2} * order * order * order) * std::numeric_limits<T>::min();
}

// Determinants divide by the pivot, inverses multiply by its reciprocal.
enum class Factors { quotients, products };

// What an elimination of n rows leaves: the product of the pivots but the last one, the sign of the exchanges, and
// the last pivot; or that a pivot was below the threshold, with the last element as it was then.
template <class T>
struct Eliminated {
    T product = 1, sign = 1, last = 0;
    bool stopped = false;
};

// One object, packed in memory of the caller's; n row numbers at rows. rowLength may be more than n.
template <Factors factors, class T>
VORM_HIDDEN Eliminated<T> eliminate(T* a, int rowLength, int n, int* rows, T threshold);

// The determinant of a matrix that lies in a buffer, with its row numbers behind it.
template <class T>
VORM_HIDDEN T determinantInBuffer(T* buffer, int n);
template <class T>
VORM_INLINE int* rowsBehind(T* buffer, int order)
{
    return reinterpret_cast<int*>(buffer + std::ptrdiff_t{order} * order);
}
template <class T, class View>
[[gnu::noinline]] void copyToBuffer(const View& view, int object, int n, T* buffer)
{
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) entry(buffer, std::ptrdiff_t{r} * n + c) = T(view(object, r, c));
}

// The same of lanes, each with what its own steps have left.
template <class Number>
struct EliminatedLanes {
    using T = Element<Number>;
    Number product = T(1), sign = T(0);  // a bit in the place of the sign
    Number last, beforeLast;             // of the last row, where an elimination has stopped
    typename Number::Mask stopped = Number(T(0)) < Number(T(0));
};

// One step: of the rows at a, so many numbers apart, all but the pivot row go to to, without their first column.
// to may be where they are, one row and one column on.
template <class Number>
VORM_HIDDEN void eliminateColumn(Factors factors, int rows, const Number* a, int columns, int stride, Number* to,
                                 int toStride, Number threshold, EliminatedLanes<Number>& e);

// All steps of n rows with at least as many columns, in place. Returns where the last row's last columns are.
template <Factors factors, class Number>
VORM_INLINE const Number* eliminateAll(Number* a, int n, int columns, int stride, Number threshold,
                                       EliminatedLanes<Number>& e)
{
    for (int rows = n; rows > 1; --rows, --columns) {
        Number* const next = a + stride + 1;
        eliminateColumn(factors, rows, a, columns, stride, next, stride, threshold, e);
        a = next;
    }
    return a;
}

// Determinants of an order up to bufferedOrder, matrices packed at a, which is overwritten.
template <class Number>
VORM_HIDDEN Number determinantsInLanes(Number* a, int n);

}  // namespace vorm::factor
