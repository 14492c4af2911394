// General eigenvectors without a model: exactly known cases, residuals of either side, failures in the middle of
// arrays, and LAPACK as an independent opinion.

#include <gtest/gtest.h>
#include <lapacke.h>

#include <complex>

#include "eigen_matrices.hpp"
#include "square_matrix.hpp"
#include "standin_core.hpp"

namespace {

template <class T>
struct Functions;
template <>
struct Functions<float> {
    static constexpr auto right = vormEigenValuesVectorsRight_m_32f;
    static constexpr auto left = vormEigenValuesVectorsLeft_m_32f;
    static constexpr auto both = vormEigenValuesVectors_m_32f;
    static constexpr auto rightArray = vormEigenValuesVectorsRight_ma_32f;
    static constexpr auto leftArray = vormEigenValuesVectorsLeft_ma_32f;
    static constexpr auto bothArray = vormEigenValuesVectors_ma_32f;
    static constexpr auto values = vormEigenValues_m_32f;
    static constexpr auto theirs = LAPACKE_sgeev;
};
template <>
struct Functions<double> {
    static constexpr auto right = vormEigenValuesVectorsRight_m_64f;
    static constexpr auto left = vormEigenValuesVectorsLeft_m_64f;
    static constexpr auto both = vormEigenValuesVectors_m_64f;
    static constexpr auto rightArray = vormEigenValuesVectorsRight_ma_64f;
    static constexpr auto leftArray = vormEigenValuesVectorsLeft_ma_64f;
    static constexpr auto bothArray = vormEigenValuesVectors_ma_64f;
    static constexpr auto values = vormEigenValues_m_64f;
    static constexpr auto theirs = LAPACKE_dgeev;
};

using Real = long double;
using Number = std::complex<Real>;

template <class T>
struct Solution {
    int order;
    VormStatus status;
    std::vector<T> re, im, vectors;

