// Sums of products of any length in the one order that substitution has for them: eight at a time.
#pragma once

#include "frame/lanes.hpp"
#include "frame/shuffles.hpp"

namespace vorm::factor {

// Elements that lie side by side.
template <class T>
struct AdjacentRow {
    T* p;
    decltype(auto) operator()(int c) const { return entry(p, c); }
};

// The sum of row(j) x(j) for j from first to end - 1, from zero. Groups of eight terms go to eight sums,
// folded as ((s0 + s1) + (s2 + s3)) + ((s4 + s5) + (s6 + s7)); the terms left over follow one by one.
template <class T, class Row, class X>
VORM_INLINE T sumOfProducts(const Row& row, const X& x, int first, int end)
{
    T total = 0;
    int j = first;
    if (end - first >= 8) {
        T s[8] = {};
        for (; end - j >= 8; j += 8)
            for (int l = 0; l < 8; ++l) s[l] = s[l] + T(row(j + l)) * T(x(j + l));
        total = ((s[0] + s[1]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7]));
    }
    for (; j < end; ++j) total = total + T(row(j)) * T(x(j));
    return total;
}
VORM_INLINE float foldEight(const Lanes<float> (&s)[2])
{
    const Lanes<float> pairs = pairSums(s[0], s[1]), fours = pairSums(pairs, pairs);
    return lane<0>(fours) + lane<1>(fours);
}
VORM_INLINE double foldEight(const Lanes<double> (&s)[4])
{
    const Lanes<double> fours = pairSums(pairSums(s[0], s[1]), pairSums(s[2], s[3]));
    return lane<0>(fours) + lane<1>(fours);
}
template <class T>
VORM_INLINE T sumOfProducts(const AdjacentRow<const T>& row, const AdjacentRow<T>& x, int first, int end)
{
    constexpr int width = Lanes<T>::width, registers = 8 / width;
    T total = 0;
    int j = first;
    if (end - first >= 8) {
        Lanes<T> s[registers];
        for (Lanes<T>& sum : s) sum = T(0);
        for (; end - j >= 8; j += 8)
            for (int r = 0; r < registers; ++r)
                s[r] = s[r] + Lanes<T>::load(row.p + j + r * width) * Lanes<T>::load(x.p + j + r * width);
        total = foldEight(s);
    }
    for (; j < end; ++j) total = total + T(row(j)) * T(x(j));
    return total;
}

}  // namespace vorm::factor
