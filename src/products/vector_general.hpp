// Products with a vector of any size, contiguous elements. The order of the additions differs from
// kernel to kernel:
//
//   mv     rows in blocks of eight and up to seven left over: in lanes along k, one register each; a
//          single row left over in two. First up to 16 bytes of x are taken singly until the rest of it
//          is aligned; all of them, if its elements are not.
//   tv     from zero, ascending k; one or two columns left over behind the blocks of eight as a sum over
//          even and one over odd k, added at the end, then the last product alone
//   arrays in lanes along k, two registers each; the same order for transposed matrices, where a sum
//          takes as many registers of columns as there are lanes in two registers
//   lists without straight-line bodies: from zero, ascending k
#pragma once

#include <cstdint>

#include "frame/minmax.hpp"
#include "frame/operands.hpp"
#include "frame/overlap.hpp"
#include "frame/unrolled.hpp"
#include "products/added.hpp"
#include "products/dots.hpp"

namespace vorm::products {

// Calls body(integral_constant<int, count>) for a count from 1 to most.
template <int most, class Body>
VORM_INLINE void withCount(int count, const Body& body)
{
    unrolled<most>([&](auto less) VORM_INLINE_LAMBDA {
        if (count == less + 1) body(std::integral_constant<int, less + 1>{});
    });
}

// mv. ------------------------------------------------------------------------------------------------

// How many elements lie before the first multiple of 16 bytes, or all of them where none is reached.
template <class T>
VORM_INLINE int elementsBeforeAligned(const T* x, int len)
{
    const auto address = reinterpret_cast<std::uintptr_t>(x);
    if (address % sizeof(T) != 0) return len;
    return min(len, static_cast<int>((16 - address % 16) % 16 / sizeof(T)));
}

template <class T>
[[gnu::noinline]] void generalProduct(const T* a, int stride1, const T* x, T* y, int rows, int terms)
{
    const int lead = elementsBeforeAligned(x, terms);
    int i = 0;
    for (; i + 8 <= rows; i += 8)
        rowsTimesVector<T, 8, 1>(advance(a, std::ptrdiff_t{i} * stride1), stride1, x, y + i, lead, terms);
    withCount<7>(rows - i, [&](auto left) VORM_INLINE_LAMBDA {
        constexpr int registers = left == 1 ? 2 : 1;
        rowsTimesVector<T, left, registers>(advance(a, std::ptrdiff_t{i} * stride1), stride1, x, y + i, lead, terms);
    });
}

// Transposed matrices: registers across the columns of the stored one. -------------------------------

// Some columns side by side, in as many accumulators as Number lanes allow; which of them term k goes
// to and how they are added at the end is up to Sums.
struct RunningSums {
    static constexpr int accumulators(int) { return 1; }
    template <class Number>
    VORM_INLINE static Number total(const Number (&sum)[1])
    {
        return sum[0];
    }
};
struct EvenAndOddSums {
    static constexpr int accumulators(int) { return 2; }
    template <class Number>
    VORM_INLINE static Number total(const Number (&sum)[2])
    {
        return sum[0] + sum[1];
    }
};
struct FoldedSums {  // as rowsTimesVector does in two registers
    static constexpr int accumulators(int width) { return 2 * width; }
    template <class Number>
    VORM_INLINE static Number total(const Number (&s)[8])
    {
        return ((s[0] + s[4]) + (s[1] + s[5])) + ((s[2] + s[6]) + (s[3] + s[7]));
    }
    template <class Number>
    VORM_INLINE static Number total(const Number (&s)[4])
    {
        return (s[0] + s[2]) + (s[1] + s[3]);
    }
};

template <class Number>
VORM_INLINE Number loadNumber(const auto* p)
{
    if constexpr (std::is_floating_point_v<Number>)
        return elementAt(p, 0);
    else
        return Number::load(p);
}
template <class T>
VORM_INLINE void storeNumber(T* p, T v)
{
    elementAt(p, 0) = v;
}
template <class T>
VORM_INLINE void storeNumber(T* p, Lanes<T> v)
{
    v.store(p);
}

template <class Sums, class Number, int some, class T>
VORM_INLINE void columnsTimesVector(const T* a, std::ptrdiff_t stride1, const T* x, T* y, int terms)
{
    constexpr int step = sizeof(Number) / sizeof(T), group = Sums::accumulators(Lanes<T>::width);
    Number sum[some][group];
    for (auto& column : sum)
        for (auto& s : column) s = T(0);
    const auto add = [&](int k, int s) VORM_INLINE_LAMBDA {
        const Number factor = T(elementAt(x + k, 0));
        for (int c = 0; c < some; ++c)
            sum[c][s] = sum[c][s] + loadNumber<Number>(advance(a, k * stride1) + c * step) * factor;
    };
    int k = 0;
    for (; k + group <= terms; k += group) unrolled<group>([&](auto s) VORM_INLINE_LAMBDA { add(k + s, s); });
    for (auto& column : sum) column[0] = Sums::total(column);
    for (; k < terms; ++k) add(k, 0);
    for (int c = 0; c < some; ++c) storeNumber(y + c * step, sum[c][0]);
}

// Columns from i up to end in registers and singly.
template <class Sums, class T>
VORM_INLINE void columnStrip(const T* a, int stride1, const T* x, T* y, int i, int end, int terms)
{
    constexpr int width = Lanes<T>::width;
    if constexpr (Sums::accumulators(width) == 1)
        for (; i + 4 * width <= end; i += 4 * width)
            columnsTimesVector<Sums, Lanes<T>, 4>(a + i, stride1, x, y + i, terms);
    for (; i + width <= end; i += width) columnsTimesVector<Sums, Lanes<T>, 1>(a + i, stride1, x, y + i, terms);
    for (; i < end; ++i) columnsTimesVector<Sums, T, 1>(a + i, stride1, x, y + i, terms);
}

template <class T>
[[gnu::noinline]] void generalProductTransposed(const T* a, int stride1, const T* x, T* y, int rows, int terms)
{
    const int paired = rows % 8 == 1 || rows % 8 == 2 ? rows % 8 : 0;
    columnStrip<RunningSums>(a, stride1, x, y, 0, rows - paired, terms);
    if (paired != 0) columnStrip<EvenAndOddSums>(a, stride1, x, y, rows - paired, rows, terms);
}

// One object of an array. -----------------------------------------------------------------------------

template <class T>
[[gnu::noinline]] void generalProductOfArray(const T* a, int stride1, const T* x, T* y, int rows, int terms)
{
    int i = 0;
    for (; i + 4 <= rows; i += 4)
        rowsTimesVector<T, 4, 2>(advance(a, std::ptrdiff_t{i} * stride1), stride1, x, y + i, 0, terms);
    withCount<3>(rows - i, [&](auto left) VORM_INLINE_LAMBDA {
        rowsTimesVector<T, left, 2>(advance(a, std::ptrdiff_t{i} * stride1), stride1, x, y + i, 0, terms);
    });
}

template <class T>
[[gnu::noinline]] void generalProductOfArrayTransposed(const T* a, int stride1, const T* x, T* y, int rows, int terms)
{
    columnStrip<FoldedSums>(a, stride1, x, y, 0, rows, terms);
}

// The lists without straight-line bodies: tiles of two objects by four elements. -----------------------

template <int objects, int rows, class T, class A, class X, class D, class Added = NothingAdded>
VORM_INLINE void runningTile(const A& a, const X& x, const D& y, int object, int i, int terms, const Added& added = {})
{
    T sum[objects][rows] = {};
    for (int k = 0; k < terms; ++k)
        for (int o = 0; o < objects; ++o) {
            const T factor = x(object + o, k);
            for (int r = 0; r < rows; ++r) sum[o][r] += a(object + o, i + r, k) * factor;
        }
    for (int o = 0; o < objects; ++o)
        for (int r = 0; r < rows; ++r) y(object + o, i + r) = plus(sum[o][r], added(object + o, i + r));
}

template <class T, class A, class X, class D>
VORM_INLINE void runningProducts(const A& a, const X& x, const D& y, int rows, int terms, int count)
{
    const auto objects = [&]<int tile>(int object) VORM_INLINE_LAMBDA {
        int i = 0;
        for (; i + 4 <= rows; i += 4) runningTile<tile, 4, T>(a, x, y, object, i, terms);
        withCount<3>(rows - i,
                     [&](auto left) VORM_INLINE_LAMBDA { runningTile<tile, left, T>(a, x, y, object, i, terms); });
    };
    for (int object = 0; object < count;) {
        // Results that overlap are written one after the other.
        if (object + 1 < count && objectsApart<2>(y, object, 1, rows)) {
            objects.template operator()<2>(object);
            object += 2;
        } else {
            objects.template operator()<1>(object++);
        }
    }
}

}  // namespace vorm::products
