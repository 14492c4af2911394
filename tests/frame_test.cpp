// The frame's own pieces: wrapping arithmetic, views, lanes.

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "frame/call.hpp"
#include "frame/elements.hpp"
#include "frame/object_lanes.hpp"
#include "frame/operands.hpp"
#include "frame/small_vector.hpp"

using namespace vorm;

namespace {

TEST(Wrapping, As32Bits)
{
    EXPECT_EQ(wrapMul(1 << 20, 1 << 11), INT_MIN);
    EXPECT_EQ(wrapMul(3, 1 << 16, 1 << 15), INT_MIN);
    EXPECT_EQ(wrapAdd(INT_MAX, 1, 1), INT_MIN + 1);
    EXPECT_TRUE((anyBadStride<double>(8, 4)));
    EXPECT_TRUE((anyBadStride<float>(4, INT_MIN)));
    EXPECT_FALSE((anyBadShift<float>(0, 4)));
}

// What follows from the parts of a call: tests in order, contiguity, the arguments of a chunk and of one object.
TEST(Calls, Parts)
{
    static float memory[100];
    static int rows[30];
    float* const p = memory;
    const auto call = [&](const float* src, int stride0, int stride2, int len, int other, int count) {
        return arrayCallOf<float>(workOf(7, 3, len), count, VectorArray{src, stride0, stride2}, ObjectTable{rows, 5},
                                  Transposed{MatrixArray{p, 40, 20, 4}}, Size{len}, Fit{len, other});
    };
    EXPECT_EQ(tested(call(p, 12, 4, 3, 3, 2)), StatusOk);
    EXPECT_EQ(tested(call(nullptr, 12, 4, 3, 3, 0)), StatusNullPointer);
    EXPECT_EQ(tested(call(p, 12, 4, 0, 3, 0)), StatusBadCount);
    EXPECT_EQ(tested(call(p, 12, 4, 0, 3, 2)), StatusBadSize);
    EXPECT_EQ(tested(call(p, 10, 4, 3, 4, 2)), StatusSizeMismatch);
    EXPECT_EQ(tested(call(p, 12, 0, 3, 3, 2)), StatusBadStride);
    EXPECT_EQ(tested(inOrder<Tests<vorm::Test::stride, vorm::Test::count>>(call(p, 10, 4, 0, 3, 0))), StatusBadStride);
    EXPECT_TRUE(isContiguous(call(p, 12, 4, 3, 3, 2)));
    EXPECT_FALSE(isContiguous(call(p, 12, 8, 3, 3, 2)));

    using Kernel = VormStatus(const float*, int, int, int*, float*, int, int, int, int, int);
    static std::vector<std::ptrdiff_t> seen;
    Kernel* const kernel = [](const float* src, int stride0, int stride2, int* table, float* dst, int, int, int,
                              int len, int count) {
        seen = {src - memory, stride0, stride2, table - rows, dst - memory, len, count};
        return VormStatus{StatusOk};
    };
    call(p, 12, 8, 3, 3, 9).parts.with([&](const auto&... part) {
        return withArguments(kernel, part.chunk(Chunk{2, 4, 1, nullptr})...);
    });
    EXPECT_EQ(seen, (std::vector<std::ptrdiff_t>{6, 12, 8, 10, 20, 3, 4}));

    using Single = VormStatus(const float*, int, int*, float*, int, int, int);
    Single* const single = [](const float* src, int, int* table, float* dst, int stride1, int, int len) {
        seen.insert(seen.end(), {src - memory, table - rows, dst - memory, stride1, len});
        return VormStatus{seen.size() < 10 ? StatusOk : StatusSingular};
    };
    seen.clear();
    EXPECT_EQ(eachSingle(call(p, 12, 8, 3, 3, 4), single), StatusSingular);
    EXPECT_EQ(seen, (std::vector<std::ptrdiff_t>{0, 0, 0, 20, 3, 3, 5, 10, 20, 3}));
}

// The address of every kind of operand, against the documented formula.
TEST(Views, Addresses)
{
    alignas(8) static char memory[4096];
    auto* const p = reinterpret_cast<float*>(memory);
    const auto offset = [&](auto&& element) { return reinterpret_cast<const char*>(&element) - memory; };
    const int n = 3, r = 2, c = 1, i = 4, s0 = 200, s1 = 40, s2 = 8, shift = 12;
    EXPECT_EQ(offset(Vector{p, s2}(n, i)), i * s2);
    EXPECT_EQ(offset(Vector{p, adjacent}(n, i)), i * 4);
    EXPECT_EQ(offset(VectorArray{p, s0, s2}(n, i)), n * s0 + i * s2);
    EXPECT_EQ(offset(Matrix{p, s1, s2}(n, r, c)), r * s1 + c * s2);
    EXPECT_EQ(offset(MatrixArray{p, s0, s1, s2}(n, r, c)), n * s0 + r * s1 + c * s2);
    EXPECT_EQ(offset(Transposed{Matrix{p, s1, s2}}(n, r, c)), c * s1 + r * s2);
    EXPECT_EQ(offset(Transposed{MatrixArray{p, s0, s1, s2}}(n, r, c)), n * s0 + c * s1 + r * s2);

    float* table[12];
    for (int k = 0; k < 12; ++k) table[k] = p + (k * 37) % 100;
    const auto entry = [&](int k) { return (k * 37) % 100 * 4 + shift; };
    float* const* const pp = table;
    EXPECT_EQ(offset(VectorList{pp, shift, s2}(n, i)), entry(n) + i * s2);
    EXPECT_EQ(offset(MatrixList{pp, shift, s1, s2}(n, r, c)), entry(n) + r * s1 + c * s2);
    EXPECT_EQ(offset(Transposed{MatrixList{pp, shift, s1, s2}}(n, r, c)), entry(n) + c * s1 + r * s2);
    EXPECT_EQ(offset(VectorPointers{pp, shift}(n, i)), entry(i));
    EXPECT_EQ(offset(VectorArrayPointers{pp, shift, s0}(n, i)), entry(i) + n * s0);
    EXPECT_EQ(offset(MatrixPointers{pp, shift, 4}(n, r, c)), entry(r * 4 + c));
    EXPECT_EQ(offset(MatrixArrayPointers{pp, shift, s0, 4}(n, r, c)), entry(r * 4 + c) + n * s0);
    EXPECT_EQ(offset(Transposed{MatrixArrayPointers{pp, shift, s0, 4}}(n, c, r)), entry(r * 4 + c) + n * s0);

    // The same by the distances between elements; what is common in a list leads back to the view's own pointer.
    const auto same = [&](const auto& elements, const auto& view) {
        return offset(elements[n](r, c)) == offset(view(n, r, c));
    };
    const Matrix matrix{p, s1, s2};
    const Transposed turned{MatrixList{pp, shift, s1, s2}};
    EXPECT_TRUE(same(elementsOf(Transposed{MatrixArray{p, s0, s1, s2}}), Transposed{MatrixArray{p, s0, s1, s2}}));
    EXPECT_TRUE(same(elementsOf(MatrixArrayPointers{pp, shift, s0, 4}), MatrixArrayPointers{pp, shift, s0, 4}));
    EXPECT_TRUE(same(listedElementsOf(turned), turned));
    EXPECT_TRUE(same(listedElementsOf(matrix), matrix));

    for (int k = 0; k < 1000; ++k) p[k] = float(k);
    EXPECT_EQ(Constant{2.5f}(n, i), 2.5f);
    EXPECT_EQ((ConstantArray<float>{p, s0}(n, i)), float(n * s0 / 4));
    const float* const* const constants = table;
    EXPECT_EQ((ConstantList<float>{constants, shift}(n, i)), float(entry(n) / 4));
}

// Far objects: serial addresses are formed in 64 bits.
TEST(Views, BeyondTwoGiB)
{
    const VectorArray far{reinterpret_cast<float*>(4096), 1 << 20, 4};
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(far.object(1 << 12)), 4096 + (std::uintptr_t{1} << 32));
}