    bool isReal(int j) const { return im[std::size_t(j)] == 0; }
    Number value(int j) const { return {Real(re[std::size_t(j)]), Real(im[std::size_t(j)])}; }
    T element(int i, int j) const { return vectors[std::size_t(i * order + j)]; }
    // Component i of the vector of value j, which is a real one or the first of a pair.
    Number component(int i, int j) const
    {
        return {Real(element(i, j)), isReal(j) ? Real(0) : Real(element(i, j + 1))};
    }
    int next(int j) const { return isReal(j) ? j + 1 : j + 2; }
};

// Filled with a number that no result has, to see what is written.
template <class T>
constexpr T untouched = T(-777);

template <class T>
Solution<T> solve(const std::vector<T>& a, auto function)
{
    const int n = orderOf(a), e = sizeof(T);
    const auto size = std::size_t(n);
    std::vector<T> buffer(size * (3 * size + 5));
    Solution<T> s{n, StatusOk, std::vector<T>(size, untouched<T>), std::vector<T>(size, untouched<T>),
                  std::vector<T>(size * size, untouched<T>)};
    s.status = function(a.data(), n * e, e, s.vectors.data(), n * e, e, s.re.data(), s.im.data(), n, buffer.data());
    return s;
}
template <class T>
auto right(const std::vector<T>& a)
{
    return solve(a, Functions<T>::right);
}
template <class T>
auto left(const std::vector<T>& a)
{
    return solve(a, Functions<T>::left);
}

template <class T>
class EigenVectors : public testing::Test {
};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(EigenVectors, Types);

// Exactly known. ---------------------------------------------------------------------------------------------------

TYPED_TEST(EigenVectors, OrderOne)
{
    using T = TypeParam;
    for (T value : {T(3), T(0), T(-2), std::numeric_limits<T>::infinity()}) {
        const auto s = right(std::vector<T>{value});
        EXPECT_EQ(s.status, StatusOk);
        EXPECT_EQ(s.re[0], value);
        EXPECT_EQ(s.im[0], 0);
        EXPECT_EQ(s.vectors[0], 1);
        EXPECT_EQ(left(std::vector<T>{value}).vectors[0], 1);
    }
}

TYPED_TEST(EigenVectors, DiagonalHasUnitVectorsInPlace)
{
    using T = TypeParam;
    for (int n = 2; n <= 9; ++n) {
        std::vector<T> a(std::size_t(n * n));
        for (int i = 0; i < n; ++i) a[std::size_t(i * n + i)] = T((i * 5) % 7 - 3);
        for (const auto& s : {right(a), left(a)}) {
            EXPECT_EQ(s.status, StatusOk);
            for (int j = 0; j < n; ++j) {
                EXPECT_EQ(s.re[std::size_t(j)], a[std::size_t(j * n + j)]);
                for (int i = 0; i < n; ++i) EXPECT_EQ(std::fabs(s.element(i, j)), i == j) << n << " " << i << " " << j;
            }
        }
    }
}

TYPED_TEST(EigenVectors, Triangular)
{
    using T = TypeParam;
    // Values 1, 2, 4 with right vectors (1,0,0), (1,1,0), (4,3,3), and left ones (3,-3,-1), (0,1,-1), (0,0,1).
    const std::vector<T> upper = {1, 1, 1, 0, 2, 2, 0, 0, 4};
    const T rights[3][3] = {{1, 0, 0}, {1, 1, 0}, {2, 3, 3}}, lefts[3][3] = {{1, -1, T(1) / 3}, {0, 1, -1}, {0, 0, 1}};
    const auto expectParallel = [](const Solution<T>& s, int j, const T(&x)[3]) {
        Real dot = 0, squares = 0, own = 0;
        for (int i = 0; i < 3; ++i)
            dot += Real(s.element(i, j)) * x[i], squares += Real(x[i]) * x[i],
                own += Real(s.element(i, j)) * s.element(i, j);
        EXPECT_NEAR(double(std::fabs(dot) / std::sqrt(squares * own)), 1, 20 * std::numeric_limits<T>::epsilon());
    };
    const auto r = right(upper), l = left(upper);
    for (int j = 0; j < 3; ++j) {
        const int k = r.re[std::size_t(j)] < T(1.5) ? 0 : r.re[std::size_t(j)] < 3 ? 1 : 2;
        expectParallel(r, j, rights[k]);
        expectParallel(l, j, lefts[k]);
    }
    // One stored by columns keeps its diagonal.
    std::vector<T> lower = {1, 0, 0, 1, 2, 0, 1, 2, 4};
    const auto s = right(lower);
    EXPECT_EQ(s.re, (std::vector<T>{1, 2, 4}));
    for (int j = 0; j < 3; ++j) expectParallel(s, j, lefts[j]);
}

TYPED_TEST(EigenVectors, Rotation)
{
    using T = TypeParam;
    const T c = T(0.6), s = T(0.8), root = std::sqrt(T(0.5));
    const std::vector<T> a = {c, -s, s, c};
    for (const auto& solution : {right(a), left(a)}) {
        EXPECT_EQ(solution.re, (std::vector<T>{c, c}));
        EXPECT_NEAR(solution.im[0], s, 1e-6);
        EXPECT_EQ(solution.im[1], -solution.im[0]);
        int exactlyReal = 0;
        for (int i = 0; i < 2; ++i) {
            exactlyReal += solution.element(i, 1) == 0;
            EXPECT_NEAR(double(std::abs(solution.component(i, 0))), root, 1e-6);
        }
        EXPECT_EQ(exactlyReal, 1);
    }
    // Of components of one size the first is made real.
    for (const auto& solution : {right(std::vector<T>{0, -1, 1, 0}), left(std::vector<T>{0, -1, 1, 0})}) {
        EXPECT_EQ(solution.element(0, 1), 0);
        EXPECT_EQ(std::fabs(solution.element(1, 1)), std::fabs(solution.element(0, 0)));
    }
}

TYPED_TEST(EigenVectors, JordanBlocksHaveNearlyParallelVectors)
{
    using T = TypeParam;
    for (int n = 2; n <= 8; ++n)
        for (bool isUpper : {true, false}) {
            std::vector<T> a(std::size_t(n * n));
            for (int i = 0; i < n; ++i) {
                a[std::size_t(i * n + i)] = 2;
                if (i > 0) a[std::size_t(isUpper ? (i - 1) * n + i : i * n + i - 1)] = 1;
            }
            const int place = isUpper ? 0 : n - 1;
            const auto s = right(a);
            ASSERT_TRUE(s.status == StatusOk || s.status == StatusBadArgument);
            for (int j = 0; s.status == StatusOk && j < n; ++j)
                EXPECT_NEAR(std::fabs(s.element(place, j)), 1, 1e-2) << n << " " << j << " " << isUpper;
        }
}

TYPED_TEST(EigenVectors, Companion)
{
    using T = TypeParam;
    // (x - 1)(x - 2)(x - 3)(x - 4): right vectors are the powers of the root.
    const std::vector<T> a = {0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, -24, 50, -35, 10};
    const auto s = right(a);
    ASSERT_EQ(s.status, StatusOk);
    for (int j = 0; j < 4; ++j) {
        const T root = std::round(s.re[std::size_t(j)]);
        EXPECT_NEAR(s.re[std::size_t(j)], root, 5e4 * std::numeric_limits<T>::epsilon());
        for (int i = 1; i < 4; ++i)
            EXPECT_NEAR(s.element(i, j) / s.element(0, j), std::pow(root, T(i)),
                        5e6 * std::numeric_limits<T>::epsilon());
    }
}

// Residuals. -------------------------------------------------------------------------------------------------------

struct Worst {
    Real residual = 0, length = 0;
    int tried = 0, vectors = 0, unlikely = 0;
};

// |A x - lambda x| or |y'A - lambda y'| over eps n |A|, and | |x| - 1 | over eps. What the iteration takes for zero is
// absolute, so that below a norm of 1 errors do not become smaller with it.
template <class T>
void check(const std::vector<T>& a, const Solution<T>& s, bool isRight, Worst& worst)
{
    const int n = s.order;
    const Real eps = std::numeric_limits<T>::epsilon(), norm = std::max(Real(1), frobenius(a));
    for (int j = 0; j < n; j = s.next(j)) {
        const Number lambda = isRight ? s.value(j) : std::conj(s.value(j));
        Real squares = 0, rest = 0, most = 0;
        int real = 0;
        for (int i = 0; i < n; ++i) {
            Number sum = -lambda * s.component(i, j);
            for (int k = 0; k < n; ++k)
                sum += Real(a[std::size_t(isRight ? i * n + k : k * n + i)]) * s.component(k, j);
            rest += std::norm(sum);
            squares += std::norm(s.component(i, j));
            most = std::max(most, std::norm(s.component(i, j)));
        }
        for (int i = 0; i < n; ++i)
            real += s.component(i, j).imag() == 0 && std::norm(s.component(i, j)) >= most * (1 - 20 * eps);
        worst.unlikely += real < 1;  // the largest component of a pair is real
        worst.residual = worse(worst.residual, std::sqrt(rest) / (eps * n * norm));
        worst.length = worse(worst.length, std::fabs(std::sqrt(squares) - 1) / eps);
        ++worst.vectors;
    }
}

TYPED_TEST(EigenVectors, ResidualsOfBothSides)
{
    using T = TypeParam;
    Random random(18290917);
    Worst worst;
    for (Spectrum spectrum : spectra)
        for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 40})
            for (int repeat = 0; repeat < (n == 40 ? 3 : 100); ++repeat) {
                const auto a = matrixOf<T>(n, spectrum, random);
                ++worst.tried;
                const auto r = right(a), l = left(a);
                ASSERT_EQ(r.status, StatusOk) << n << " " << int(spectrum);
                ASSERT_EQ(l.status, StatusOk) << n << " " << int(spectrum);
                EXPECT_EQ(r.re, l.re);
                EXPECT_EQ(r.im, l.im);
                check(a, r, true, worst);
                check(a, l, false, worst);
                if (this->HasFailure()) return;
            }
    std::printf("%d matrices, %d vectors: residual %.2f, length %.2f\n", worst.tried, worst.vectors,
                double(worst.residual), double(worst.length));
    EXPECT_LT(worst.residual, 5.6);
    EXPECT_LT(worst.length, 6);
    EXPECT_EQ(worst.unlikely, 0);
}

