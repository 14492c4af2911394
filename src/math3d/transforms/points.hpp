// Arrays of points, one point in each lane, and what is done to them.
//
// A transform is a template over a register of numbers: it is made of the call's constants and changes points
// (x, y, ...) in place, in the same order of operations however wide the register is. It returns a status.
#pragma once

#include "frame/packed_lanes.hpp"
#include "math3d/matrices/matrix4.hpp"
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

// Anywhere: point k of the register is point number(k) of the array.
template <int Len, class L, class View, class Number>
VORM_INLINE void loadApart(const View& view, const Number& number, L (&v)[Len])
{
    if constexpr (View::isAdjacent) {  // three floats lie in lanes 0, 2 and 3, see loadFirst
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
// Three floats that four may be read of.
template <class L, class View>
VORM_INLINE void loadSlots(const View& view, int first, L (&v)[3])
{
    L points[4];
    for (int k = 0; k < 4; ++k)
        points[k] =
            joined<L>([&](int q) VORM_INLINE_LAMBDA { return Lanes<float>::load(view.object(first + 4 * q + k)); });
    transpose(points);
    for (int i = 0; i < 3; ++i) v[i] = points[i];
}
// The first points of a register, in ascending order.
template <int Len, class L, class View>
VORM_INLINE void storeApart(const View& view, int first, int count, const L (&v)[Len])
{
    if constexpr (View::isAdjacent) {
        const L pairs[2] = {interleaveLow(v[0], v[1]), interleaveHigh(v[0], v[1])};  // x0 y0 x1 y1, x2 y2 x3 y3
        unrolled<L::width>([&](auto k) VORM_INLINE_LAMBDA {
            if (k >= count) return;
            float* const to = view.object(first + k);
            storeHalf<k % 2>(to, Lanes<float>(L::R::template part<k / 4>(pairs[k % 4 / 2].v)));
            if constexpr (Len == 3) elementAt(to, 8) = lane<k>(v[2]);
        });
    } else {
        unrolled<L::width>([&](auto k) VORM_INLINE_LAMBDA {
            for (int i = 0; i < Len && k < count; ++i) view(first + k, i) = lane<k>(v[i]);
        });
    }
}

// Full registers of points from the first on, as many as there are; first is then the one behind them.
template <class L, int Len, template <class> class Transform, class Constants, class Src, class Dst>
VORM_INLINE VormStatus registersOfPoints(const Constants& constants, const Src& src, const Dst& dst, int& first,
                                         int count)
{
    VormStatus status = StatusOk;
    if (count - first < L::width) return status;
    const Transform<L> transform(constants);
    const auto upTo = [&](int last, const auto& load, const auto& store) VORM_INLINE_LAMBDA {
        for (; first <= last - L::width; first += L::width) {
            L v[Len];
            load(first, v);
            if (const VormStatus own = transform(v); own != StatusOk) status = own;
            store(first, v);
        }
    };
    const auto apart = [&](int n, const L(&v)[Len]) VORM_INLINE_LAMBDA { storeApart(dst, n, L::width, v); };
    if (isPacked(src, Len) && isPacked(dst, Len)) {
        const auto load = [&](int n, L(&v)[Len]) VORM_INLINE_LAMBDA { loadPacked(src.object(n), v); };
        const auto store = [&](int n, const L(&v)[Len]) VORM_INLINE_LAMBDA { storePacked(dst.object(n), v); };
        upTo(count, load, store);
    } else {
        // What lies behind a point may be read along but for the last one, unless the array runs backwards.
        if constexpr (Len == 3 && Src::isAdjacent) {
            const auto slots = [&](int n, L(&v)[Len]) VORM_INLINE_LAMBDA { loadSlots(src, n, v); };
            if (src.stride0 >= int{sizeof(float)}) upTo(count - 1, slots, apart);
        }
        const auto single = [&](int n, L(&v)[Len]) VORM_INLINE_LAMBDA {
            const auto number = [n](int k) VORM_INLINE_LAMBDA { return n + k; };
            loadApart(src, number, v);
        };
        upTo(count, single, apart);
    }
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
        const auto number = [n, count](int k) VORM_INLINE_LAMBDA { return n + (k < count - n ? k : 0); };
        loadApart(src, number, v);
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

// A single point: each coordinate in all lanes, so that rows of a matrix make a row of results.
template <int Len, class RowOf>
VORM_INLINE VormStatus onePoint(const float* pMatrix, const float* pSrc, float* pDst, const RowOf& rowOf)
{
    const Matrix4 m = Matrix4::load(pMatrix);
    Lanes<float> v[Len];
    for (int i = 0; i < Len; ++i) v[i] = at(pSrc, i);
    storeFirst(pDst, rowOf(v, m.rows), Len);
    return StatusOk;
}

}  // namespace vorm::math3d
