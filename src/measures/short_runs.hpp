// Objects of up to six elements side by side, one in each lane: the terms of a register of objects.
#pragma once

#include "frame/planes.hpp"
#include "measures/objects.hpp"

namespace vorm::measures {

// Some elements of consecutive objects, l counting them: a register of some, two of this and the next object, one.
template <class T, int W>
struct Rows {
    const T* at[W];
    VORM_INLINE Lanes<T> whole(int l, int c) const { return Lanes<T>::load(at[l] + c); }
    VORM_INLINE Lanes<T> pairs(int l, int c) const { return loadPairs(at[l] + c, at[l + 1] + c); }
    VORM_INLINE T one(int l, int c) const { return elementAt(at[l] + c, 0); }
};
// One object instead of all of them.
template <class T, int n>
struct CommonRow {
    Lanes<T> whole_, pairs_;
    T one_;
    VORM_INLINE explicit CommonRow(const T* p)
    {
        constexpr int width = narrow<T>, whole = n / width * width, paired = (n - whole) / 2 * 2;
        static_assert(whole <= width || width == 2);
        if constexpr (whole == width) whole_ = Lanes<T>::load(p);
        if constexpr (width == 4 && paired) pairs_ = loadTwice(p + whole);
        if constexpr (whole + paired < n) one_ = elementAt(p + n - 1, 0);
    }
    VORM_INLINE Lanes<T> whole(int, int) const { return whole_; }
    VORM_INLINE Lanes<T> pairs(int, int) const { return pairs_; }
    VORM_INLINE T one(int, int) const { return one_; }
};
template <int n>
struct CommonRow<double, n> {
    Lanes<double> whole_[3];
    double one_;
    VORM_INLINE explicit CommonRow(const double* p)
    {
        unrolled<n / 2>([&](auto k) VORM_INLINE_LAMBDA { whole_[k] = Lanes<double>::load(p + 2 * k); });
        if constexpr (n % 2) one_ = elementAt(p + n - 1, 0);
    }
    VORM_INLINE Lanes<double> whole(int, int c) const { return whole_[c / 2]; }
    VORM_INLINE double one(int, int) const { return one_; }
};
// Products of elements are fewer to turn than the elements.
template <class A, class B>
struct ProductRows {
    A a;
    B b;
    VORM_INLINE auto whole(int l, int c) const { return a.whole(l, c) * b.whole(l, c); }
    VORM_INLINE auto pairs(int l, int c) const { return a.pairs(l, c) * b.pairs(l, c); }
    VORM_INLINE auto one(int l, int c) const { return a.one(l, c) * b.one(l, c); }
};

// Turns rows of n elements into lanes.
template <class L, int n, class Rows>
VORM_INLINE void turn(const Rows& rows, L (&to)[n])
{
    using T = Element<L>;
    constexpr int some = narrow<T>, whole = n / some * some;
    unrolled<n / some>([&](auto k) VORM_INLINE_LAMBDA {
        L block[some];
        for (int l = 0; l < some; ++l)
            block[l] = joined<L>([&](int q) VORM_INLINE_LAMBDA { return rows.whole(some * q + l, k * some); });
        transpose(block);
        for (int i = 0; i < some; ++i) to[k * some + i] = block[i];
    });
    if constexpr (n - whole >= 2) {
        const auto pairs = [&](int l) VORM_INLINE_LAMBDA {
            return joined<L>([&](int q) VORM_INLINE_LAMBDA { return rows.pairs(some * q + l, whole); });
        };
        const L ab = pairs(0), cd = pairs(2);
        to[whole] = shuffle<0, 2, 0, 2>(ab, cd);
        to[whole + 1] = shuffle<1, 3, 1, 3>(ab, cd);
    }
    if constexpr ((n - whole) % 2 == 1)
        to[n - 1] = lanes<L>([&](int l) VORM_INLINE_LAMBDA { return rows.one(l, n - 1); });
}

// Packed objects of up to three elements are turned from as many registers as they have elements. -------------------

template <class L>
VORM_INLINE void turnPacked(L (&)[1])
{
}
template <int W>
VORM_INLINE void turnPacked(Lanes<float, W> (&r)[2])
{
    const auto x = shuffle<0, 2, 0, 2>(r[0], r[1]);
    r[1] = shuffle<1, 3, 1, 3>(r[0], r[1]);
    r[0] = x;
}
template <int W>
VORM_INLINE void turnPacked(Lanes<double, W> (&r)[2])
{
    transpose(r);
}
template <int W>
VORM_INLINE void turnPacked(Lanes<float, W> (&r)[3])  // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
{
    const auto xy = shuffle<2, 3, 1, 2>(r[1], r[2]), yz = shuffle<1, 2, 0, 1>(r[0], r[1]);
    const auto x = shuffle<0, 3, 0, 2>(r[0], xy);
    r[2] = shuffle<1, 3, 0, 3>(yz, r[2]);
    r[1] = shuffle<0, 2, 1, 3>(yz, xy);
    r[0] = x;
}
template <int W>
VORM_INLINE void turnPacked(Lanes<double, W> (&r)[3])  // x0 y0, z0 x1, y1 z1
{
    const auto x = shuffle<0, 1>(r[0], r[1]), y = shuffle<1, 0>(r[0], r[2]);
    r[2] = shuffle<0, 1>(r[1], r[2]);
    r[1] = y;
    r[0] = x;
}
// The registers of as many packed objects, each part of 128 bits with the next ones.
template <int n, class L>
VORM_INLINE void loadPacked(const Element<L>* p, L (&r)[n])
{
    using T = Element<L>;
    unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
        r[k] = joined<L>([&](int q) VORM_INLINE_LAMBDA { return Lanes<T>::load(p + (q * n + k) * narrow<T>); });
    });
}
// The same of one object over and over.
template <int n, class L>
VORM_INLINE void repeatPacked(const Element<L>* p, L (&r)[n])
{
    using T = Element<L>;
    constexpr int width = narrow<T>;
    unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
        const auto part = lanes<T>([&](int l) VORM_INLINE_LAMBDA { return elementAt(p + (k * width + l) % n, 0); });
        r[k] = joined<L>([&](int) VORM_INLINE_LAMBDA { return part; });
    });
}

}  // namespace vorm::measures
