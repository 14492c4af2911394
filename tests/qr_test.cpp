// QR decomposition and solving without the models: factors, orthogonality and solutions by residuals, and LAPACK as an
// independent opinion on factors and least squares.

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
    static constexpr auto decompose = vormQRDecomp_m_32f;
    static constexpr auto solve = vormQRBackSubst_mv_32f;
    static constexpr auto theirFactors = LAPACKE_sgeqrf;
    static constexpr auto theirLeastSquares = LAPACKE_sgels;
};
template <>
struct Functions<double> {
    static constexpr auto decompose = vormQRDecomp_m_64f;
    static constexpr auto solve = vormQRBackSubst_mv_64f;
    static constexpr auto theirFactors = LAPACKE_dgeqrf;
    static constexpr auto theirLeastSquares = LAPACKE_dgels;
};

using Real = long double;
struct Shape {
    int rows, columns;
};
constexpr Shape shapes[] = {{1, 1},   {2, 2},   {3, 3},   {4, 4}, {5, 5}, {6, 6}, {7, 7}, {8, 8},  {9, 9},  {10, 10},
                            {11, 11}, {12, 12}, {40, 40}, {2, 1}, {3, 1}, {4, 2}, {6, 3}, {10, 4}, {12, 7}, {40, 9}};

enum class Kind { random, graded, permuted, nearlySingular, positiveDefinite, integers };
constexpr Kind kinds[] = {Kind::random,         Kind::graded,           Kind::permuted,
                          Kind::nearlySingular, Kind::positiveDefinite, Kind::integers};

template <class T>
std::vector<T> matrixOf(Shape s, Kind kind, Random& random)
{
    const int m = s.rows, n = s.columns;
    std::vector<T> a(std::size_t(m * n));
    const auto at = [&](int r, int c) -> T& { return a[std::size_t(r * n + c)]; };
    for (int r = 0; r < m; ++r)
        for (int c = 0; c < n; ++c) {
            const double value = uniform(random, -1, 1);
            at(r, c) = T(kind == Kind::graded     ? std::ldexp(value, (r - c) * 8 / m)
                         : kind == Kind::integers ? std::floor(4 * value)
                                                  : value);
            if (kind == Kind::permuted) at(r, c) = T((r * 7 + 3) % m == c ? 1 + value / 4 : 0);
        }
    if (kind == Kind::nearlySingular && n > 1)
        for (int r = 0; r < m; ++r) at(r, n - 1) = at(r, 0) * T(0.5) + T(1e-3) * at(r, n - 1);
    if (kind == Kind::positiveDefinite)
        for (int r = 0; r < n; ++r) at(r, r) += T(n);
    return a;
}

// Packed factors, with the scales that the library forms of them.
template <class T>
struct Factors {
    Shape shape;
    std::vector<T> packed, scales;

    Real component(int k, int i) const
    {
        return i < k ? 0 : i == k ? 1 : Real(packed[std::size_t(i * shape.columns + k)]);
    }
    // Multiplies a vector by Q in higher precision.
    std::vector<Real> timesQ(std::vector<Real> x) const
    {
        for (int k = int(scales.size()) - 1; k >= 0; --k) {
            Real t = 0;
            for (int i = 0; i < shape.rows; ++i) t += component(k, i) * x[std::size_t(i)];
            for (int i = 0; i < shape.rows; ++i)
                x[std::size_t(i)] += component(k, i) * t * Real(scales[std::size_t(k)]);
        }
        return x;
    }
};

template <class T>
struct Worst {
    double product = 0, orthogonality = 0, solution = 0, leastSquares = 0;
    int regular = 0, tried = 0, asTheirs = 0;
};

template <class T>
Real largest(const std::vector<T>& values)
{
    Real most = 0;
    for (T value : values) most = std::max(most, std::fabs(Real(value)));
    return most;
}