// Elements near the ends of the range, and vectors whose components lie far apart.
TYPED_TEST(EigenVectors, ExtremeScales)
{
    using T = TypeParam;
    Random random(7);
    Worst worst;
    int grown = 0;
    const int range = sizeof(T) == 4 ? 40 : 300;
    for (int exponent : {-range / 4, range / 4, range})
        for (int n : {2, 3, 4, 6, 10})
            for (int repeat = 0; repeat < 50; ++repeat) {
                auto a = matrixOf<T>(n, Spectrum::random, random);
                for (T& element : a) element = std::ldexp(element, exponent);
                const auto r = right(a), l = left(a);
                if (r.status != StatusOk || l.status != StatusOk) continue;
                ++worst.tried;
                // Where elements are small beside 1 what is absolute in the method counts.
                for (const auto& vectors : {r.vectors, l.vectors})
                    for (T x : vectors) ASSERT_LE(std::fabs(x), T(1.001));
                if (exponent < 0) continue;
                check(a, r, true, worst);
                check(a, l, false, worst);
            }
    // Triangular matrices whose vectors grow beyond the range on the way, of real values and of pairs.
    const T small = std::ldexp(T(1), sizeof(T) == 4 ? -20 : -50), large = std::ldexp(T(1), sizeof(T) == 4 ? 60 : 500);
    for (int n : {6, 7, 12})
        for (bool isUpper : {false, true})
            for (int pairs : {0, 1, 2}) {
                std::vector<T> a(std::size_t(n * n));
                for (int i = 0; i < n; ++i)
                    for (int j = 0; j <= i; ++j)
                        a[std::size_t(isUpper ? j * n + i : i * n + j)] = i == j ? small * T(i) : large;
                for (int i = 0; i < pairs; ++i) {
                    const std::size_t k = std::size_t(3 * i * (n + 1)), next = k + std::size_t(n + 1);
                    a[next] = a[k];
                    a[k + 1] = small, a[k + std::size_t(n)] = -small;
                }
                for (bool isRight : {true, false}) {
                    const auto s = isRight ? right(a) : left(a);
                    if (s.status != StatusOk) continue;
                    ++grown;
                    check(a, s, isRight, worst);
                }
            }
    EXPECT_GT(grown, 10);
    // One that is brought back once, and grows no more: (0, -1, -1/2).
    const std::vector<T> once = {0, 0, 0, large, small, 0, large, 0, 2 * small};
    const auto s = right(once);
    ASSERT_EQ(s.status, StatusOk);
    EXPECT_LT(std::fabs(s.element(0, 0)), std::numeric_limits<T>::epsilon());
    EXPECT_NEAR(s.element(2, 0) / s.element(1, 0), 0.5, 1e-6);
    std::printf("%d matrices: residual %.2f, length %.2f\n", worst.tried, double(worst.residual), double(worst.length));
    EXPECT_GT(worst.tried, 700);
    EXPECT_LT(worst.residual, 5.6);
}

