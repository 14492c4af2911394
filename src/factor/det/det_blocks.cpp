// Determinants of one matrix or of a register of them: each body once, for all layouts.

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

template <class Number>
Number determinantsInLanes(Number* a, int n)
{
    const Number threshold = detThreshold<Element<Number>>(n);
    EliminatedLanes<Number> e;
    const Number last = *eliminateAll<Factors::quotients>(a, n, n, n, threshold, e);
    return where(without(abs(last) > threshold, e.stopped), changed(last, e.sign) * e.product);
}

#define DET_SMALL(Number)                                \
    template Number determinant(const Number(&a)[5][5]); \
    template Number determinant(const Number(&a)[6][6]);
#define DET_LANES(Number) \
    DET_SMALL(Number)     \
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