// max |Q R - A| over m eps max |A|, and max |Q'Q - I| over m eps.
template <class T>
void checkFactors(const Factors<T>& f, const std::vector<T>& a, Worst<T>& worst)
{
    const auto [m, n] = f.shape;
    const Real eps = std::numeric_limits<T>::epsilon();
    Real error = 0, skew = 0;
    for (int c = 0; c < n; ++c) {
        std::vector<Real> column(static_cast<std::size_t>(m));
        for (int r = 0; r <= c; ++r) column[std::size_t(r)] = Real(f.packed[std::size_t(r * n + c)]);
        const auto product = f.timesQ(column);
        for (int r = 0; r < m; ++r)
            error = worse(error, std::fabs(product[std::size_t(r)] - Real(a[std::size_t(r * n + c)])));
    }
    std::vector<std::vector<Real>> q;
    for (int c = 0; c < m; ++c) {
        std::vector<Real> unit(static_cast<std::size_t>(m));
        unit[std::size_t(c)] = 1;
        q.push_back(f.timesQ(unit));
    }
    for (int i = 0; i < m; ++i)
        for (int j = 0; j <= i; ++j) {
            Real sum = i == j ? -1 : 0;
            for (std::size_t r = 0; r < q.size(); ++r) sum += q[std::size_t(i)][r] * q[std::size_t(j)][r];
            skew = worse(skew, std::fabs(sum));
        }
    if (error != 0) worst.product = worse(worst.product, double(error / (m * eps * largest(a))));
    worst.orthogonality = worse(worst.orthogonality, double(skew / (m * eps)));
}

// Of a square system max |A x - b| over n eps max |A| sum |x|; otherwise max |A'(A x - b)| over m eps |A| (|A| |x| +
// |b|).
template <class T>
void checkSolution(Shape s, const std::vector<T>& a, const std::vector<T>& b, const std::vector<T>& x, Worst<T>& worst)
{
    const auto [m, n] = s;
    const Real eps = std::numeric_limits<T>::epsilon(), sizeOfA = largest(a);
    std::vector<Real> rest;
    Real sumX = 0, sumB = 0;
    for (T value : x) sumX += std::fabs(Real(value));
    for (T value : b) sumB += std::fabs(Real(value));
    for (int r = 0; r < m; ++r) {
        Real sum = -Real(b[std::size_t(r)]);
        for (int c = 0; c < n; ++c) sum += Real(a[std::size_t(r * n + c)]) * Real(x[std::size_t(c)]);
        rest.push_back(sum);
    }
    if (m == n) {
        worst.solution = worse(worst.solution, double(largest(rest) / (m * eps * sizeOfA * sumX)));
        return;
    }
    std::vector<Real> normal(x.size());
    for (int c = 0; c < n; ++c)
        for (int r = 0; r < m; ++r) normal[std::size_t(c)] += Real(a[std::size_t(r * n + c)]) * rest[std::size_t(r)];
    worst.leastSquares =
        worse(worst.leastSquares, double(largest(normal) / (m * eps * sizeOfA * (sizeOfA * sumX + sumB))));
}

template <class T>
Worst<T> checkAll()
{
    Random random(19580624);
    Worst<T> worst;
    const int e = sizeof(T);
    for (const Shape s : shapes)
        for (Kind kind : kinds)
            for (int repeat = 0; repeat < (s.rows == 40 ? 3 : 60); ++repeat) {
                const auto [m, n] = s;
                ++worst.tried;
                const auto a = matrixOf<T>(s, kind, random);
                Factors<T> f{s, a, {}};
                std::vector<T> b(std::size_t(m), 0), buffer = b, x(std::size_t(n), 0);
                for (T& value : b) value = T(uniform(random, -1, 1));
                if (Functions<T>::decompose(a.data(), n * e, e, buffer.data(), f.packed.data(), n * e, e, n, m))
                    continue;
                bool isRegular = true;
                for (int k = 0; k < n; ++k)
                    isRegular = isRegular && std::fabs(f.packed[std::size_t(k * n + k)]) > T(1e-4);
                for (int k = 0; k < (m == n ? n - 1 : n); ++k) {
                    T sums[] = {1, 0};
                    for (int i = k + 1; i < m; ++i) {
                        const T v = f.packed[std::size_t(i * n + k)];
                        if (i == m - 1 && (i - k) % 2 == 1) sums[0] += sums[1], sums[1] = 0;
                        sums[(i - k + 1) % 2] += v * v;
                    }
                    f.scales.push_back(-2 / (sums[0] + sums[1]));
                }
                checkFactors(f, a, worst);
                if (!isRegular) continue;
                ++worst.regular;
                Functions<T>::solve(f.packed.data(), n * e, e, buffer.data(), b.data(), e, x.data(), e, n, m);
                checkSolution(s, a, b, x, worst);

                auto theirs = a, theirX = b, again = a;
                std::vector<T> tau(x.size());
                Functions<T>::theirFactors(LAPACK_ROW_MAJOR, m, n, theirs.data(), n, tau.data());
                Functions<T>::theirLeastSquares(LAPACK_ROW_MAJOR, 'N', m, n, 1, again.data(), n, theirX.data(), 1);
                // Theirs turns a zero on top to the other side.
                bool isSame = true;
                const T tolerance = T(3e3 * m) * std::numeric_limits<T>::epsilon();
                for (std::size_t k = 0; k < a.size(); ++k)
                    isSame = isSame && std::fabs(f.packed[k] - theirs[k]) <= tolerance * T(1 + largest(a));
                worst.asTheirs += isSame;
                const T rough = T(sizeof(T) == 4 ? 2e-2 : 1e-9);
                for (int i = 0; i < n; ++i)
                    EXPECT_NEAR(x[std::size_t(i)], theirX[std::size_t(i)], rough * T(1 + largest(x)))
                        << m << " x " << n << ", kind " << int(kind);
            }
    std::printf(
        "QR - A %.2f, Q'Q - I %.2f, solutions %.2f, least squares %.2f; %d of %d regular, %d with LAPACK's factors\n",
        worst.product, worst.orthogonality, worst.solution, worst.leastSquares, worst.regular, worst.tried,
        worst.asTheirs);
    EXPECT_GT(worst.regular, worst.tried * 8 / 10);
    EXPECT_GT(worst.asTheirs, worst.regular * 8 / 10);
    return worst;
}

