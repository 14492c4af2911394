// vormEigenValues without the model: known spectra, values beside LAPACK's and their conditions, trace and sum of
// squares, arrays with objects that fail, the buffer before an unmapped page, and the sizes of buffers.

#include <gtest/gtest.h>
#include <lapacke.h>
#include <vorcore/vorcore.h>

#include <complex>

#include "eigen_matrices.hpp"
#include "square_matrix.hpp"

namespace {

template <class T>
struct Functions;
template <>
struct Functions<float> {
    static constexpr auto one = vormEigenValues_m_32f;
    static constexpr auto array = vormEigenValues_ma_32f;
    static constexpr auto list = vormEigenValues_ma_32f_L;
    static constexpr auto pointers = vormEigenValues_ma_32f_P;
    static constexpr auto bufferSize = vormEigenValuesGetBufSize_32f;
};
template <>
struct Functions<double> {
    static constexpr auto one = vormEigenValues_m_64f;
    static constexpr auto array = vormEigenValues_ma_64f;
    static constexpr auto list = vormEigenValues_ma_64f_L;
    static constexpr auto pointers = vormEigenValues_ma_64f_P;
    static constexpr auto bufferSize = vormEigenValuesGetBufSize_64f;
};

using Value = std::complex<double>;
template <class T>
constexpr double epsilon = double(std::numeric_limits<T>::epsilon());

// The values of a packed matrix, in a buffer of just the size asked for.
template <class T>
std::vector<Value> valuesOf(const std::vector<T>& a, int n, VormStatus expected = StatusOk)
{
    int bytes = 0;
    EXPECT_EQ(Functions<T>::bufferSize(n, &bytes), StatusOk);
    const Guarded memory{static_cast<std::size_t>(bytes)};
    auto* const buffer = reinterpret_cast<T*>(memory.data() + memory.size() - bytes);
    std::vector<T> re(static_cast<std::size_t>(n), 99), im = re;
    const int e = sizeof(T);
    EXPECT_EQ(Functions<T>::one(a.data(), n * e, e, re.data(), im.data(), n, buffer), expected);
    std::vector<Value> values;
    for (std::size_t k = 0; k < re.size(); ++k) values.emplace_back(re[k], im[k]);
    return values;
}

// The largest distance to LAPACK's values, each times the reciprocal of its condition, over eps n |A|.
template <class T>
double distance(const std::vector<T>& a, int n, std::vector<Value> values, double unit)
{
    std::vector<double> m(a.begin(), a.end()), re(static_cast<std::size_t>(n)),
        im = re, vectors(std::size_t(n * n)), left = vectors, scale = re, conditions = re, others = re;
    int low = 0, high = 0;
    double norm = 0;
    EXPECT_EQ(LAPACKE_dgeevx(LAPACK_ROW_MAJOR, 'N', 'V', 'V', 'E', n, m.data(), n, re.data(), im.data(), left.data(), n,
                             vectors.data(), n, &low, &high, scale.data(), &norm, conditions.data(), others.data()),
              0);
    double worst = 0;
    for (std::size_t i = 0; i < re.size(); ++i) {
        const Value theirs(re[i], im[i]);
        const auto nearest = std::min_element(values.begin(), values.end(), [&](Value x, Value y) {
            return std::abs(x - theirs) < std::abs(y - theirs);
        });
        worst = worse(worst, std::abs(*nearest - theirs) * conditions[i] / unit);
        values.erase(nearest);
    }
    return worst;
}

template <class T>
void checkKinds()
{
    Random random(31);
    double worst = 0, worstTrace = 0, worstSquares = 0;
    int tried = 0;
    for (const Spectrum kind : spectra)
        for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 40})
            for (int repeat = 0; repeat < (n == 40 ? 2 : 40); ++repeat, ++tried) {
                const auto a = matrixOf<T>(n, kind, random);
                const auto values = valuesOf(a, n);
                double norm = 0, trace = 0, squares = 0;
                for (T x : a) norm += double(x) * double(x);
                norm = std::max(1.0, std::sqrt(norm));  // what counts as zero is absolute
                for (int r = 0; r < n; ++r)
                    for (int c = 0; c < n; ++c)
                        squares += double(a[std::size_t(r * n + c)]) * double(a[std::size_t(c * n + r)]);
                for (int r = 0; r < n; ++r) trace += double(a[std::size_t(r * n + r)]);
                Value sum, sumOfSquares;
                for (Value x : values) sum += x, sumOfSquares += x * x;
                const double unit = epsilon<T> * n * norm;
                const double own = distance(a, n, values, unit);
                EXPECT_LT(own, 5) << "kind " << int(kind) << ", order " << n;
                worst = worse(worst, own);
                worstTrace = worse(worstTrace, std::abs(sum - trace) / unit);
                worstSquares = worse(worstSquares, std::abs(sumOfSquares - squares) / (unit * norm));
                // Pairs are conjugate, the positive imaginary part first.
                for (std::size_t k = 0; k < values.size(); ++k)
                    if (values[k].imag() != 0) {
                        EXPECT_GT(values[k].imag(), 0);
                        ASSERT_LT(k + 1, values.size());
                        EXPECT_EQ(values[k + 1], std::conj(values[k]));
                        ++k;
                    }
            }
    std::printf("%d matrices: values %.2f, trace %.2f, sum of squares %.2f\n", tried, worst, worstTrace, worstSquares);
    EXPECT_LT(worstTrace, 5);
    EXPECT_LT(worstSquares, 10);
}
TEST(EigenValues, BesideLapack)
{
    checkKinds<float>();
    checkKinds<double>();
}

