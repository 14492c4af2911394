// Cholesky decomposition and substitution without the models: factors and solutions by residuals, LAPACK as an
// independent opinion, and pointer tables that lead nowhere above the diagonal.

#include <gtest/gtest.h>
#include <lapacke.h>

#include "operands.hpp"
#include "square_matrix.hpp"

namespace {

// One packed matrix, in either type.
template <class T>
struct Functions;
template <>
struct Functions<float> {
    static constexpr auto decompose = vormCholeskyDecomp_m_32f;
    static constexpr auto substitute = vormCholeskyBackSubst_mv_32f;
    static constexpr auto decomposePointers = vormCholeskyDecomp_m_32f_P;
    static constexpr auto decomposePlanes = vormCholeskyDecomp_ma_32f_P;
    static constexpr auto substitutePlanes = vormCholeskyBackSubst_mava_32f_P;
    static constexpr auto theirs = LAPACKE_spotrf;
};
template <>
struct Functions<double> {
    static constexpr auto decompose = vormCholeskyDecomp_m_64f;
    static constexpr auto substitute = vormCholeskyBackSubst_mv_64f;
    static constexpr auto decomposePointers = vormCholeskyDecomp_m_64f_P;
    static constexpr auto decomposePlanes = vormCholeskyDecomp_ma_64f_P;
    static constexpr auto substitutePlanes = vormCholeskyBackSubst_mava_64f_P;
    static constexpr auto theirs = LAPACKE_dpotrf;
};

using Wide = long double;

enum class Kind { random, graded, permuted, nearlySingular, integers };

// G G', whose last row is nearly another one or whose rows grow by 2^4 each, downwards or in any order; by 2 each where
// there are so many that the squares would be infinite in single precision.
template <class T>
std::vector<T> definite(int n, Kind kind, Random& random)
{
    std::vector<Wide> g(std::size_t(n * n));
    std::vector<int> grade(static_cast<std::size_t>(n));
    const int step = n > 12 ? 1 : 4;
    for (int r = 0; r < n; ++r) grade[std::size_t(r)] = kind == Kind::graded || kind == Kind::permuted ? step * r : 0;
    if (kind == Kind::permuted) shuffle(grade, random);
    for (int k = 0; k < n * n; ++k)
        g[std::size_t(k)] = kind == Kind::integers
                                ? Wide(pick(random, -3, 3))
                                : std::ldexp(Wide(uniform(random, -1, 1)), grade[std::size_t(k / n)]);
    for (int c = 0; c < n && kind == Kind::nearlySingular; ++c)
        g[std::size_t((n - 1) * n + c)] = g[std::size_t(c)] + g[std::size_t((n - 1) * n + c)] / 16;
    std::vector<T> a(std::size_t(n * n));
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) {
            Wide sum = r == c ? std::ldexp(Wide(0.01), 2 * grade[std::size_t(r)]) : 0;
            if (kind == Kind::integers && r == c) sum = 1;
            for (int k = 0; k < n; ++k) sum += g[std::size_t(r * n + k)] * g[std::size_t(c * n + k)];
            a[std::size_t(r * n + c)] = T(sum);
        }
    return a;
}

// max |L L' - A| over n eps max |A|, with 1 / L(i, i) on the factor's diagonal; max |A x - b| over n eps (max |A| sum
// |x|); both in higher precision. Gates are twice what is reached.
template <class T>
void checkResiduals(double factorGate, double solutionGate)
{
    Random random(20260107);
    double worstFactor = 0, worstSolution = 0, worstOpinion = 0;
    int definiteOnes = 0, tried = 0;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 40})
        for (Kind kind : {Kind::random, Kind::graded, Kind::permuted, Kind::nearlySingular, Kind::integers})
            for (int repeat = 0; repeat < (n == 40 ? 6 : 100); ++repeat) {
                ++tried;
                const std::vector<T> a = definite<T>(n, kind, random);
                std::vector<T> factor(a.size()), theirs = a, b(static_cast<std::size_t>(n)), x = b;
                for (T& value : b) value = T(uniform(random, -1, 1));
                const int e = sizeof(T), row = n * e;
                const VormStatus status = Functions<T>::decompose(a.data(), row, e, factor.data(), row, e, n);
                if (status != StatusOk) continue;
                ++definiteOnes;
                Functions<T>::substitute(factor.data(), row, e, b.data(), e, x.data(), e, n);
                const auto l = [&](int r, int c) {
                    const Wide value = factor[std::size_t(r * n + c)];
                    return r == c ? 1 / value : value;
                };
                Wide size = 0, sumX = 0, error = 0, rest = 0;
                for (int r = 0; r < n; ++r)
                    for (int c = 0; c <= r; ++c) {
                        Wide sum = -Wide(a[std::size_t(r * n + c)]);
                        size = std::max(size, std::fabs(sum));
                        for (int k = 0; k <= c; ++k) sum += l(r, k) * l(c, k);
                        error = worse(error, std::fabs(sum));
                    }
                for (T value : x) sumX += std::fabs(value);
                for (int r = 0; r < n; ++r) {
                    Wide sum = -Wide(b[std::size_t(r)]);
                    for (int c = 0; c < n; ++c) sum += Wide(a[std::size_t(r * n + c)]) * Wide(x[std::size_t(c)]);
                    rest = worse(rest, std::fabs(sum));
                }
                const Wide unit = n * Wide(std::numeric_limits<T>::epsilon()) * size;
                worstFactor = worse(worstFactor, double(error / unit));
                worstSolution = worse(worstSolution, double(rest / (unit * sumX)));

                // LAPACK's factor, as far as the two can be compared: where the matrix is far from singular.
                ASSERT_EQ(Functions<T>::theirs(LAPACK_ROW_MAJOR, 'L', n, theirs.data(), n), 0);
                if (kind == Kind::random && n <= 12)
                    for (int r = 0; r < n; ++r)
                        for (int c = 0; c <= r; ++c)
                            worstOpinion = worse(
                                worstOpinion, double(std::fabs(l(r, c) - Wide(theirs[std::size_t(r * n + c)])) / unit));
            }
    std::printf("%.2f, solutions %.2f, from LAPACK's %.0f, %d of %d definite\n", worstFactor, worstSolution,
                worstOpinion, definiteOnes, tried);
    EXPECT_LT(worstFactor, factorGate);
    EXPECT_LT(worstSolution, solutionGate);
    EXPECT_LT(worstOpinion, 12);
    EXPECT_GT(definiteOnes, tried * 95 / 100);
}

