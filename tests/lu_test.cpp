// LU decomposition and substitution: thresholds and pivots known without a model, residuals, and LAPACK as
// an independent opinion.

#include <gtest/gtest.h>
#include <lapacke.h>

#include <numeric>

#include "operands.hpp"

namespace {

bool isUnrolled(int order) { return order >= 3 && order <= 6; }

// The two thresholds, absolute and deliberately unlike.
template <class T>
VormStatus statusOfDiagonal(int order, int column, T value)
{
    std::vector<T> a(std::size_t(order * order) * 8), lu = a;
    std::vector<int> rows(std::size_t(order) * 8);
    for (int n = 0; n < 8; ++n)
        for (int k = 0; k < order; ++k)
            a[std::size_t((n * order + k) * order + k)] = n == 5 && k == column ? value : T(1);
    const int e = sizeof(T), row = order * e;
    if constexpr (sizeof(T) == 4)
        return vormLUDecomp_ma_32f(a.data(), row * order, row, e, rows.data(), lu.data(), row * order, row, e, order,
                                   8);
    else
        return vormLUDecomp_ma_64f(a.data(), row * order, row, e, rows.data(), lu.data(), row * order, row, e, order,
                                   8);
}

TEST(Lu, Thresholds)
{
    for (int order = 1; order <= 8; ++order)
        for (int column = 0; column < order; ++column) {
            const auto expect = [&](bool regular) { return regular ? StatusOk : StatusSingular; };
            const bool unrolled = isUnrolled(order);
            EXPECT_EQ(statusOfDiagonal(order, column, 0x1p-125f), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-125f, 0.f)), StatusSingular);
            EXPECT_EQ(statusOfDiagonal(order, column, -1e-30f), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, -0x1p-23f), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-23f, 1.f)), StatusOk);
            EXPECT_EQ(statusOfDiagonal(order, column, 0x1p-1021), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-1021, 0.)), StatusSingular);
            EXPECT_EQ(statusOfDiagonal(order, column, 0x1p-52), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-52, 1.)), StatusOk);
            EXPECT_EQ(statusOfDiagonal(order, column, std::numeric_limits<double>::quiet_NaN()), StatusOk);
        }
}

// Pivots known without a model: the first of equal magnitudes, NaN that neither displaces nor is displaced.
TEST(Lu, PivotsInLanes)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float matrices[][9] = {{1, 5, 2, -1, 3, 4, 1, 2, 7},  {1, 0, 0, -2, 1, 0, 2, 0, 1},
                                 {nan, 1, 1, 2, 1, 0, 1, 0, 1}, {1, 1, 1, nan, 1, 0, 2, 0, 1},
                                 {0, 0, 1, 0, 1, 0, 1, 0, 0},   {0, 0, 0, 0, 0, 0, 0, 0, 0}};
    const int expected[][3] = {{0, 1, 2}, {1, 2, 0}, {0, 1, 2}, {2, 1, 0}, {2, 1, 0}, {0, 1, 2}};
    float factors[6][9];
    int rows[6][3];
    std::fill_n(&factors[0][0], 54, -7.f);
    EXPECT_EQ(vormLUDecomp_ma_32f(matrices[0], 36, 12, 4, rows[0], factors[0], 36, 12, 4, 3, 6), StatusSingular);
    for (int n : {0, 2, 3, 4, 5})
        for (int k = 0; k < 3; ++k) EXPECT_EQ(rows[n][k], expected[n][k]) << "object " << n;
    EXPECT_EQ(rows[1][0], expected[1][0]);
    EXPECT_EQ(std::count(factors[5], factors[5] + 9, -7.f), 9);  // nothing passed
}

// Residuals. ----------------------------------------------------------------------------------------------

enum class Kind { random, graded, permuted, nearlySingular, integers, count };

template <class T>
std::vector<T> matrixOf(Kind kind, int n, Random& random)
{
    std::vector<T> a(std::size_t(n * n));
    std::vector<int> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 0);
    shuffle(order, random);
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) {
            T value = T(uniform(random, -1, 1));
            if (kind == Kind::graded) value *= T(std::ldexp(1, (r - c) * 8 / n));
            if (kind == Kind::permuted) value = value / 8 + T(order[std::size_t(r)] == c);
            if (kind == Kind::nearlySingular && r == n - 1 && n > 1)
                value = a[std::size_t(c)] + value * std::sqrt(std::numeric_limits<T>::epsilon());
            if (kind == Kind::integers) value = T(pick(random, -9, 9));
            a[std::size_t(r * n + c)] = value;
        }
    return a;
}