// Lower matrices, also with their sides changing places, whose vectors leave the range on the way. No sweep changes
// them.
TYPED_TEST(EigenVectors, GrowthOnTheWay)
{
    using T = TypeParam;
    struct Element {
        int r, c;
        T value;
    };
    const auto power = [](double part) { return std::ldexp(T(1), int(part * std::numeric_limits<T>::max_exponent)); };
    const T h = power(0.6), huge = std::ldexp(T(1), std::numeric_limits<T>::max_exponent - 10);
    const T near = power(-0.7), apart = power(-0.33), t = T(1) / (1 << 20), s = 8 * std::numeric_limits<T>::epsilon();
    const std::vector<std::vector<Element>> cases = {
        // Large elements one after the other: behind a single value, either one of a pair, and before either of them.
        {{1, 0, h}, {1, 1, 1}, {2, 1, h}, {2, 2, 2}},
        {{1, 0, h}, {2, 0, -h}, {1, 1, 1}, {1, 2, -1}, {2, 1, 1}, {2, 2, 1}, {3, 2, h}, {3, 3, 3}},
        {{1, 0, h}, {2, 0, h}, {1, 1, 1}, {1, 2, -1}, {2, 1, 1}, {2, 2, 1}, {3, 1, h}, {3, 3, 3}},
        {{1, 0, h}, {1, 1, 1}, {2, 1, h}, {2, 2, 2}, {2, 3, -1}, {3, 2, 1}, {3, 3, 2}},
        {{1, 0, h}, {1, 1, 1}, {3, 1, h}, {2, 2, 2}, {2, 3, -1}, {3, 2, 1}, {3, 3, 2}},
        // What has been brought back once is not brought back for each large element that follows.
        {{1, 1, 1}, {2, 0, h}, {2, 2, 2}, {3, 1, h}, {3, 3, 3}, {4, 1, h}, {4, 4, 4}, {5, 1, h}, {5, 5, 5}, {6, 6, 6}},
        // Small differences of values: of single ones, of one and a pair.
        {{1, 0, 1}, {1, 1, near}, {2, 1, 1}, {2, 2, apart}},
        {{1, 0, 1}, {1, 1, near}, {3, 1, 1}, {2, 3, -1}, {3, 2, apart}},
        {{1, 0, huge}, {1, 2, -s}, {2, 1, apart}},
        {{2, 0, huge}, {1, 1, 1 << 7}, {1, 2, -(1 << 18)}, {2, 1, t}, {2, 2, 1 << 7}},
        // Pairs with elements far apart.
        {{0, 1, -h}, {1, 0, near}, {2, 0, h}, {2, 2, 1}},
        {{0, 1, -s}, {1, 0, huge}, {2, 1, h}, {2, 2, 1}},
        // The same of a pair, and a pair that is there twice.
        {{0, 1, -1}, {1, 0, 1}, {2, 0, h}, {2, 2, 1}, {3, 2, h}, {3, 3, 2}},
        {{0, 1, -1}, {1, 0, 1}, {2, 0, h}, {2, 2, 1}, {2, 3, -1}, {3, 2, 1}, {3, 3, 1}, {4, 2, h}, {4, 4, 2}},
        {{0, 1, -1}, {1, 0, apart * apart}, {2, 0, 1}, {3, 2, 1}, {4, 3, power(0.1)}},
        {{0, 1, -1},
         {1, 0, 1},
         {2, 0, 1},
         {2, 2, near},
         {2, 3, -1},
         {3, 2, 1},
         {3, 3, near},
         {4, 2, 1},
         {4, 4, apart},
         {4, 5, -1},
         {5, 4, 1},
         {5, 5, apart}},
        {{0, 1, -1}, {1, 0, 1}, {3, 0, huge}, {2, 2, 1 << 7}, {2, 3, -(1 << 18)}, {3, 2, t}, {3, 3, 1 << 7}},
        {{0, 1, -1}, {1, 0, 1}, {2, 0, 1}, {2, 3, -1}, {3, 2, 1}},
    };
    for (const auto& elements : cases) {
        Worst worst;
        int n = 0;
        for (const Element& e : elements) n = std::max(n, e.r + 1);
        std::vector<T> a(std::size_t(n * n)), flipped = a;
        for (const Element& e : elements) {
            a[std::size_t(e.r * n + e.c)] = e.value;
            flipped[std::size_t((n - 1 - e.c) * n + n - 1 - e.r)] = e.value;
        }
        const auto r = right(a), l = left(flipped);
        EXPECT_TRUE(r.status == StatusOk && l.status == StatusOk);
        check(a, r, true, worst);
        check(flipped, l, false, worst);
        EXPECT_LT(worst.residual, 5.6) << &elements - cases.data();
        EXPECT_LT(worst.length, 6) << &elements - cases.data();
    }
}

