// Points through a matrix, divided by the resulting w.
#pragma once

#include "math3d/transforms/points.hpp"

namespace vorm::math3d {

// What is to be divided: of one column of the matrix, or of all four with its rows for m0 to m3.
template <class Number>
VORM_INLINE Number coordSum(const Number (&v)[2], Number m0, Number m1, Number, Number m3)
{
    return (m0 * v[0] + m3) + m1 * v[1];
}
template <class Number>
VORM_INLINE Number coordSum(const Number (&v)[3], Number m0, Number m1, Number m2, Number m3)
{
    return (m3 + v[2] * m2) + (v[0] * m0 + v[1] * m1);
}

template <class Number>
struct Coord {
    Elements<Number> matrix;
    VORM_INLINE explicit Coord(const Elements<float>& elements) : matrix(elements) {}
    template <int Len>
    VORM_INLINE VormStatus operator()(Number (&v)[Len]) const
    {
        const auto& m = matrix.m;
        Number sums[4];
        for (int e = 0; e < 4; ++e) sums[e] = coordSum(v, m[0][e], m[1][e], m[2][e], m[3][e]);
        for (int e = 0; e < Len; ++e) v[e] = sums[e] / sums[3];
        return StatusOk;
    }
};

template <int Len>
VORM_INLINE VormStatus oneCoord(const float* pMatrix, const float* pSrc, float* pDst)
{
    return onePoint<Len>(pMatrix, pSrc, pDst, [](const auto& v, const auto& m) VORM_INLINE_LAMBDA {
        const Lanes<float> sums = coordSum(v, m[0], m[1], m[2], m[3]);
        return sums / splat<3>(sums);
    });
}

}  // namespace vorm::math3d
