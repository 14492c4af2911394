// Points through a matrix, divided by the resulting w.
#pragma once

#include "math3d/transforms/points.hpp"

namespace vorm::math3d {

template <class Number>
struct Coord {
    Elements<Number> matrix;
    VORM_INLINE explicit Coord(const Elements<float>& elements) : matrix(elements) {}
    VORM_INLINE Number column(const Number (&v)[2], int e) const
    {
        const auto& m = matrix.m;
        return (m[0][e] * v[0] + m[3][e]) + m[1][e] * v[1];
    }
    VORM_INLINE Number column(const Number (&v)[3], int e) const
    {
        const auto& m = matrix.m;
        return (m[3][e] + v[2] * m[2][e]) + (v[0] * m[0][e] + v[1] * m[1][e]);
    }
    template <int Len>
    VORM_INLINE VormStatus operator()(Number (&v)[Len]) const
    {
        Number sums[Len];
        const Number w = column(v, 3);
        for (int e = 0; e < Len; ++e) sums[e] = column(v, e);
        for (int e = 0; e < Len; ++e) v[e] = sums[e] / w;
        return StatusOk;
    }
};

}  // namespace vorm::math3d
