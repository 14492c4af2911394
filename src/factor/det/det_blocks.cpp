// Determinants of one matrix or of a register of them: each body once, for all layouts.

#include <array>
#include <utility>

#include "factor/det/det_methods.hpp"

namespace vorm::factor {

template <int n, class Number>
Number determinant(const Number (&a)[n][n])
{
    return determinantHere(a);
}

template <Factors factors, class T>
Eliminated<T> eliminate(T* a, int rowLength, int n, int* rows, T threshold)
{
    Eliminated<T> e;
    const auto row = [&](int r)
                         VORM_INLINE_LAMBDA { return AdjacentRow<T>{a + std::ptrdiff_t{entry(rows, r)} * rowLength}; };
    for (int r = 0; r < n; ++r) entry(rows, r) = r;
    for (int k = 0; k < n - 1; ++k) {
        int p = k;
        T largest = abs(T(row(k)(k)));
        for (int i = k + 1; i < n; ++i)
            if (const T magnitude = abs(T(row(i)(k))); magnitude > largest) largest = magnitude, p = i;
        if (p != k) {
            const int taken = entry(rows, k);
            entry(rows, k) = int{entry(rows, p)};
            entry(rows, p) = taken;
            e.sign = -e.sign;
        }
        if (largest < threshold) {
            e.stopped = true;
            break;
        }
        const auto pivotRow = row(k);
        const T pivot = pivotRow(k), reciprocal = 1 / pivot;
        for (int i = k + 1; i < n; ++i) {
            const auto target = row(i);
            const T element = target(k);
            subtractMultiple(target, pivotRow, factors == Factors::quotients ? element / pivot : element * reciprocal,
                             k + 1, n);
        }
        e.product = e.product * pivot;
    }
    e.last = row(n - 1)(n - 1);
    return e;
}

template <class T>
T determinantInBuffer(T* buffer, int n)
{
    const T threshold = detThreshold<T>(n);
    const auto e = eliminate<Factors::quotients>(buffer, n, n, rowsBehind(buffer, n), threshold);
    return !e.stopped && abs(e.last) > threshold ? e.last * e.sign * e.product : 0;
}

namespace {

template <int rows, class Number>
void eliminateColumnOf(Factors factors, const Number* a, int columns, int stride, Number* to, int toStride,
                       Number threshold, EliminatedLanes<Number>& e)
{
    using T = Element<Number>;
    using Mask = typename Number::Mask;
    Mask is[rows];
    Number magnitude = abs(a[0]);
    for (int i = 1; i < rows; ++i) {
        const Number other = abs(a[i * stride]);
        is[i] = other > magnitude;
        magnitude = larger(other, magnitude);
    }
    Mask exchanged = is[rows - 1];  // the last one to displace the largest is the pivot
    for (int i = rows - 2; i > 0; --i) {
        const Mask own = is[i];
        is[i] = without(own, exchanged);
        exchanged = exchanged | own;
    }
    e.sign = changed(e.sign, where(without(exchanged, e.stopped), Number(-T(0))));
    if (const Mask stops = without(magnitude < threshold, e.stopped); any(stops)) {
        const auto last = [&](int c)
                              VORM_INLINE_LAMBDA { return select(is[rows - 1], a[c], a[(rows - 1) * stride + c]); };
        e.last = select(stops, last(columns - 1), e.last);
        e.beforeLast = select(stops, last(columns - 2), e.beforeLast);
        e.stopped = e.stopped | stops;
    }

    Number below[rows];
    // Returns the pivot row's element, and has those of the other rows in below.
    const auto exchange = [&](int c) VORM_INLINE_LAMBDA {
        const Number top = a[c];
        Number changes;
        for (int i = 1; i < rows; ++i) {
            const Number element = a[i * stride + c], change = difference(is[i], top, element);
            below[i] = changed(element, change);
            changes = i == 1 ? change : united(changes, change);
        }
        return changed(top, changes);
    };
    Number multiples[rows];
    const Number pivot = exchange(0), reciprocal = timesSignOf(Number(T(1)) / magnitude, pivot);
    e.product = e.product * pivot;
    if (factors == Factors::quotients)
        for (int i = 1; i < rows; ++i) multiples[i] = below[i] / pivot;
    else
        for (int i = 1; i < rows; ++i) multiples[i] = below[i] * reciprocal;
    for (int c = 1; c < columns; ++c) {
        const Number above = exchange(c);
        for (int i = 1; i < rows; ++i) to[(i - 1) * toStride + c - 1] = below[i] - above * multiples[i];
    }
}

// By the number of rows.
template <class Number, int... rows>
constexpr auto stepsByRows(std::integer_sequence<int, rows...>)
{
    return std::array{eliminateColumnOf<rows + 2, Number>...};
}

}  // namespace

template <class Number>
void eliminateColumn(Factors factors, int rows, const Number* a, int columns, int stride, Number* to, int toStride,
                     Number threshold, EliminatedLanes<Number>& e)
{
    static constexpr auto steps = stepsByRows<Number>(std::make_integer_sequence<int, bufferedOrder - 1>{});
    steps[std::size_t(rows - 2)](factors, a, columns, stride, to, toStride, threshold, e);
}

template <class Number>
Number determinantsInLanes(Number* a, int n)
{
    const Number threshold = detThreshold<Element<Number>>(n);
    EliminatedLanes<Number> e;
    const Number last = *eliminateAll<Factors::quotients>(a, n, n, n, threshold, e);
    return where(without(abs(last) > threshold, e.stopped), changed(last, e.sign) * e.product);
}

#define DET_SMALL(Number) DET_ORDER(3, Number) DET_ORDER(4, Number) DET_ORDER(5, Number) DET_ORDER(6, Number)
#define DET_ORDER(n, Number) template Number determinant(const Number(&a)[n][n]);
#define DET_LANES(Number)                                                                                          \
    DET_SMALL(Number)                                                                                              \
    template void eliminateColumn(Factors factors, int rows, const Number* a, int columns, int stride, Number* to, \
                                  int toStride, Number threshold, EliminatedLanes<Number>& e);                     \
    template Number determinantsInLanes(Number* a, int n);
#ifdef VORM_WIDER_REGISTERS
#define DET_WIDE(T) DET_LANES(Wide<T>)
#else
#define DET_WIDE(T)
#endif
#define DET_ALL(T)                                                                                             \
    DET_SMALL(T)                                                                                               \
    DET_LANES(Lanes<T>)                                                                                        \
    DET_WIDE(T)                                                                                                \
    template Eliminated<T> eliminate<Factors::quotients>(T * a, int rowLength, int n, int* rows, T threshold); \
    template Eliminated<T> eliminate<Factors::products>(T * a, int rowLength, int n, int* rows, T threshold);  \
    template T determinantInBuffer(T* buffer, int n);

DET_ALL(float)
DET_ALL(double)

}  // namespace vorm::factor
