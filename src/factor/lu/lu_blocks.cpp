// Elimination and substitution of one matrix or of a register of them: each body once, for all layouts.

#include <array>
#include <cstdint>

#include "factor/lu/lu.hpp"
#include "factor/lu/lu_solve_general.hpp"

namespace vorm::factor {
namespace {

// Row by row: lane k of a multiplier's row is the multiplier f, the lanes before keep x, those behind are y.
template <int k>
VORM_INLINE Lanes<float> withFactor(Lanes<float> x, Lanes<float> f, Lanes<float> y)
{
    if constexpr (k == 0) return withFirst(f, y);
    if constexpr (k == 1) return shuffle<0, 1, 2, 3>(interleaveLow(x, f), y);
    if constexpr (k == 2) return shuffle<0, 1, 2, 3>(x, interleaveHigh(f, y));
    if constexpr (k == 3) return lowPairs(x, interleaveHigh(x, f));
}
template <int k>
VORM_INLINE Lanes<double> withFactor(Lanes<double> x, Lanes<double> f, Lanes<double> y)
{
    return k == 0 ? withFirst(f, y) : withFirst(x, f);
}

// Lane k of each.
template <int k>
VORM_INLINE Lanes<float> lanesOf(const Lanes<float> (&x)[4])
{
    const auto pair = [](Lanes<float> a, Lanes<float> b)
                          VORM_INLINE_LAMBDA { return k < 2 ? interleaveLow(a, b) : interleaveHigh(a, b); };
    const Lanes<float> front = pair(x[0], x[1]), back = pair(x[2], x[3]);
    return k % 2 == 0 ? lowPairs(front, back) : highPairs(front, back);
}
template <int k>
VORM_INLINE Lanes<double> lanesOf(const Lanes<double> (&x)[2])
{
    return k == 0 ? interleaveLow(x[0], x[1]) : interleaveHigh(x[0], x[1]);
}

// Finds the pivots of a column as its elements go by, row after row: lane by lane the first of the largest.
template <class T>
struct PivotSearch {
    Lanes<T> largest, rows;
    VORM_INLINE PivotSearch(Lanes<T> element, int row) : largest(abs(element)), rows(Lanes<T>::integer(row)) {}
    VORM_INLINE void see(Lanes<T> element, int row)
    {
        const Lanes<T> magnitude = abs(element);
        rows = largerInteger(rows, where(magnitude > largest, Lanes<T>::integer(row)));
        largest = larger(magnitude, largest);
    }
};

// The row numbers of one object, four bits each: in memory a load of one would often overtake the exchange before it.
class RowOrder {
public:
    VORM_INLINE void exchange(int i, int j)
    {
        const std::uint64_t differing = (rows_ >> 4 * i ^ rows_ >> 4 * j) & 15;
        rows_ ^= differing << 4 * i ^ differing << 4 * j;
    }
    VORM_INLINE std::ptrdiff_t operator[](int i) const { return rows_ >> 4 * i & 15; }

private:
    std::uint64_t rows_ = 0xfedcba9876543210;
};

// As many objects as a register has lanes, step by step together, as each of them would mostly wait for itself. Rows
// are of several registers and stay where they are; what is one number for each object lies in lanes.
template <int registers, class T>
bool luFactoriseRows(Lanes<T>* a, int* order, int n)
{
    constexpr int width = Lanes<T>::width;
    RowOrder rows[width];
    Lanes<T>* objects[width];
    for (int l = 0; l < width; ++l) objects[l] = a + l * n * registers;
    const Lanes<T> epsilon = luEpsilon<T>;
    const auto firstElement = [&](int i) VORM_INLINE_LAMBDA {
        Lanes<T> first[width];
        for (int l = 0; l < width; ++l) first[l] = objects[l][i * registers];
        return lanesOf<0>(first);
    };
    PivotSearch<T> search(firstElement(0), 0);
    for (int i = 1; i < n; ++i) search.see(firstElement(i), i);
    const auto step = [&](auto register_, auto lane_) VORM_INLINE_LAMBDA {
        constexpr int j = register_, lane = lane_, k = j * width + lane;
        constexpr int nextLane = (lane + 1) % width, next = lane + 1 < width ? j : j + 1;
        if (k >= n - 1) return true;
        if (any(search.largest <= epsilon)) return false;
        Integer<T> numbers[width];
        storeIntegers(search.rows, numbers);
        const Lanes<T>* pivotRows[width];
        Lanes<T> pivots[width], reciprocals[width];
        for (int l = 0; l < width; ++l) {
            rows[l].exchange(k, static_cast<int>(numbers[l]));
            pivotRows[l] = objects[l] + rows[l][k] * registers;
            pivots[l] = pivotRows[l][j];
        }
        const Lanes<T> reciprocal = reciprocalOf(lanesOf<lane>(pivots), search.largest);
        unrolled<width>([&](auto l) VORM_INLINE_LAMBDA { reciprocals[l] = splat<l>(reciprocal); });
        for (int i = k + 1; i < n; ++i) {
            Lanes<T> ahead[width];
            for (int l = 0; l < width; ++l) {
                Lanes<T>* const row = objects[l] + rows[l][i] * registers;
                const Lanes<T> x = row[j], factor = splat<lane>(x) * reciprocals[l];
                ahead[l] = row[j] = withFactor<lane>(x, factor, x - pivots[l] * factor);
                for (int r = j + 1; r < registers; ++r) {
                    row[r] = row[r] - pivotRows[l][r] * factor;
                    if (r == next) ahead[l] = row[r];
                }
            }
            const Lanes<T> element = lanesOf<nextLane>(ahead);
            if (i == k + 1)
                search = PivotSearch<T>(element, i);
            else
                search.see(element, i);
        }
        return true;
    };
    const bool passed = [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA
    {
        return (... && step(std::integral_constant<int, k / width>{}, std::integral_constant<int, k % width>{}));
    }
    (std::make_integer_sequence<int, registers * width - 1>{});
    if (!passed || any(search.largest <= epsilon)) return false;
    for (int l = 0; l < width; ++l)
        for (int k = 0; k < n; ++k) order[l * n + k] = static_cast<int>(rows[l][k]);
    return true;
}

}  // namespace

template <bool rowsStay, int n, class Number>
int luFactorise(LuBlock<n, Number>& lu)
{
    return luFactoriseHere<rowsStay>(lu);
}

template <class T>
bool luFactorise(Lanes<T>* a, int* order, int n)
{
    switch (registersOf<T>(n)) {
    case 1: return luFactoriseRows<1>(a, order, n);
    case 2: return luFactoriseRows<2>(a, order, n);
    case 3: return luFactoriseRows<3>(a, order, n);
    case 4: return luFactoriseRows<4>(a, order, n);
    default: break;
    }
    if constexpr (Lanes<T>::width == 2) switch (registersOf<T>(n)) {
        case 5: return luFactoriseRows<5>(a, order, n);
        case 6: return luFactoriseRows<6>(a, order, n);
        case 7: return luFactoriseRows<7>(a, order, n);
        case 8: return luFactoriseRows<8>(a, order, n);
        default: break;
        }
    return false;
}
template bool luFactorise(Lanes<float>* a, int* order, int n);
template bool luFactorise(Lanes<double>* a, int* order, int n);

namespace {

// Sums of up to bufferedOrder - 1 products, from zero, whose number of terms is known: loops over so few
// terms cost as much as the terms. Eight terms go to sums of their own, as sumOfProducts has it. Factors that are
// the same in all lanes may lie in wider registers than those of the sum.
template <int terms, class Factor, class Number>
Number sumOf(const Factor* row, const Number* x)
{
    static_assert(terms < 16);
    constexpr int group = terms >= 8 ? 8 : 0;
    const auto product = [&](int j) VORM_INLINE_LAMBDA -> Number { return narrowed<Number>(row[j]) * x[j]; };
    const Number zero = RegisterIn<Number>(Element<Number>(0));
    Number total = zero;
    if constexpr (group == 8) {
        const auto term = [&](int j) VORM_INLINE_LAMBDA { return zero + product(j); };
        total = ((term(0) + term(1)) + (term(2) + term(3))) + ((term(4) + term(5)) + (term(6) + term(7)));
    }
    unrolled<terms - group>([&](auto j) VORM_INLINE_LAMBDA { total = total + product(group + j); });
    return total;
}
template <class Factor, class Number, int... terms>
constexpr auto sumsByTerms(std::integer_sequence<int, terms...>)
{
    return std::array{sumOf<terms, Factor, Number>...};
}

}  // namespace

template <class Factor, class Number>
void luSubstituteBuffered(const Factor* lu, Number* x, int n)
{
    static constexpr auto byTerms = sumsByTerms<Factor, Number>(std::make_integer_sequence<int, bufferedOrder>{});
    const auto factor = [&](int i) VORM_INLINE_LAMBDA { return narrowed<Number>(lu[i]); };
    for (int i = 1; i < n; ++i) x[i] = x[i] - byTerms[std::size_t(i)](lu + i * n, x);
    x[n - 1] = x[n - 1] / factor(n * n - 1);
    for (int i = n - 2; i >= 0; --i)
        x[i] = (x[i] - byTerms[std::size_t(n - 1 - i)](lu + i * n + i + 1, x + i + 1)) / factor(i * n + i);
}

#define LU_SUBSTITUTE(Factor, Number) template void luSubstituteBuffered(const Factor* lu, Number* x, int n);
#define LU_SUBSTITUTES(T)                             \
    LU_SUBSTITUTE(Lanes<T>, Lanes<T>)                 \
    LU_SUBSTITUTE(Lanes<T>, LuOneMatrix<Lanes<T>>)    \
    LU_SUBSTITUTE(LuOwnMatrices<T>, LuOwnMatrices<T>) \
    LU_WIDE_SUBSTITUTES(T)
#ifdef VORM_WIDER_REGISTERS
#define LU_WIDE_SUBSTITUTES(T)                   \
    LU_SUBSTITUTE(Wide<T>, LuOneMatrix<Wide<T>>) \
    LU_SUBSTITUTE(Wide<T>, Wide<T>)              \
    LU_SUBSTITUTE(Wide<T>, Lanes<T>)
#else
#define LU_WIDE_SUBSTITUTES(T)
#endif

LU_SUBSTITUTES(float)
LU_SUBSTITUTES(double)

#define LU_FACTORISE(rowsStay, n, Number) template int luFactorise<rowsStay>(LuBlock<n, Number> & lu);
#define LU_BLOCKS(n)                      \
    LU_FACTORISE(false, n, float)         \
    LU_FACTORISE(false, n, double)        \
    LU_FACTORISE(false, n, Lanes<float>)  \
    LU_FACTORISE(false, n, Lanes<double>) \
    LU_WIDE_BLOCKS(n)
#ifdef VORM_WIDER_REGISTERS
#define LU_WIDE_BLOCKS(n)                \
    LU_FACTORISE(false, n, Wide<float>)  \
    LU_FACTORISE(false, n, Wide<double>) \
    LU_FACTORISE(true, n, Wide<float>)   \
    LU_FACTORISE(true, n, Wide<double>)
#else
#define LU_WIDE_BLOCKS(n)
#endif

LU_BLOCKS(3)
LU_BLOCKS(4)
LU_BLOCKS(5)
LU_BLOCKS(6)
LU_FACTORISE(true, 5, Lanes<float>)
LU_FACTORISE(true, 5, Lanes<double>)
LU_FACTORISE(true, 6, Lanes<float>)

}  // namespace vorm::factor