template <class T>
void checkKnown()
{
    using Values = std::vector<Value>;
    using Elements = std::vector<T>;
    EXPECT_EQ(valuesOf<T>({-7}, 1), (Values{Value(-7)}));
    EXPECT_EQ(valuesOf<T>({0, 0, 0, 0}, 2), (Values{0, 0}));
    EXPECT_EQ(valuesOf<T>(Elements(25, 0), 5), (Values{0, 0, 0, 0, 0}));
    EXPECT_EQ(valuesOf<T>({0, -1, 1, 0}, 2), (Values{{0, 1}, {0, -1}}));
    EXPECT_EQ(valuesOf<T>({0, 4, -4, 0}, 2), (Values{{0, 4}, {0, -4}}));
    // Diagonal and lower triangular matrices: the diagonal in place.
    EXPECT_EQ(valuesOf<T>({3, 0, 0, 0, -1, 0, 0, 0, 2}, 3), (Values{3, -1, 2}));
    EXPECT_EQ(valuesOf<T>({3, 0, 0, 5, -1, 0, 7, 9, 2}, 3), (Values{3, -1, 2}));
    EXPECT_EQ(valuesOf<T>({1, 0, 4, 2}, 2), (Values{1, 2}));
    // Deliberate: blocks with equal diagonal elements leave as complex.
    EXPECT_EQ(valuesOf<T>({0, 1, 1, 0}, 2), (Values{{0, 1}, {0, -1}}));
    EXPECT_EQ(valuesOf<T>({2, 1, 1, 2}, 2), (Values{{2, 1}, {2, -1}}));
    EXPECT_EQ(valuesOf<T>({2, 4, 0, 1}, 2), (Values{1, 2}));  // and one with nothing beside it changes places
    // Absolute deflation: below ulp the diagonal is taken as it is.
    const T small = T(0.25) * std::numeric_limits<T>::epsilon();
    EXPECT_EQ(valuesOf<T>({0, small, small, small}, 2), (Values{0, double(small)}));

    // Spectra known beforehand, unsorted.
    const auto near = [](Values found, Values wanted, double within) {
        for (const Value& value : wanted) {
            const auto nearest = std::min_element(found.begin(), found.end(), [&](Value x, Value y) {
                return std::abs(x - value) < std::abs(y - value);
            });
            EXPECT_LT(std::abs(*nearest - value), within) << value;
            found.erase(nearest);
        }
    };
    const double eps = epsilon<T>, cubeRoot = std::cbrt(eps);
    near(valuesOf<T>({6, -11, 6, 1, 0, 0, 0, 1, 0}, 3), {1, 2, 3}, 500 * eps);  // (x - 1)(x - 2)(x - 3)
    near(valuesOf<T>({1, -1, 1, 1, 0, 0, 0, 1, 0}, 3), {1, {0, 1}, {0, -1}}, 50 * eps);
    const double h = std::sqrt(0.75);
    near(valuesOf<T>({0, 1, 0, 0, 0, 1, 1, 0, 0}, 3), {1, {-0.5, h}, {-0.5, -h}}, 20 * eps);  // a rotation about 1 1 1
    near(valuesOf<T>({0, 0, 0, 1, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0}, 4), {1, -1, {0, 1}, {0, -1}}, 50 * eps);
    near(valuesOf<T>({2, 1, 0, 0, 2, 1, 0, 0, 2}, 3), {2, 2, 2}, 10 * cubeRoot);  // a Jordan block
    near(valuesOf<T>({1, 2, 3, 4, 5, 6, 7, 8, 9}, 3), {(15 + std::sqrt(297.0)) / 2, (15 - std::sqrt(297.0)) / 2, 0},
         200 * eps);
}
TEST(EigenValues, KnownCases)
{
    checkKnown<float>();
    checkKnown<double>();
}

// An element of just ulp is nothing, whatever stands across from it, alone and in lanes; the next larger one is not.
template <class T>
void checkDeflation()
{
    constexpr int count = 21, e = sizeof(T);
    const T ulp = std::numeric_limits<T>::epsilon();
    for (int n : {2, 3, 6})
        for (const T small : {ulp, std::nextafter(ulp, T(1))}) {
            std::vector<T> a(std::size_t(n * n)), all, re(std::size_t(n * count)), im = re,
                                                                                   buffer(std::size_t(n * (n + 5)));
            for (int i = 0; i < n; ++i) a[std::size_t(i * n + i)] = T(2 * i + 1);
            a[1] = small, a[std::size_t(n)] = 1 << 20;
            const auto alone = valuesOf(a, n);
            EXPECT_EQ(alone[0] == Value(1) && alone[1] == Value(3), small == ulp) << n;
            for (int k = 0; k < count; ++k) all.insert(all.end(), a.begin(), a.end());
            EXPECT_EQ(
                Functions<T>::array(all.data(), n * n * e, n * e, e, re.data(), im.data(), n, count, buffer.data()),
                StatusOk);
            for (std::size_t i = 0; i < re.size(); ++i) EXPECT_EQ(Value(re[i], im[i]), alone[i % alone.size()]) << n;
        }
}
TEST(EigenValues, AbsoluteDeflation)
{
    checkDeflation<float>();
    checkDeflation<double>();
}

