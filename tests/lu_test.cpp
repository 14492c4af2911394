// LU decomposition and substitution: thresholds and pivots known without a model, and solutions by residuals,
// with LAPACK as an independent opinion on the factors.

#include <gtest/gtest.h>
#include <lapacke.h>

#include <numeric>

#include "operands.hpp"

namespace {

// One packed matrix, in either type.
template <class T>
struct Functions;
template <>
struct Functions<float> {
    static constexpr auto decompose = vormLUDecomp_m_32f;
    static constexpr auto substitute = vormLUBackSubst_mv_32f;
    static constexpr auto theirs = LAPACKE_sgetrf;
};
template <>
struct Functions<double> {
    static constexpr auto decompose = vormLUDecomp_m_64f;
    static constexpr auto substitute = vormLUBackSubst_mv_64f;
    static constexpr auto theirs = LAPACKE_dgetrf;
};

// The two thresholds, absolute and deliberately unlike.
template <class T>
void checkThresholds(T small, T epsilon)
{
    constexpr int e = sizeof(T);
    for (int order = 1; order <= 8; ++order)
        for (int column = 0; column < order; ++column) {
            const auto statusOf = [&](T pivot) {
                std::vector<T> a(std::size_t(order * order)), lu = a;
                std::vector<int> rows(static_cast<std::size_t>(order));
                for (int k = 0; k < order; ++k) a[std::size_t(k * order + k)] = k == column ? pivot : T(1);
                return Functions<T>::decompose(a.data(), order * e, e, rows.data(), lu.data(), order * e, e, order);
            };
            const VormStatus tiny = order >= 3 && order <= 6 ? StatusOk : StatusSingular;
            EXPECT_EQ(statusOf(small), tiny);
            EXPECT_EQ(statusOf(std::nextafter(small, T(0))), StatusSingular);
            EXPECT_EQ(statusOf(-epsilon), tiny);
            EXPECT_EQ(statusOf(std::nextafter(epsilon, T(1))), StatusOk);
            EXPECT_EQ(statusOf(std::numeric_limits<T>::quiet_NaN()), StatusOk);
        }
}

TEST(Lu, Thresholds)
{
    checkThresholds(0x1p-125f, 0x1p-23f);
    checkThresholds(0x1p-1021, 0x1p-52);
}

// The first of equal magnitudes; NaN neither displaces nor is displaced.
TEST(Lu, Pivots)
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

// max |A x - b| over n eps (max |A| sum |x|), in higher precision. LAPACK orders the rows in the same way
// unless magnitudes are nearly equal, and then has nearly the same factors.
template <class T>
void checkSolutions(double gate)
{
    Random random(20191107);
    double worst = 0;
    int regular = 0, tried = 0, samePivots = 0;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 40})
        for (int graded : {0, 8, 16})
            for (int repeat = 0; repeat < (n == 40 ? 10 : 200); ++repeat) {
                ++tried;
                std::vector<T> a(std::size_t(n * n)), lu = a, b(static_cast<std::size_t>(n)), x = b;
                std::vector<int> rows(b.size()), theirRows(b.size());
                for (int k = 0; k < n * n; ++k)
                    a[std::size_t(k)] = T(std::ldexp(uniform(random, -1, 1), (k / n - k % n) * graded / n));
                for (T& value : b) value = T(uniform(random, -1, 1));
                const int e = sizeof(T), row = n * e;
                if (Functions<T>::decompose(a.data(), row, e, rows.data(), lu.data(), row, e, n) != StatusOk) continue;
                ++regular;
                Functions<T>::substitute(lu.data(), row, e, rows.data(), b.data(), e, x.data(), e, n);
                long double size = 0, sumX = 0, error = 0;
                for (T value : a) size = std::max(size, std::fabs(static_cast<long double>(value)));
                for (T value : x) sumX += std::fabs(value);
                for (std::size_t r = 0; r < b.size(); ++r) {
                    long double rest = -static_cast<long double>(b[r]);
                    for (std::size_t c = 0; c < b.size(); ++c)
                        rest += static_cast<long double>(a[r * b.size() + c]) * static_cast<long double>(x[c]);
                    error = std::max(error, std::fabs(rest));
                }
                const long double unit = n * static_cast<long double>(std::numeric_limits<T>::epsilon()) * size;
                worst = std::max(worst, double(error / (unit * sumX)));

                auto theirs = a;
                std::vector<lapack_int> exchanges(b.size());
                std::iota(theirRows.begin(), theirRows.end(), 0);
                Functions<T>::theirs(LAPACK_ROW_MAJOR, n, n, theirs.data(), n, exchanges.data());
                for (std::size_t k = 0; k < b.size(); ++k)
                    std::swap(theirRows[k], theirRows[std::size_t(exchanges[k] - 1)]);
                if (theirRows != rows) continue;
                ++samePivots;
                for (int k = 0; k < n * n; ++k)
                    ASSERT_NEAR(lu[std::size_t(rows[std::size_t(k / n)] * n + k % n)], theirs[std::size_t(k)],
                                1e4 * double(unit))
                        << "order " << n << ", graded " << graded;
            }
    std::printf("%.2f, %d of %d regular, %d with LAPACK's rows\n", worst, regular, tried, samePivots);
    EXPECT_LT(worst, gate);
    EXPECT_GT(regular, tried * 9 / 10);
    EXPECT_GT(samePivots, regular * 9 / 10);
}

TEST(Lu, Solutions)
{
    checkSolutions<float>(1);
    checkSolutions<double>(1);
}

}  // namespace