template <class T>
void expectWithin(double product, double orthogonality, double solution, double leastSquares)
{
    const Worst<T> worst = checkAll<T>();
    EXPECT_LT(worst.product, product);
    EXPECT_LT(worst.orthogonality, orthogonality);
    EXPECT_LT(worst.solution, solution);
    EXPECT_LT(worst.leastSquares, leastSquares);
}

// Twice what is reached.
TEST(Qr, Residuals)
{
    expectWithin<float>(4, 3, 2, 1.6);
    expectWithin<double>(4, 3, 2, 1.6);
}

// The sign rule at zero, the threshold of the sum of squares, and the last column of a square matrix.
TEST(Qr, KnownCases)
{
    const auto factors = [](std::vector<float> a, int width, int height, VormStatus expected) {
        std::vector<float> buffer(static_cast<std::size_t>(height)), dst(a.size(), 99);
        EXPECT_EQ(vormQRDecomp_m_32f(a.data(), 4 * width, 4, buffer.data(), dst.data(), 4 * width, 4, width, height),
                  expected);
        return dst;
    };
    using Elements = std::vector<float>;
    EXPECT_EQ(factors({0}, 1, 1, StatusOk), (Elements{0}));
    EXPECT_EQ(factors({3, 4}, 1, 2, StatusOk), (Elements{-5, 0.5f}));
    EXPECT_EQ(factors({-3, 4}, 1, 2, StatusOk), (Elements{5, -0.5f}));
    EXPECT_EQ(factors({0, 4}, 1, 2, StatusOk), (Elements{4, -1}));
    EXPECT_EQ(factors({-0.0f, 4}, 1, 2, StatusOk), (Elements{4, -1}));
    EXPECT_EQ(factors({3e-4f, 1e-4f}, 1, 2, StatusDivisionByZero), (Elements{3e-4f, 1e-4f}));
    EXPECT_EQ(factors({0, 0, 0, 0}, 2, 2, StatusDivisionByZero), (Elements{0, 0, 0, 0}));
    EXPECT_EQ(factors({1, 0, 0, 0}, 2, 2, StatusOk), (Elements{-1, 0, 0, 0}));

    // b = (1, 2, 2) on the column (2, 3, 6): x = 20 / 49.
    const float a[] = {2, 3, 6}, b[] = {1, 2, 2};
    float buffer[3], qr[3], x = 0;
    EXPECT_EQ(vormQRDecomp_m_32f(a, 4, 4, buffer, qr, 4, 4, 1, 3), StatusOk);
    EXPECT_EQ(vormQRBackSubst_mv_32f(qr, 4, 4, buffer, b, 4, &x, 4, 1, 3), StatusOk);
    EXPECT_NEAR(x, 20.0f / 49, 1e-7f);
}

}  // namespace