// What an object gives alone it gives in arrays of any layout, whatever its neighbours are; NaNs and infinities end
// within the limits.
template <class T>
void checkArrays(int n, int threads)
{
    vorSetNumThreads(threads);
    Random random(std::uint64_t(7 * n + threads));
    constexpr int count = 61;
    const std::size_t square = std::size_t(n * n), e = sizeof(T);
    const std::vector<int> spoilt = {9, 30, 31, 58};
    std::vector<T> all;
    std::vector<std::vector<T>> alone;
    for (int k = 0; k < count; ++k) {
        auto a = matrixOf<T>(n, spectra[k % 8], random);
        if (std::find(spoilt.begin(), spoilt.end(), k) != spoilt.end())
            a.assign(square, k % 2 ? std::numeric_limits<T>::infinity() : std::numeric_limits<T>::quiet_NaN());
        all.insert(all.end(), a.begin(), a.end());
        alone.push_back(a);
    }
    std::vector<T> buffer(static_cast<std::size_t>(n * (n + 5)));
    const int chunks = count >= threads && (n * n + n) * count >= 251 ? threads : 1;
    std::vector<const T*> list, planes;
    std::vector<T> turned(all.size());
    for (std::size_t k = 0; k < count; ++k) list.push_back(&all[k * square]);
    for (std::size_t i = 0; i < square; ++i) {
        for (std::size_t k = 0; k < count; ++k) turned[i * count + k] = all[k * square + i];
        planes.push_back(&turned[i * count]);
    }
    for (int layout = 0; layout < 3; ++layout) {
        std::vector<T> re(std::size_t(n * count), 99), im = re;
        const int s = int(e), row = n * s, object = n * row;
        const VormStatus status =
            layout == 0 ? Functions<T>::array(all.data(), object, row, s, re.data(), im.data(), n, count, buffer.data())
            : layout == 1 ? Functions<T>::list(list.data(), 0, row, s, re.data(), im.data(), n, count, buffer.data())
                          : Functions<T>::pointers(planes.data(), 0, s, re.data(), im.data(), n, count, buffer.data());
        EXPECT_EQ(status, StatusNoConvergence);
        for (int t = 0, k = 0; t < chunks; ++t) {
            const int end = k + count / chunks + (t < count % chunks);
            for (bool failed = false; k < end; ++k) {
                const bool fails = std::find(spoilt.begin(), spoilt.end(), k) != spoilt.end();
                std::vector<Value> wanted(std::size_t(n), {99, 99});
                if (!failed && !fails) wanted = valuesOf(alone[std::size_t(k)], n);
                for (int i = 0; i < n && !(fails && !failed); ++i) {
                    const std::size_t at = std::size_t(k * n + i);
                    ASSERT_EQ(Value(re[at], im[at]), wanted[std::size_t(i)]) << n << ": object " << k << ", " << layout;
                }
                failed = failed || fails;
            }
        }
    }
    vorSetNumThreads(0);
}
TEST(EigenValues, ObjectsAreIndependent)
{
    for (int n : {3, 4, 6, 10, 17})
        for (int threads : {1, 2, 3, 8}) {
            checkArrays<float>(n, threads);
            checkArrays<double>(n, threads);
        }
}

TEST(EigenValues, BufferSizes)
{
    int bytes = 1;
    EXPECT_EQ(vormEigenValuesGetBufSize_32f(3, &bytes), StatusOk);
    EXPECT_EQ(bytes, 3 * 8 * 4);
    EXPECT_EQ(vormEigenValuesGetBufSize_64f(3, &bytes), StatusOk);
    EXPECT_EQ(bytes, 3 * 8 * 8);
    EXPECT_EQ(vormEigenValuesVectorsGetBufSize_32f(3, &bytes), StatusOk);
    EXPECT_EQ(bytes, 3 * 14 * 4);
    EXPECT_EQ(vormEigenValuesVectorsGetBufSize_64f(3, &bytes), StatusOk);
    EXPECT_EQ(bytes, 3 * 14 * 8);
    EXPECT_EQ(vormEigenValuesGetBufSize_32f(0, &bytes), StatusBadSize);
    EXPECT_EQ(bytes, 3 * 14 * 8);
    EXPECT_EQ(vormEigenValuesGetBufSize_32f(0, nullptr), StatusNullPointer);
    EXPECT_EQ(vormEigenValuesVectorsGetBufSize_64f(65536, &bytes), StatusOk);
    EXPECT_EQ(bytes, 65536 * 5 * 8);  // in 32 bits
}

}  // namespace