template <class T>
class LanesOf : public testing::Test {
};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(LanesOf, Types);

template <class L>
void eachLaneAsTheScalar()
{
    using T = Element<L>;
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const T values[] = {0, T(-0.0), 1, T(-2.5), inf, -inf, nan, std::numeric_limits<T>::denorm_min(), T(1) / 3, 7};
    const auto same = [](T x, T y) {
        return std::bit_cast<Bits>(x) == std::bit_cast<Bits>(y) || (std::isnan(x) && std::isnan(y));
    };
    for (T x : values)
        for (T y : values) {
            T a[L::width], b[L::width], out[L::width];
            for (int k = 0; k < L::width; ++k) a[k] = k % 2 ? x : y, b[k] = k % 2 ? y : x;
            const auto la = L::load(a), lb = L::load(b);
            const auto expect = [&](L lanes, auto scalar) {
                lanes.store(out);
                for (int k = 0; k < L::width; ++k) EXPECT_TRUE(same(out[k], scalar(a[k], b[k]))) << a[k] << " " << b[k];
            };
            expect(la + lb, [](T u, T v) { return u + v; });
            expect(la - lb, [](T u, T v) { return u - v; });
            expect(la * lb, [](T u, T v) { return u * v; });
            expect(la / lb, [](T u, T v) { return u / v; });
            expect(-la, [](T u, T) { return -u; });
            expect(sqrt(la), [](T u, T) { return std::sqrt(u); });
            expect(abs(la), [](T u, T) { return std::fabs(u); });
            expect(larger(la, lb), [](T u, T v) { return vorm::larger(u, v); });
            expect(timesSignOf(la, lb), [](T u, T v) { return vorm::timesSignOf(u, v); });
            expect(select(la < lb, la, lb), [](T u, T v) { return vorm::select(u < v, u, v); });
            expect(select(la <= lb, la, lb), [](T u, T v) { return u <= v ? u : v; });
            expect(select(la > lb, la, lb), [](T u, T v) { return u > v ? u : v; });
            expect(select(la >= lb, la, lb), [](T u, T v) { return u >= v ? u : v; });
            expect(select((la == lb) | (la < lb), la, L(T(5))), [](T u, T v) { return u <= v ? u : T(5); });
            expect(where(without(la <= lb, la < lb), la), [](T u, T v) { return u == v ? u : T(0); });
            expect(changed(lb, difference(la < lb, la, lb)), [](T u, T v) { return u < v ? u : v; });
            if constexpr (sizeof(T) == sizeof(float)) {
                expect(estimateReciprocal(la), [](T u, T) { return vorm::estimateReciprocal(u); });
                expect(estimateReciprocalRoot(la), [](T u, T) { return vorm::estimateReciprocalRoot(u); });
            }
            EXPECT_EQ(any((la < lb) & (lb < la)), false);
            EXPECT_EQ(any(la < lb), x < y || y < x);
            EXPECT_EQ(all(la <= lb), x == y);
        }
}
TYPED_TEST(LanesOf, EachLaneAsTheScalar)
{
    eachLaneAsTheScalar<Lanes<TypeParam>>();
    eachLaneAsTheScalar<Wide<TypeParam>>();
}

