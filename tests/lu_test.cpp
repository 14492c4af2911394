// LU decomposition and substitution without the models: solutions by residuals, and LAPACK as an independent
// opinion on the factors.

#include <gtest/gtest.h>
#include <lapacke.h>

#include <numeric>

#include "operands.hpp"
#include "square_matrix.hpp"

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
                    error = worse(error, std::fabs(rest));
                }
                const long double unit = n * static_cast<long double>(std::numeric_limits<T>::epsilon()) * size;
                worst = worse(worst, double(error / (unit * sumX)));

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
