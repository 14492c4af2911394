// Arrays of points, one point in each lane, and what is done to them.
//
// A transform is a template over a number, which may be one point's or a register of many: it is made of the call's
// constants and changes a point (x, y, ...) in place, in the same order of operations whatever the number is. It
// returns a status.
#pragma once

#include "frame/shuffles.hpp"
#include "math3d/layers.hpp"
#include "math3d/vectors.hpp"

namespace vorm::math3d {

// The elements of a 4x4 matrix, as they are or each of them in all lanes.
template <class Number>
struct Elements {
    Number m[4][4];
    Elements() = default;
    VORM_INLINE explicit Elements(const float* p)
    {
        for (int k = 0; k < 16; ++k) m[k / 4][k % 4] = at(p, k);
    }
    template <class Other>
    VORM_INLINE explicit Elements(const Elements<Other>& other)
    {
        for (int k = 0; k < 16; ++k) m[k / 4][k % 4] = other.m[k / 4][k % 4];
    }
};

// A register of points, each register of v one coordinate of all of them. -------------------------------------------

// Packed: registers of memory, 4 points in 128 bits of each coordinate.
template <int Len, class L>
VORM_INLINE void loadPacked(const float* p, L (&v)[Len])
{
    L in[Len];
    for (int i = 0; i < Len; ++i)
        in[i] = joined<L>([&](int q) VORM_INLINE_LAMBDA { return Lanes<float>::load(p + 4 * (q * Len + i)); });
    if constexpr (Len == 2) {
        v[0] = shuffle<0, 2, 0, 2>(in[0], in[1]);
        v[1] = shuffle<1, 3, 1, 3>(in[0], in[1]);
    } else {                                               // x0 y0 z0 x1, y1 z1 x2 y2, z2 x3 y3 z3
        const L last = shuffle<2, 3, 1, 2>(in[1], in[2]);  // x2 y2 x3 y3
        const L mid = shuffle<1, 2, 0, 1>(in[0], in[1]);   // y0 z0 y1 z1
        v[0] = shuffle<0, 3, 0, 2>(in[0], last);
        v[1] = shuffle<0, 2, 1, 3>(mid, last);
        v[2] = shuffle<1, 3, 0, 3>(mid, in[2]);
    }
}
template <int Len, class L>
VORM_INLINE void storePacked(float* p, const L (&v)[Len])
{
    L out[Len];
    if constexpr (Len == 2) {
        out[0] = interleaveLow(v[0], v[1]);
        out[1] = interleaveHigh(v[0], v[1]);
    } else {
        const L xy = shuffle<0, 2, 0, 2>(v[0], v[1]);  // x0 x2 y0 y2
        const L yz = shuffle<1, 3, 1, 3>(v[1], v[2]);  // y1 y3 z1 z3
        const L zx = shuffle<0, 2, 1, 3>(v[2], v[0]);  // z0 z2 x1 x3
        out[0] = shuffle<0, 2, 0, 2>(xy, zx);
        out[1] = shuffle<0, 2, 1, 3>(yz, xy);
        out[2] = shuffle<1, 3, 1, 3>(zx, yz);
    }
    for (int i = 0; i < Len; ++i)
        eachPart(out[i], [&](int q, Lanes<float> part) VORM_INLINE_LAMBDA { part.store(p + 4 * (q * Len + i)); });
}

// Anywhere, one point for each address at(0), at(1), ... Three floats lie in lanes 0, 2 and 3, see loadFirst.
template <int Len, class L, class View, class Number>
VORM_INLINE void loadApart(const View& view, const Number& number, L (&v)[Len])
{
    if constexpr (View::isAdjacent) {
        L points[4];
        for (int k = 0; k < 4; ++k)
            points[k] =
                joined<L>([&](int q) VORM_INLINE_LAMBDA { return loadFirst<Len>(view.object(number(4 * q + k))); });
        transpose(points);
        for (int i = 0; i < Len; ++i) v[i] = points[i > 0 && Len == 3 ? i + 1 : i];
    } else {
        for (int i = 0; i < Len; ++i)
            v[i] = lanes<L>([&](int k) VORM_INLINE_LAMBDA { return float(view(number(k), i)); });
    }
}
// The first points of a register, in ascending order.
template <int Len, class L, class View>
VORM_INLINE void storeApart(const View& view, int first, int count, const L (&v)[Len])
{
    L points[4] = {v[0], v[Len == 2], v[1], v[Len - 1]};
    if constexpr (View::isAdjacent) transpose(points);
    unrolled<L::width>([&](auto k) VORM_INLINE_LAMBDA {
        if (k >= count) return;
        if constexpr (View::isAdjacent)
            storeFirst<Len>(view.object(first + k), Lanes<float>(L::R::template part<k / 4>(points[k % 4].v)));
        else
            for (int i = 0; i < Len; ++i) view(first + k, i) = lane<k>(v[i]);
    });
}

// Full registers of points from the first on, as many as there are; first is then the one behind them.
template <class L, int Len, template <class> class Transform, class Constants, class Src, class Dst>
VORM_INLINE VormStatus registersOfPoints(const Constants& constants, const Src& src, const Dst& dst, int& first,
                                         int count)
{
    VormStatus status = StatusOk;
    if (count - first < L::width) return status;
    const Transform<L> transform(constants);
    const auto apply = [&](L(&v)[Len]) VORM_INLINE_LAMBDA {
        if (const VormStatus own = transform(v); own != StatusOk) status = own;
    };
    int n = first;
    if (isPacked(src, Len) && isPacked(dst, Len))
        for (; n <= count - L::width; n += L::width) {
            L v[Len];
            loadPacked(src.object(n), v);
            apply(v);
            storePacked(dst.object(n), v);
        }
    else
        for (; n <= count - L::width; n += L::width) {
            L v[Len];
            loadApart(
                src, [&](int k) VORM_INLINE_LAMBDA { return n + k; }, v);
            apply(v);
            storeApart(dst, n, L::width, v);
        }
    first = n;
    return status;
}

// All of them; returns the last status that is not StatusOk.
template <int Len, template <class> class Transform, class Constants, class Src, class Dst>
VORM_INLINE VormStatus eachPoint(const Constants& constants, const Src& src, const Dst& dst, int count)
{
    using L = Lanes<float>;
    int n = 0;
    VormStatus status = registersOfPoints<Wide<float>, Len, Transform>(constants, src, dst, n, count);
    if constexpr (Wide<float>::parts > 1) {
        const VormStatus own = registersOfPoints<L, Len, Transform>(constants, src, dst, n, count);
        if (own != StatusOk) status = own;
    }
    if (n < count) {  // the first of the rest is in the lanes behind the last, too
        L v[Len];
        loadApart(
            src, [&](int k) VORM_INLINE_LAMBDA { return n + (n + k < count ? k : 0); }, v);
        const VormStatus own = Transform<L>(constants)(v);
        if (own != StatusOk) status = own;
        storeApart(dst, n, count - n, v);
    }
    return status;
}
template <int Len, template <class> class Transform, class Constants>
VORM_INLINE VormStatus eachPoint(const Constants& constants, const float* pSrc, int srcStride0, float* pDst,
                                 int dstStride0, int count)
{
    return eachPoint<Len, Transform>(constants, VectorArray{pSrc, srcStride0, adjacent},
                                     VectorArray{pDst, dstStride0, adjacent}, count);
}

template <int Len, template <class> class Transform, class Constants>
VORM_INLINE VormStatus onePoint(const Constants& constants, const float* pSrc, float* pDst)
{
    float v[Len];
    for (int i = 0; i < Len; ++i) v[i] = at(pSrc, i);
    const VormStatus status = Transform<float>(constants)(v);
    for (int i = 0; i < Len; ++i) at(pDst, i) = v[i];
    return status;
}

}  // namespace vorm::math3d
