// Cholesky decomposition and substitution of one matrix or of registers of them: each body once, for all layouts.

#include "factor/cholesky/cholesky.hpp"
#include "factor/cholesky/cholesky_solve_general.hpp"

namespace vorm::factor {

template <int n, class Number>
int choleskyFactorise(Number (&a)[n * n])
{
    return choleskyFactoriseHere<n>(a);
}

namespace {

// Elements of column j in some rows one below the other, which have the row of the diagonal in common and do not wait
// for each other.
template <int some, class Number>
VORM_INLINE void completeColumn(Number* rows, const Number* diagonalRow, int n, int j, const Number& d)
{
    PairedDifference<Number> sums[some];
    for (int q = 0; q < some; ++q) sums[q].even = rows[q * n + j];
    for (int k = 0; k + 2 <= j; k += 2)
        for (int q = 0; q < some; ++q)
            sums[q].subtract(rows[q * n + k] * diagonalRow[k], rows[q * n + k + 1] * diagonalRow[k + 1]);
    for (int q = 0; q < some; ++q)
        rows[q * n + j] =
            sums[q].total(j, [&]() VORM_INLINE_LAMBDA { return rows[q * n + j - 1] * diagonalRow[j - 1]; }) * d;
}

}  // namespace

template <class Number>
bool choleskyFactoriseBuffered(Number* a, int n)
{
    constexpr int some = registersIn < Number >> 1 ? 2 : 4;
    for (int j = 0; j < n; ++j) {
        Number* const row = a + j * n;
        const Number t = less(row[j], j, [&](int k) VORM_INLINE_LAMBDA { return row[k] * row[k]; });
        if (anyNotPositive(t)) return false;
        const Number d = inverseRoot(t);
        int i = j + 1;
        for (; i + some <= n; i += some) completeColumn<some>(a + i * n, row, n, j, d);
        for (; i < n; ++i) completeColumn<1>(a + i * n, row, n, j, d);
        row[j] = d;
    }
    return true;
}

template <class T>
int choleskyFactoriseColumns(T* u, int n)
{
    constexpr int width = narrow<T>, some = 4;
    const std::ptrdiff_t step = columnStep<T>(n);
    for (int j = 0; j < n; ++j) {
        T* const column = u + j * step;
        T d = 0;
        // Rows of the column in so many registers, from row i on; the first of all is that of the diagonal.
        const auto complete = [&](auto registers, int i) VORM_INLINE_LAMBDA {
            PairedDifference<Lanes<T>> sums[registers];
            const auto rows = [&](int k, int q)
                                  VORM_INLINE_LAMBDA { return Lanes<T>::load(u + k * step + i + q * width); };
            for (int q = 0; q < registers; ++q) sums[q].even = rows(j, q);
            for (int k = 0; k + 2 <= j; k += 2) {
                const Lanes<T> first = u[k * step + j], second = u[(k + 1) * step + j];
                for (int q = 0; q < registers; ++q) sums[q].subtract(rows(k, q) * first, rows(k + 1, q) * second);
            }
            Lanes<T> values[registers];
            for (int q = 0; q < registers; ++q)
                values[q] = sums[q].total(
                    j, [&]() VORM_INLINE_LAMBDA { return rows(j - 1, q) * Lanes<T>(u[(j - 1) * step + j]); });
            if (i == j) {
                const T t = firstLane(values[0]);
                if (anyNotPositive(t)) return false;
                d = inverseRoot(t);
            }
            for (int q = 0; q < registers; ++q) (values[q] * Lanes<T>(d)).store(column + i + q * width);
            return true;
        };
        int i = j;
        for (; i + (some - 1) * width < n; i += some * width)
            if (!complete(constant<some>, i)) return j;
        for (; i < n; i += width)
            if (!complete(constant<1>, i)) return j;
        column[j] = d;
    }
    return n;
}
template int choleskyFactoriseColumns(float* u, int n);
template int choleskyFactoriseColumns(double* u, int n);

template <class Factor, class Number>
void choleskySubstituteBuffered(const Factor* l, Number* x, int n)
{
    choleskySubstituteAnyOrder<Number>([&](int i, int j) VORM_INLINE_LAMBDA { return narrowed<Number>(l[i * n + j]); },
                                       [&](int i) VORM_INLINE_LAMBDA { return x[i]; },
                                       [&](int i) VORM_INLINE_LAMBDA -> Number& { return x[i]; }, n);
}

#define CHOLESKY_FACTORISE(n, Number) template int choleskyFactorise<n>(Number(&a)[n * n]);
#define CHOLESKY_BUFFERED(Number) template bool choleskyFactoriseBuffered(Number* a, int n);
#define CHOLESKY_SUBSTITUTE(Factor, Number) template void choleskySubstituteBuffered(const Factor* l, Number* x, int n);
#define CHOLESKY_ALL(Number)      \
    CHOLESKY_FACTORISE(3, Number) \
    CHOLESKY_FACTORISE(4, Number) \
    CHOLESKY_FACTORISE(5, Number) \
    CHOLESKY_FACTORISE(6, Number)
#define CHOLESKY_OF(T)                                                  \
    CHOLESKY_ALL(T)                                                     \
    CHOLESKY_ALL(Lanes<T>)                                              \
    CHOLESKY_BUFFERED(Lanes<T>)                                         \
    CHOLESKY_SUBSTITUTE(Lanes<T>, Lanes<T>)                             \
    CHOLESKY_SUBSTITUTE(Lanes<T>, CholeskyOneMatrix<Lanes<T>>)          \
    CHOLESKY_SUBSTITUTE(CholeskyOwnMatrices<T>, CholeskyOwnMatrices<T>) \
    CHOLESKY_WIDE(T)
#ifdef VORM_WIDER_REGISTERS
#define CHOLESKY_WIDE(T)                                     \
    CHOLESKY_ALL(Wide<T>)                                    \
    CHOLESKY_BUFFERED(Wide<T>)                               \
    CHOLESKY_SUBSTITUTE(Wide<T>, CholeskyOneMatrix<Wide<T>>) \
    CHOLESKY_SUBSTITUTE(Wide<T>, Wide<T>)                    \
    CHOLESKY_SUBSTITUTE(Wide<T>, Lanes<T>)
#else
#define CHOLESKY_WIDE(T)
#endif

CHOLESKY_OF(float)
CHOLESKY_OF(double)
CHOLESKY_BUFFERED(CholeskyBuffered<double>)

}  // namespace vorm::factor