TEST(Cholesky, Residuals)
{
    checkResiduals<float>(6, 6);
    checkResiduals<double>(3, 4);
}

// Both opinions on matrices with eigenvalues of both signs, none of them near zero.
template <class T>
void checkIndefinite()
{
    Random random(11);
    for (int n = 1; n <= 12; ++n)
        for (int repeat = 0; repeat < 50; ++repeat) {
            std::vector<T> a = definite<T>(n, Kind::integers, random), factor = a;
            a[std::size_t(pick(random, 0, n - 1) * (n + 1))] -= T(pick(random, 0, 1) * 40 * n);
            std::vector<T> theirs = a;
            const int row = n * int{sizeof(T)};
            const auto refused = Functions<T>::theirs(LAPACK_ROW_MAJOR, 'L', n, theirs.data(), n);
            EXPECT_EQ(Functions<T>::decompose(a.data(), row, sizeof(T), factor.data(), row, sizeof(T), n),
                      refused ? StatusNotPositiveDefinite : StatusOk);
        }
}
TEST(Cholesky, Indefinite)
{
    checkIndefinite<float>();
    checkIndefinite<double>();
}

// Tables whose entries above the diagonal are null, or those of the elements below it: of one matrix, of planes and of
// elements anywhere. All have the bits of the matrix by itself.
template <class T>
void checkTables()
{
    Random random(5);
    constexpr int count = 23;
    for (int n = 2; n <= 20; ++n)
        for (bool isMirrored : {false, true})
            for (int objectStep : {1, 2}) {
                const auto elements = std::size_t(n * n);
                std::vector<std::vector<T>> matrices;
                std::vector<T> source(elements * count * 2), result(source.size()), b(std::size_t(n) * count * 2, T(1)),
                    x(b.size());
                std::vector<T*> from(elements), to(elements), right(static_cast<std::size_t>(n)),
                    solution(right.size());
                for (int k = 0; k < n * n; ++k) {
                    const int r = k / n, c = k % n, stored = isMirrored && c > r ? c * n + r : k;
                    const bool isNull = !isMirrored && c > r;
                    from[std::size_t(k)] = isNull ? nullptr : &source[std::size_t(stored * count * 2)];
                    to[std::size_t(k)] = isNull ? nullptr : &result[std::size_t(stored * count * 2)];
                }
                for (int i = 0; i < n; ++i)
                    right[std::size_t(i)] = &b[std::size_t(i * count * 2)],
                    solution[std::size_t(i)] = &x[std::size_t(i * count * 2)];
                for (int m = 0; m < count; ++m) {
                    matrices.push_back(definite<T>(n, Kind::random, random));
                    for (int k = 0; k < n * n; ++k)
                        if (k % n <= k / n) from[std::size_t(k)][m * objectStep] = matrices.back()[std::size_t(k)];
                }
                const int e = sizeof(T), row = n * e;
                ASSERT_EQ(Functions<T>::decomposePlanes(from.data(), 0, e * objectStep, to.data(), 0, e * objectStep, n,
                                                        count),
                          StatusOk);
                ASSERT_EQ(Functions<T>::substitutePlanes(to.data(), 0, e * objectStep, right.data(), 0, e * objectStep,
                                                         solution.data(), 0, e * objectStep, n, count),
                          StatusOk);
                const auto expectAll = [&](int m, const std::vector<T>& factor) {
                    for (int r = 0; r < n; ++r)
                        for (int c = 0; c <= r; ++c) {
                            const auto k = std::size_t(r * n + c);
                            ASSERT_EQ(to[k][m * objectStep], factor[k]) << n << ", " << m;
                        }
                };
                for (int m = 0; m < count; ++m) {
                    std::vector<T> factor(elements), own(static_cast<std::size_t>(n)), ones(own.size(), T(1));
                    Functions<T>::decompose(matrices[std::size_t(m)].data(), row, e, factor.data(), row, e, n);
                    Functions<T>::substitute(factor.data(), row, e, ones.data(), e, own.data(), e, n);
                    expectAll(m, factor);
                    for (int i = 0; i < n; ++i)
                        ASSERT_EQ(solution[std::size_t(i)][m * objectStep], own[std::size_t(i)]) << n << ", " << m;
                    if (m > 0) continue;
                    ASSERT_EQ(Functions<T>::decomposePointers(from.data(), 0, to.data(), 0, n), StatusOk);
                    expectAll(0, factor);
                }
            }
}
TEST(Cholesky, TablesOfTriangles)
{
    checkTables<float>();
    checkTables<double>();
}

}  // namespace
