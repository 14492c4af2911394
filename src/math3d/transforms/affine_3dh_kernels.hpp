// The kernels of vormAffineTransform3DH_mva. The order of the sums is theirs, as a template of a number.
#pragma once

#include "math3d/transforms/affine_3dh.hpp"
#include "math3d/transforms/points.hpp"

namespace vorm::math3d {

// Results that cannot be told are the largest number; all other points are done nevertheless.
template <class Number, class Sums>
VORM_INLINE VormStatus divideByLast(Number (&v)[3], const Sums& sum)
{
    const Number w = sum(3), reciprocal = Number(1.0f) / w;
    const auto isRegular = abs(w) > Number(__FLT_MIN__);
    Number sums[3];
    for (int e = 0; e < 3; ++e) sums[e] = sum(e);
    for (int e = 0; e < 3; ++e) v[e] = select(isRegular, sums[e] * reciprocal, Number(__FLT_MAX__));
    return all(isRegular) ? StatusOk : StatusDivisionByZero;
}

template <template <class> class Transform, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<float, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& matrix, const auto& src, const auto& dst, Count count) VORM_INLINE_LAMBDA {
        Elements<float> m;
        for (int r = 0; r < 4; ++r)
            for (int c = 0; c < 4; ++c) m.m[r][c] = matrix(0, r, c);
        return eachPoint<3, Transform>(m, src, dst, count.value);
    });
}
template <template <class> class Transform, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<float, TheTests, Parts>& call)
{
    return anyStrideKernel<Transform>(withAdjacent(call));
}

}  // namespace vorm::math3d