TYPED_TEST(EigenVectors, BothSidesAtOnceAndValuesAloneHaveTheSameBits)
{
    using T = TypeParam;
    Random random(3);
    for (int n = 1; n <= 12; ++n)
        for (Spectrum spectrum : spectra) {
            const auto a = matrixOf<T>(n, spectrum, random);
            const int e = sizeof(T);
            const auto size = std::size_t(n);
            std::vector<T> buffer(size * (3 * size + 5)), re(size), im(size), rights(size * size), lefts(size * size);
            ASSERT_EQ(Functions<T>::both(a.data(), n * e, e, rights.data(), n * e, e, lefts.data(), n * e, e, re.data(),
                                         im.data(), n, buffer.data()),
                      StatusOk);
            const auto r = right(a), l = left(a);
            EXPECT_EQ(re, r.re);
            EXPECT_EQ(im, l.im);
            EXPECT_EQ(rights, r.vectors);
            EXPECT_EQ(lefts, l.vectors);
            ASSERT_EQ(Functions<T>::values(a.data(), n * e, e, re.data(), im.data(), n, buffer.data()), StatusOk);
            EXPECT_EQ(re, r.re);
            EXPECT_EQ(im, r.im);
        }
}

// Neighbours whose sweeps differ in number and length, some with exceptional shifts, change nothing.
TYPED_TEST(EigenVectors, ObjectsOfArraysHaveTheBitsOfEachAlone)
{
    using T = TypeParam;
    constexpr int count = 53, e = sizeof(T);
    Random random(5);
    for (int n = 2; n <= 12; ++n) {
        const auto size = std::size_t(n), square = size * size;
        std::vector<std::vector<T>> objects;
        std::vector<T> all;
        for (int k = 0; k < count; ++k) {
            objects.push_back(matrixOf<T>(n, spectra[std::size_t(k) % std::size(spectra)], random));
            auto& a = objects.back();
            const int kind = pick(random, 0, 9);
            for (std::size_t i = 0; i < size; ++i)
                for (std::size_t j = 0; j < size; ++j) {
                    T& element = a[i * size + j];
                    if (kind == 0) element = T(j == (i + 1) % size);
                    if (kind == 1 && j > i) element = 0;
                    if (kind == 2 && (i + 2 < size) != (j + 2 < size)) element = 0;
                }
            all.insert(all.end(), a.begin(), a.end());
        }
        std::vector<T> buffer(size * (3 * size + 5)), re(count * size), im = re, rights(all.size()), lefts(all.size());
        ASSERT_EQ(
            Functions<T>::bothArray(all.data(), n * n * e, n * e, e, rights.data(), n * n * e, n * e, e, lefts.data(),
                                    n * n * e, n * e, e, re.data(), im.data(), n, count, buffer.data()),
            StatusOk);
        for (std::size_t k = 0; k < count; ++k) {
            const auto r = right(objects[k]), l = left(objects[k]);
            const auto expectPart = [&](const std::vector<T>& from, const std::vector<T>& alone, std::size_t length) {
                for (std::size_t i = 0; i < length; ++i) ASSERT_EQ(from[k * length + i], alone[i]) << n << ": " << k;
            };
            expectPart(re, r.re, size);
            expectPart(im, r.im, size);
            expectPart(rights, r.vectors, square);
            expectPart(lefts, l.vectors, square);
        }
    }
}

