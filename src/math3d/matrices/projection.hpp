// Projections from their quotients: the scales of x, y and z, and what is added to z, side by side in one division.
#pragma once

#include "math3d/matrices/matrix4.hpp"

namespace vorm::math3d {

// Rows 0 and 1 are the same in all of them.
VORM_INLINE Matrix4 projection(Lanes<float> quotients, Lanes<float> row2, Lanes<float> row3)
{
    const Lanes<float> zero = 0.0f, scales = interleaveLow(zero, quotients);  // 0 x 0 y
    return {{shuffle<1, 0, 0, 0>(scales, zero), shuffle<0, 3, 0, 0>(scales, zero), row2, row3}};
}
// Moved by x and y.
VORM_INLINE Matrix4 parallel(Lanes<float> quotients, Lanes<float> xy = 0.0f)
{
    const Lanes<float> zero = 0.0f, one = 1.0f;
    return projection(quotients, shuffle<0, 0, 0, 1>(zero, interleaveHigh(quotients, zero)),
                      shuffle<0, 1, 2, 3>(xy, interleaveHigh(quotients, one)));
}
// w becomes z, or -z: side is 1 or -1. x and y are moved by so much of it.
VORM_INLINE Matrix4 central(Lanes<float> quotients, float side, Lanes<float> xy = 0.0f)
{
    const Lanes<float> zero = 0.0f;
    return projection(quotients, shuffle<0, 1, 0, 1>(xy, interleaveHigh(quotients, Lanes<float>(side))),
                      shuffle<0, 0, 2, 3>(zero, interleaveHigh(quotients, zero)));
}

}  // namespace vorm::math3d
