// The cubic Hermite curve.
#pragma once

#include "math3d/vectors.hpp"

namespace vorm::math3d {

// (p1 - p2) hP + ((t1 hT1 + p1) + t2 hT2): the weights of the points, 2s^3 - 3s^2 + 1 and its complement, are folded
// into one difference. Only the squares and the sums of the basis are as wide as they are.
VORM_INLINE Lanes<float> hermite(Lanes<float> p1, Lanes<float> t1, Lanes<float> p2, Lanes<float> t2, float s)
{
    const float square = s * s, cube = square * s;
    const double s1 = s, s2 = square, s3 = cube;
    const float hT1 = static_cast<float>(((s1 - s2) - s2) + s3);
    const float hP = static_cast<float>((s3 - 3.0 * s2) + s3);
    const float hT2 = static_cast<float>(s3 - s2);
    return (p1 - p2) * hP + ((t1 * hT1 + p1) + t2 * hT2);
}

}  // namespace vorm::math3d