// A second opinion on vectors of values that lie apart.
TYPED_TEST(EigenVectors, AgreeWithLapack)
{
    using T = TypeParam;
    Random random(1821);
    int compared = 0, skipped = 0;
    for (int n : {2, 3, 4, 5, 6, 8, 12})
        for (int repeat = 0; repeat < 60; ++repeat) {
            const auto a = matrixOf<T>(n, Spectrum::random, random);
            auto work = a;
            const auto size = std::size_t(n);
            std::vector<T> re(size), im(size), lefts(size * size), rights(size * size);
            ASSERT_EQ(Functions<T>::theirs(LAPACK_ROW_MAJOR, 'V', 'V', n, work.data(), n, re.data(), im.data(),
                                           lefts.data(), n, rights.data(), n),
                      0);
            const auto r = right(a), l = left(a);
            const Solution<T> theirRight{n, StatusOk, re, im, rights}, theirLeft{n, StatusOk, re, im, lefts};
            for (int j = 0; j < n; j = r.next(j)) {
                Real nearest = 1e9, apart = 1e9;
                int match = 0;
                for (int k = 0; k < n; ++k) {
                    const Real distance = std::abs(theirRight.value(k) - r.value(j));
                    if (distance < nearest) nearest = distance, match = k;
                }
                for (int k = 0; k < n; ++k)
                    if (k != match) apart = std::min(apart, std::abs(theirRight.value(k) - r.value(j)));
                if (apart < Real(0.1)) {
                    ++skipped;
                    continue;
                }
                ++compared;
                const double tolerance = sizeof(T) == 4 ? 2e-3 : 1e-11;
                EXPECT_LT(nearest, tolerance);
                for (const auto& [ours, other] : {std::pair{&r, &theirRight}, {&l, &theirLeft}}) {
                    Number overlap = 0;
                    for (int i = 0; i < n; ++i)
                        overlap += std::conj(ours->component(i, j)) * other->component(i, match);
                    EXPECT_NEAR(double(std::abs(overlap)), 1, tolerance) << n << " " << j;
                }
            }
        }
    EXPECT_GT(compared, 10 * skipped / 4);
}