// Rows of any length from addresses of their own, into lanes and back, at any width.
TYPED_TEST(LanesOf, RowsTurned)
{
    using T = TypeParam;
    constexpr int width = Wide<T>::width, longest = 11;
    T memory[width * longest], back[width * longest];
    const T* from[width];
    T* to[width];
    for (int i = 0; i < width * longest; ++i) memory[i] = T(i);
    for (int l = 0; l < width; ++l) {
        from[l] = memory + (width - 1 - l) * longest;
        to[l] = back + (width - 1 - l) * longest;
    }
    for (int n = 1; n <= longest; ++n) {
        Wide<T> lanes[longest];
        for (T& element : back) element = T(-1);
        loadRows(
            from, [&](int c) -> auto& { return lanes[c]; }, n);
        storeRows(
            to, [&](int c) { return lanes[c]; }, n);
        for (int c = 0; c < n; ++c)
            for (int l = 0; l < width; ++l) EXPECT_EQ(reinterpret_cast<const T*>(lanes)[c * width + l], from[l][c]);
        for (int i = 0; i < width * longest; ++i) EXPECT_EQ(back[i], i % longest < n ? memory[i] : T(-1)) << n;
    }
}

// Vectors of every small length: exactly their elements are stored, at any address.
TYPED_TEST(LanesOf, SmallVectorsStoreTheirElementsOnly)
{
    using T = TypeParam;
    const auto check = [&]<int Len>(std::integral_constant<int, Len>) {
        for (int at = 0; at < 16; ++at) {
            char from[96], to[96], expected[96];
            for (std::size_t k = 0; k < 96; ++k) from[k] = char(k * 7), to[k] = expected[k] = char(k);
            std::memcpy(expected + at, from + 3, Len * sizeof(T));
            const Vector source{reinterpret_cast<const T*>(from + 3), adjacent};
            SmallVector<T, Len>::load(source, 0).store(Vector{reinterpret_cast<T*>(to + at), adjacent}, 0);
            EXPECT_EQ(std::memcmp(to, expected, 96), 0) << Len << " at " << at;
        }
    };
    check(std::integral_constant<int, 3>{}), check(std::integral_constant<int, 4>{});
    check(std::integral_constant<int, 5>{}), check(std::integral_constant<int, 6>{});
}

}  // namespace
