// vormMul of matrices, single and over arrays: every element bit by bit against the documented order
// of additions, in all layouts, with operands that end or begin at an unmapped page.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <tuple>
#include <vector>

#include "guarded.hpp"
#include "vorcore/vorcore.h"
#include "vorm/vorm.h"

namespace {

enum Kind { mm, mt, tm, tt };
enum class Shape { single, firstArray, secondArray, bothArrays };
enum class Layout { contiguous, spread, list, spreadList, pointers, planes, unevenPlanes };
constexpr Layout allLayouts[] = {Layout::contiguous, Layout::spread, Layout::list,        Layout::spreadList,
                                 Layout::pointers,   Layout::planes, Layout::unevenPlanes};

bool isList(Layout layout) { return layout == Layout::list || layout == Layout::spreadList; }
bool isPlanes(Layout layout) { return layout == Layout::planes || layout == Layout::unevenPlanes; }
bool isPointers(Layout layout) { return layout == Layout::pointers || isPlanes(layout); }
bool isContiguous(Layout layout) { return layout == Layout::contiguous || layout == Layout::list; }

// The members of a shape by kind. ----------------------------------------------------------------

template <class T>
struct Members;
#define KINDS(a, b, c, d, suffix)                                                          \
    {                                                                                      \
        vormMul_##a##suffix, vormMul_##b##suffix, vormMul_##c##suffix, vormMul_##d##suffix \
    }
#define MEMBERS(T, type)                                                                          \
    template <>                                                                                   \
    struct Members<T> {                                                                           \
        decltype(&vormMul_mm_##type) single[4] = KINDS(mm, mt, tm, tt, _##type);                  \
        decltype(&vormMul_mm_##type##_P) singleP[4] = KINDS(mm, mt, tm, tt, _##type##_P);         \
        decltype(&vormMul_mam_##type) first[4] = KINDS(mam, mat, tam, tat, _##type);              \
        decltype(&vormMul_mam_##type##_L) firstL[4] = KINDS(mam, mat, tam, tat, _##type##_L);     \
        decltype(&vormMul_mam_##type##_P) firstP[4] = KINDS(mam, mat, tam, tat, _##type##_P);     \
        decltype(&vormMul_mma_##type) second[4] = KINDS(mma, mta, tma, tta, _##type);             \
        decltype(&vormMul_mma_##type##_L) secondL[4] = KINDS(mma, mta, tma, tta, _##type##_L);    \
        decltype(&vormMul_mma_##type##_P) secondP[4] = KINDS(mma, mta, tma, tta, _##type##_P);    \
        decltype(&vormMul_mama_##type) both[4] = KINDS(mama, mata, tama, tata, _##type);          \
        decltype(&vormMul_mama_##type##_L) bothL[4] = KINDS(mama, mata, tama, tata, _##type##_L); \
        decltype(&vormMul_mama_##type##_P) bothP[4] = KINDS(mama, mata, tama, tata, _##type##_P); \
    };
MEMBERS(float, 32f)
MEMBERS(double, 64f)

// Memory between two unmapped pages, flush against one of them. ------------------------------------

enum class Against { pageBefore, pageBehind };

class Placed : public Guarded {
public:
    Placed(std::size_t bytes, Against against)
        : Guarded(bytes), place(Guarded::data() + (against == Against::pageBehind ? size() - bytes : 0))
    {
        std::memset(Guarded::data(), 0xA5, size());
    }
    char* data() const { return place; }
    char* imageBase() const { return Guarded::data(); }
    std::vector<char> image() const { return {imageBase(), imageBase() + size()}; }

private:
    char* place;
};

// One operand: count objects of height rows and width columns somewhere in guarded memory.
template <class T>
struct Operand {
    static constexpr int e = sizeof(T);
    int width, height, count;
    bool isArray;
    Layout layout;
    int stride0, stride1, stride2, shift = 0;
    Placed memory;
    std::vector<T*> table;

    Operand(int width_, int height_, int count_, bool isArray_, Layout layout_, Against against, int padding)
        : width(width_),
          height(height_),
          count(isArray_ ? count_ : 1),
          isArray(isArray_),
          layout(layout_),
          stride2(e * (layout_ == Layout::spread || layout_ == Layout::spreadList ? 2 : 1)),
          memory(span(padding), against)
    {
        const bool listed = isList(layout) && isArray;
        shift = listed || isPointers(layout) ? 3 * e : 0;
        char* const p = memory.data() - shift;
        if (isPointers(layout)) {
            // Elements in reverse order, so that no table is an ascending one by accident; neighbours exchanged
            // for planes at uneven distances.
            const int elements = height * width;
            for (int k = 0; k < elements; ++k) {
                const int exchanged = (k ^ 1) < elements ? k ^ 1 : k;
                const int place = layout == Layout::planes         ? k
                                  : layout == Layout::unevenPlanes ? exchanged
                                                                   : elements - 1 - k;
                table.push_back(reinterpret_cast<T*>(p + place * stride1));
            }
        } else if (listed) {
            for (int n = 0; n < count; ++n) table.push_back(reinterpret_cast<T*>(p + (count - 1 - n) * stride0));
        }
    }

    char* address(int n, int r, int c) const
    {
        if (!isArray) n = 0;
        if (isPointers(layout))
            return reinterpret_cast<char*>(table[static_cast<std::size_t>(r * width + c)]) + shift + n * stride0;
        char* const object = isList(layout) && isArray
                                 ? reinterpret_cast<char*>(table[static_cast<std::size_t>(n)]) + shift
                                 : memory.data() + n * stride0;
        return object + r * stride1 + c * stride2;
    }
    T get(int n, int r, int c) const
    {
        T v;
        std::memcpy(&v, address(n, r, c), sizeof v);
        return v;
    }
    void set(int n, int r, int c, T v) const { std::memcpy(address(n, r, c), &v, sizeof v); }
    template <class Value>
    void fill(Value value) const
    {
        for (int n = 0; n < count; ++n)
            for (int r = 0; r < height; ++r)
                for (int c = 0; c < width; ++c) set(n, r, c, value());
    }

    // The operand in an argument list.
    template <bool withSizes, bool array, int form>  // form: 0 standard, 1 list, 2 pointers
    auto arguments() const
    {
        const auto place = [&] {
            if constexpr (form == 2) {
                if constexpr (array)
                    return std::tuple(table.data(), shift, stride0);
                else
                    return std::tuple(table.data(), shift);
            } else if constexpr (form == 1 && array) {
                return std::tuple(table.data(), shift, stride1, stride2);
            } else if constexpr (array) {
                return std::tuple(reinterpret_cast<T*>(memory.data()), stride0, stride1, stride2);
            } else {
                return std::tuple(reinterpret_cast<T*>(memory.data()), stride1, stride2);
            }
        }();
        if constexpr (withSizes)
            return std::tuple_cat(place, std::tuple(width, height));
        else
            return place;
    }

private:
    std::size_t span(int padding)
    {
        if (isPointers(layout)) {  // stride1 lies between two elements of an object
            stride0 = e * (isPlanes(layout) ? 1 : 2);
            stride1 = count * stride0 + e * padding;
            return static_cast<std::size_t>((width * height - 1) * stride1 + (count - 1) * stride0 + e);
        }
        stride1 = width * stride2 + e * padding;
        stride0 = height * stride1 + e * padding;
        return static_cast<std::size_t>((count - 1) * stride0 + (height - 1) * stride1 + (width - 1) * stride2 + e);
    }
};

// The documented order of additions. ------------------------------------------------------------------

template <class T>
T foldLanes(const T* s)
{
    return (s[0] + s[1]) + (s[2] + s[3]);
}

template <class T, class Product>
T expected(Kind kind, Shape shape, Layout layout, int m, int n, int terms, int i, Product product)
{
    const bool isFloat = sizeof(T) == sizeof(float);
    const bool listWithout =
        layout == Layout::list && shape == Shape::secondArray && ((kind == mt && isFloat) || kind == tt);
    const bool missingSix = isContiguous(layout) && kind == tm && isFloat && terms == 6;
    const auto ascending = [&](T sum, int from) {
        for (int k = from; k < terms; ++k) sum = sum + product(k);
        return sum;
    };
    if (m == n && n == terms && terms >= 3 && terms <= 6 && !listWithout && !missingSix)
        return ascending(product(0), 1);

    const int left = i < (m & ~3) ? 0 : m & 3;
    if (!isContiguous(layout)) return ascending(0, 0);
    if (kind == mt && (isFloat || left != 0)) {
        const int group = left != 0 ? 8 : 4;
        T s[8] = {};
        int k = 0;
        for (; k + group <= terms; k += group)
            for (int l = 0; l < group; ++l) s[l] = s[l] + product(k + l);
        if (!isFloat) return ascending(foldLanes(s) + foldLanes(s + 4), k);
        if (left != 0)
            for (int l = 0; l < 4; ++l) s[l] = s[l] + s[l + 4];
        return ascending(foldLanes(s), k);
    }
    if (left == 1 || left == 2) {
        T even = 0, odd = 0;
        for (int k = 0; k + 2 <= terms; k += 2) even = even + product(k), odd = odd + product(k + 1);
        return ascending(even + odd, terms & ~1);
    }
    return ascending(0, 0);
}

// One call, checked. -------------------------------------------------------------------------------

struct Problem {
    Kind kind;
    Shape shape;
    Layout layout;
    int m, n, k, count;
    Against against;
    int padding;
};

std::ostream& operator<<(std::ostream& out, const Problem& p)
{
    return out << "kind " << p.kind << " shape " << static_cast<int>(p.shape) << " layout "
               << static_cast<int>(p.layout) << " m " << p.m << " n " << p.n << " k " << p.k << " count " << p.count
               << " padding " << p.padding;
}

template <class T, class Value>
void check(const Problem& p, Value value)
{
    const bool transposed1 = p.kind == tm || p.kind == tt, transposed2 = p.kind == mt || p.kind == tt;
    const bool array1 = p.shape == Shape::firstArray || p.shape == Shape::bothArrays;
    const bool array2 = p.shape == Shape::secondArray || p.shape == Shape::bothArrays;
    const Operand<T> a(transposed1 ? p.m : p.k, transposed1 ? p.k : p.m, p.count, array1, p.layout, p.against,
                       p.padding);
    const Operand<T> b(transposed2 ? p.k : p.n, transposed2 ? p.n : p.k, p.count, array2, p.layout, p.against,
                       p.padding);
    const Operand<T> dst(p.n, p.m, p.count, p.shape != Shape::single, p.layout, p.against, p.padding);
    a.fill(value), b.fill(value);
    std::vector<char> image = dst.memory.image();

    static const Members<T> members;
    const auto call = [&]<bool first, bool second, int form>(auto function, auto... count) {
        return std::apply(
            function,
            std::tuple_cat(a.template arguments<true, first, form>(), b.template arguments<true, second, form>(),
                           dst.template arguments < false, first || second, form > (), std::tuple(count...)));
    };
    const bool list = isList(p.layout), pointers = isPointers(p.layout);
    VormStatus status = StatusBadArgument;
    switch (p.shape) {
    case Shape::single:
        status = pointers ? call.template operator()<false, false, 2>(members.singleP[p.kind])
                          : call.template operator()<false, false, 0>(members.single[p.kind]);
        break;
    case Shape::firstArray:
        status = pointers ? call.template operator()<true, false, 2>(members.firstP[p.kind], p.count)
                 : list   ? call.template operator()<true, false, 1>(members.firstL[p.kind], p.count)
                          : call.template operator()<true, false, 0>(members.first[p.kind], p.count);
        break;
    case Shape::secondArray:
        status = pointers ? call.template operator()<false, true, 2>(members.secondP[p.kind], p.count)
                 : list   ? call.template operator()<false, true, 1>(members.secondL[p.kind], p.count)
                          : call.template operator()<false, true, 0>(members.second[p.kind], p.count);
        break;
    case Shape::bothArrays:
        status = pointers ? call.template operator()<true, true, 2>(members.bothP[p.kind], p.count)
                 : list   ? call.template operator()<true, true, 1>(members.bothL[p.kind], p.count)
                          : call.template operator()<true, true, 0>(members.both[p.kind], p.count);
    }
    ASSERT_EQ(status, StatusOk) << p;

    // What the whole destination should look like, the bytes between its elements included.
    for (int object = 0; object < dst.count; ++object)
        for (int i = 0; i < p.m; ++i)
            for (int j = 0; j < p.n; ++j) {
                const T wanted = expected<T>(p.kind, p.shape, p.layout, p.m, p.n, p.k, i, [&](int k) {
                    return (transposed1 ? a.get(object, k, i) : a.get(object, i, k)) *
                           (transposed2 ? b.get(object, j, k) : b.get(object, k, j));
                });
                std::memcpy(image.data() + (dst.address(object, i, j) - dst.memory.imageBase()), &wanted,
                            sizeof wanted);
                const T got = dst.get(object, i, j);
                ASSERT_EQ(std::memcmp(&got, &wanted, sizeof got), 0)
                    << p << ": object " << object << " element " << i << ", " << j << " is " << got << ", not "
                    << wanted;
            }
    ASSERT_EQ(dst.memory.image(), image) << p << ": bytes between the elements were written";
}

template <class T>
class MatrixProducts : public testing::Test {
protected:
    // Numbers of either sign, some of them zeros of either sign.
    void checkRandom(const Problem& p)
    {
        check<T>(p, [&] {
            const int zero = static_cast<int>(random_() % 16);
            return zero < 2 ? (zero == 0 ? T(0) : -T(0)) : std::uniform_real_distribution<T>(-1, 1)(random_);
        });
    }
    std::mt19937 random_{12345};
};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(MatrixProducts, Types);

TYPED_TEST(MatrixProducts, SingleOfEverySize)
{
    constexpr int innerSizes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 31};
    for (const Kind kind : {mm, mt, tm, tt})
        for (const Layout layout : {Layout::contiguous, Layout::spread, Layout::pointers})
            for (int m = 1; m <= 9; ++m)
                for (int n = 1; n <= 9; ++n)
                    for (const int k : innerSizes) {
                        const Against against = (m + n + k) % 2 ? Against::pageBehind : Against::pageBefore;
                        this->checkRandom({kind, Shape::single, layout, m, n, k, 1, against, (m + n) % 3});
                        if (this->HasFatalFailure()) return;
                    }
    for (const Kind kind : {mm, mt, tm, tt})
        for (const auto& [m, n, k] : {std::array{23, 29, 31}, std::array{12, 24, 8}})
            this->checkRandom({kind, Shape::single, Layout::contiguous, m, n, k, 1, Against::pageBehind, 0});
}

TYPED_TEST(MatrixProducts, ArraysInEveryLayout)
{
    constexpr int sizes[][3] = {{3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}, {1, 1, 1},
                                {3, 4, 3}, {5, 2, 9}, {4, 6, 2}, {6, 5, 8}, {7, 7, 7}};
    for (const Kind kind : {mm, mt, tm, tt})
        for (const Shape shape : {Shape::firstArray, Shape::secondArray, Shape::bothArrays})
            for (const Layout layout : allLayouts)
                for (const auto& [m, n, k] : sizes)
                    for (const int count : {1, 2, 3, 5, 8, 11})
                        for (const int padding : {0, 1}) {
                            const Against against = count % 2 ? Against::pageBehind : Against::pageBefore;
                            this->checkRandom({kind, shape, layout, m, n, k, count, against, padding});
                            if (this->HasFatalFailure()) return;
                        }
}

// Every product is -0: so is a sum that starts with one, while a sum that starts at zero is +0.
TYPED_TEST(MatrixProducts, StartOfTheSums)
{
    for (const Kind kind : {mm, mt, tm, tt})
        for (const Shape shape : {Shape::single, Shape::firstArray, Shape::secondArray, Shape::bothArrays})
            for (const Layout layout : allLayouts)
                for (int n = 2; n <= 8; ++n) {
                    const Problem p{kind, shape, layout, n, n, n, 5, Against::pageBehind, 0};
                    if (shape == Shape::single && isList(layout)) continue;
                    int calls = 0;
                    const bool array1 = shape == Shape::firstArray || shape == Shape::bothArrays;
                    const int ofFirst = n * n * (array1 ? p.count : 1);
                    check<TypeParam>(p, [&] { return calls++ < ofFirst ? -TypeParam(0) : TypeParam(1); });
                    if (this->HasFatalFailure()) return;
                }
}

// More objects than are done at once, and none of them fills the last register.
TYPED_TEST(MatrixProducts, LongPlanes)
{
    int32_t before;
    vorGetNumThreads(&before);
    vorSetNumThreads(1);
    for (const Shape shape : {Shape::firstArray, Shape::secondArray, Shape::bothArrays})
        for (const Layout layout : {Layout::planes, Layout::unevenPlanes})
            for (int n = 2; n <= 6; ++n) this->checkRandom({tm, shape, layout, n, n, n, 1063, Against::pageBehind, 3});
    vorSetNumThreads(before);
}

// Above the limits the objects are shared out; the bits stay the same.
TYPED_TEST(MatrixProducts, Teams)
{
    int32_t before;
    vorGetNumThreads(&before);
    for (const int threads : {2, 3, 8}) {
        vorSetNumThreads(threads);
        for (const Kind kind : {mm, mt, tm, tt})
            for (const Shape shape : {Shape::firstArray, Shape::secondArray, Shape::bothArrays})
                for (const Layout layout : allLayouts) {
                    this->checkRandom({kind, shape, layout, 4, 4, 4, 151, Against::pageBehind, 0});
                    this->checkRandom({kind, shape, layout, 20, 20, 20, threads, Against::pageBehind, 1});
                    if (this->HasFatalFailure()) return;
                }
    }
    vorSetNumThreads(before);
}

TEST(MatrixProduct, ShapeConditions)
{
    double a[12] = {}, b[12] = {}, d[16] = {};
    const auto call = [&](auto function, int w1, int h1, int w2, int h2, int stride = 8) {
        return function(a, w1 * stride, 8, w1, h1, b, w2 * 8, 8, w2, h2, d, 32, 8);
    };
    EXPECT_EQ(call(vormMul_mm_64f, 3, 2, 4, 3), StatusOk);
    EXPECT_EQ(call(vormMul_mm_64f, 3, 2, 3, 4), StatusSizeMismatch);
    EXPECT_EQ(call(vormMul_mt_64f, 3, 2, 3, 4), StatusOk);
    EXPECT_EQ(call(vormMul_mt_64f, 3, 2, 4, 3), StatusSizeMismatch);
    EXPECT_EQ(call(vormMul_tm_64f, 2, 3, 4, 3), StatusOk);
    EXPECT_EQ(call(vormMul_tm_64f, 3, 2, 4, 3), StatusSizeMismatch);
    EXPECT_EQ(call(vormMul_tt_64f, 2, 3, 3, 4), StatusOk);
    EXPECT_EQ(call(vormMul_tt_64f, 3, 2, 3, 4), StatusSizeMismatch);
    EXPECT_EQ(call(vormMul_mm_64f, 0, 2, 3, 4), StatusBadSize);
    EXPECT_EQ(call(vormMul_mm_64f, 3, 2, 3, 4, 5), StatusSizeMismatch);
    EXPECT_EQ(call(vormMul_mm_64f, 3, 2, 4, 3, 5), StatusBadStride);
}

// Where elements of the destination share memory, the last one of the last object stays, in every layout.
TEST(MatrixProduct, OverlappingObjectsAscend)
{
    constexpr int count = 9;
    for (const int n : {3, 4, 5, 6})
        for (const int distance : {2, 5, -2, 0}) {  // from plane to plane; 0: the first one is the last one too, ...
            const int elements = n * n, last = elements - 1;
            const auto at = [](int k) { return static_cast<std::size_t>(k); };
            const auto place = [&](int k) {
                return at(distance == 0  ? count * std::min(k, last - k)
                          : distance > 0 ? distance * k
                                         : -distance * (last - k));
            };
            std::vector<float> a(at(elements * count)), b(a), d(at(elements * count), -1.0f), wanted(d);
            for (std::size_t k = 0; k < a.size(); ++k)
                a[k] = static_cast<float>(k % 7) - 3, b[k] = static_cast<float>(k % 5) - 2;
            std::vector<float*> pa, pb, pd;
            for (int k = 0; k < elements; ++k)
                pa.push_back(&a[at(k * count)]), pb.push_back(&b[at(k * count)]), pd.push_back(&d[place(k)]);
            for (int object = 0; object < count; ++object)
                for (int i = 0; i < n; ++i)
                    for (int j = 0; j < n; ++j) {
                        float sum = 0;
                        for (int k = 0; k < n; ++k) sum += pa[at(i * n + k)][object] * pb[at(k * n + j)][object];
                        wanted[place(i * n + j) + at(object)] = sum;
                    }
            ASSERT_EQ(vormMul_mama_32f_P(pa.data(), 0, 4, n, n, pb.data(), 0, 4, n, n, pd.data(), 0, 4, count),
                      StatusOk);
            EXPECT_EQ(d, wanted) << "order " << n << ", distance " << distance;
        }
}

TEST(MatrixProduct, Fixed4x4)
{
    float source[48], a[16], b[16], wanted[16];
    for (int k = 0; k < 48; ++k) source[k] = static_cast<float>(k * k % 17) - 8;
    EXPECT_EQ(vormMul_mm4x4_32f(nullptr, source, source), StatusNullPointer);
    EXPECT_EQ(vormMul_mm4x4_32f(source, nullptr, source), StatusNullPointer);
    EXPECT_EQ(vormMul_mm4x4_32f(source, source, nullptr), StatusNullPointer);

    // The destination anywhere over the sources, apart, in place or overlapping in part.
    for (int to = 0; to <= 32; ++to) {
        float memory[48];
        std::memcpy(memory, source, sizeof memory);
        std::memcpy(a, memory + 1, sizeof a), std::memcpy(b, memory + 17, sizeof b);
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 4; ++j)
                wanted[4 * i + j] =
                    a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j] + a[4 * i + 2] * b[8 + j] + a[4 * i + 3] * b[12 + j];
        ASSERT_EQ(vormMul_mm4x4_32f(memory + 1, memory + 17, memory + to), StatusOk);
        EXPECT_EQ(std::memcmp(memory + to, wanted, sizeof wanted), 0) << to;
    }
}

}  // namespace