// Failures. --------------------------------------------------------------------------------------------------------

// A pair whose elements are too small beside its value to be divided by, ahead of a single value or behind it.
template <class T>
std::vector<T> withUselessBlock(bool isAhead)
{
    const T value = 1e6, small = sizeof(T) == 4 ? T(1e-3) : T(1e-11);
    std::vector<T> a = {value, 0, 0, 0, value, 0, 0, 0, value};
    const std::size_t k = isAhead ? 0 : 1;
    a[k * 3 + k + 1] = small, a[(k + 1) * 3 + k] = -small;
    return a;
}
template <class T>
std::vector<T> neverConverging()
{
    return std::vector<T>(9, std::numeric_limits<T>::quiet_NaN());
}

TYPED_TEST(EigenVectors, StatusesAndWhatTheyLeave)
{
    using T = TypeParam;
    const std::vector<T> all(9, untouched<T>), values(3, untouched<T>);
    for (bool isAhead : {false, true}) {
        const auto a = withUselessBlock<T>(isAhead);
        const auto failing = isAhead ? left(a) : right(a), other = isAhead ? right(a) : left(a);
        EXPECT_EQ(failing.status, StatusBadArgument);
        EXPECT_EQ(failing.vectors, all);
        EXPECT_EQ(failing.re, (std::vector<T>(3, T(1e6))));  // all values are written
        EXPECT_EQ(other.status, StatusOk);
        EXPECT_EQ(other.re, failing.re);
        EXPECT_EQ(other.im, failing.im);

        auto rights = all, lefts = all, re = values, im = values;
        std::vector<T> buffer(42);
        const int e = sizeof(T);
        EXPECT_EQ(Functions<T>::both(a.data(), 3 * e, e, rights.data(), 3 * e, e, lefts.data(), 3 * e, e, re.data(),
                                     im.data(), 3, buffer.data()),
                  StatusBadArgument);
        EXPECT_EQ(rights, all);
        EXPECT_EQ(lefts, all);
        EXPECT_EQ(re, failing.re);
    }
    const auto s = right(neverConverging<T>());
    EXPECT_EQ(s.status, StatusNoConvergence);
    EXPECT_EQ(s.vectors, all);
    EXPECT_EQ(s.re, values);
    // The last value leaves before the others run out of sweeps.
    std::vector<T> a(16, std::numeric_limits<T>::quiet_NaN());
    for (std::size_t k = 0; k < 3; ++k) a[12 + k] = a[4 * k + 3] = 0;
    a[15] = 5;
    const auto partly = left(a);
    EXPECT_EQ(partly.status, StatusNoConvergence);
    EXPECT_TRUE(partly.re[3] == untouched<T> || partly.re[3] == 5);
    EXPECT_EQ(partly.re[0], untouched<T>);
}