// max |P A - L U| over n eps max |A|, and max |A x - b| over n eps (max |A| sum |x|), in higher precision.
template <class T>
void checkResiduals(double factorGate, double solutionGate, Random& random)
{
    using Wide = long double;
    const auto decompose = [](auto... a) {
        if constexpr (sizeof(T) == 4)
            return vormLUDecomp_m_32f(a...);
        else
            return vormLUDecomp_m_64f(a...);
    };
    const auto substitute = [](auto... a) {
        if constexpr (sizeof(T) == 4)
            return vormLUBackSubst_mv_32f(a...);
        else
            return vormLUBackSubst_mv_64f(a...);
    };
    double worstFactors = 0, worstSolution = 0;
    int regular = 0, tried = 0, samePivots = 0;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 40})
        for (int kind = 0; kind < int(Kind::count); ++kind)
            for (int repeat = 0; repeat < (n == 40 ? 10 : 200); ++repeat) {
                ++tried;
                const auto a = matrixOf<T>(Kind(kind), n, random);
                std::vector<T> lu(a.size()), b(static_cast<std::size_t>(n)), x = b;
                std::vector<int> rows(b.size());
                for (T& value : b) value = T(uniform(random, -1, 1));
                const int e = sizeof(T), row = n * e;
                if (decompose(a.data(), row, e, rows.data(), lu.data(), row, e, n) != StatusOk) continue;
                ++regular;
                ASSERT_EQ(substitute(lu.data(), row, e, rows.data(), b.data(), e, x.data(), e, n), StatusOk);
                const auto physical = [&](int k, int c) { return std::size_t(rows[std::size_t(k)] * n + c); };
                Wide size = 0, sumX = 0, factorError = 0, solutionError = 0;
                for (T value : a) size = std::max(size, Wide(std::fabs(value)));
                for (T value : x) sumX += std::fabs(value);
                for (int r = 0; r < n; ++r) {
                    Wide rest = -Wide(b[std::size_t(rows[std::size_t(r)])]);
                    for (int c = 0; c < n; ++c) {
                        Wide sum = r <= c ? Wide(lu[physical(r, c)]) : 0;
                        for (int k = 0; k < std::min(r, c + 1); ++k)
                            sum += Wide(lu[physical(r, k)]) * Wide(lu[physical(k, c)]);
                        factorError = std::max(factorError, std::fabs(sum - Wide(a[physical(r, c)])));
                        rest += Wide(a[physical(r, c)]) * Wide(x[std::size_t(c)]);
                    }
                    solutionError = std::max(solutionError, std::fabs(rest));
                }
                const Wide unit = n * Wide(std::numeric_limits<T>::epsilon()) * size;
                worstFactors = std::max(worstFactors, double(factorError / unit));
                worstSolution = std::max(worstSolution, double(solutionError / (unit * sumX)));

                // LAPACK orders the rows in the same way unless magnitudes are nearly equal.
                auto theirs = a;
                std::vector<lapack_int> exchanges(b.size());
                std::vector<int> theirRows(b.size());
                std::iota(theirRows.begin(), theirRows.end(), 0);
                if constexpr (sizeof(T) == 4)
                    LAPACKE_sgetrf(LAPACK_ROW_MAJOR, n, n, theirs.data(), n, exchanges.data());
                else
                    LAPACKE_dgetrf(LAPACK_ROW_MAJOR, n, n, theirs.data(), n, exchanges.data());
                for (std::size_t k = 0; k < b.size(); ++k)
                    std::swap(theirRows[k], theirRows[std::size_t(exchanges[k] - 1)]);
                if (theirRows != rows) continue;
                ++samePivots;
                if (Kind(kind) == Kind::nearlySingular || n == 40) continue;
                for (int k = 0; k < n; ++k)
                    for (int c = 0; c < n; ++c)
                        ASSERT_NEAR(lu[physical(k, c)], theirs[std::size_t(k * n + c)], 1e4 * double(unit))
                            << "order " << n << ", kind " << kind;
            }
    std::printf("factors %.2f, solution %.2f, %d of %d regular, %d with LAPACK's rows\n", worstFactors, worstSolution,
                regular, tried, samePivots);
    EXPECT_LT(worstFactors, factorGate);
    EXPECT_LT(worstSolution, solutionGate);
    EXPECT_GT(regular, tried * 9 / 10);
    EXPECT_GT(samePivots, regular * 9 / 10);
}

TEST(Lu, Residuals)
{
    Random random(20191107);
    checkResiduals<float>(1.1, 1.0, random);
    checkResiduals<double>(1.1, 1.0, random);
}

}  // namespace