// Objects that fail in the middle of an array, serially and on teams: each chunk stops for itself.
TYPED_TEST(EigenVectors, FailingObjectsOfArrays)
{
    using T = TypeParam;
    constexpr int n = 3, count = 64, e = sizeof(T);
    Random random(11);
    std::vector<std::vector<T>> objects;
    for (int k = 0; k < count; ++k) objects.push_back(matrixOf<T>(n, Spectrum::random, random));
    objects[20] = withUselessBlock<T>(false), objects[25] = neverConverging<T>(), objects[50] = neverConverging<T>();
    std::vector<T> a, buffer(42);
    for (const auto& object : objects) a.insert(a.end(), object.begin(), object.end());
    const std::vector<T> noVectors(a.size(), untouched<T>), noValues(std::size_t(count * n), untouched<T>);
    for (int threads : {1, 2, 3, 8})
        for (int side : {0, 1, 2}) {
            auto rights = noVectors, lefts = noVectors, re = noValues, im = noValues;
            VormStatus status = StatusOk;
            askedDuring(threads, threads, [&] {
                if (side == 2)
                    status =
                        Functions<T>::bothArray(a.data(), 9 * e, 3 * e, e, rights.data(), 9 * e, 3 * e, e, lefts.data(),
                                                9 * e, 3 * e, e, re.data(), im.data(), n, count, buffer.data());
                else
                    status = (side ? Functions<T>::leftArray : Functions<T>::rightArray)(
                        a.data(), 9 * e, 3 * e, e, (side ? lefts : rights).data(), 9 * e, 3 * e, e, re.data(),
                        im.data(), n, count, buffer.data());
            });
            bool mayBeFirst[] = {false, false};  // -2, -205
            for (int t = 0, object = 0; t < threads; ++t) {
                const int end = object + count / threads + (t < count % threads);
                bool stopped = false;
                for (; object < end; ++object) {
                    const auto from = std::size_t(object * 9), value = std::size_t(object * 3);
                    const auto part = [&](const std::vector<T>& all) {
                        return std::vector<T>(all.begin() + std::ptrdiff_t(from),
                                              all.begin() + std::ptrdiff_t(from) + 9);
                    };
                    const auto r = right(objects[std::size_t(object)]), l = left(objects[std::size_t(object)]);
                    const VormStatus own = side == 0 ? r.status : side == 1 ? l.status : r.status ? r.status : l.status;
                    const std::vector<T> none(9, untouched<T>);
                    const bool isDone = !stopped && own == StatusOk;
                    EXPECT_EQ(part(rights), isDone && side != 1 ? r.vectors : none) << object;
                    EXPECT_EQ(part(lefts), isDone && side != 0 ? l.vectors : none) << object;
                    EXPECT_EQ(re[value], stopped ? untouched<T> : r.re[0]) << object;
                    if (!stopped && own != StatusOk) mayBeFirst[own == StatusNoConvergence] = true, stopped = true;
                }
            }
            EXPECT_TRUE((status == StatusBadArgument && mayBeFirst[0]) ||
                        (status == StatusNoConvergence && mayBeFirst[1]))
                << status << " of " << threads << " threads";
        }
}

}  // namespace
