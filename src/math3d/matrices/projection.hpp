// Projections from their quotients: the scales of x, y and z, and what is added to z, side by side in one division.
#pragma once

#include "math3d/matrices/matrix4.hpp"

namespace vorm::math3d {

// A lane where it is, zero elsewhere.
template <int k>
VORM_INLINE Lanes<float> only(Lanes<float> a)
{
    const __m128i bits = _mm_setr_epi32(-(k == 0), -(k == 1), -(k == 2), -(k == 3));
    return where(LaneMask<float>{_mm_castsi128_ps(bits)}, a);
}
// Rows 0 and 1 are the same in all of them.
VORM_INLINE Matrix4 projection(Lanes<float> quotients, Lanes<float> row2, Lanes<float> row3)
{
    return {{only<0>(quotients), only<1>(quotients), row2, row3}};
}
VORM_INLINE Matrix4 parallel(Lanes<float> quotients)
{
    const Lanes<float> zero = 0.0f, one = 1.0f;
    return projection(quotients, only<2>(quotients), shuffle<0, 0, 2, 3>(zero, interleaveHigh(quotients, one)));
}
// w becomes z, or -z: side is 1 or -1. x and y are moved by so much of it.
VORM_INLINE Matrix4 central(Lanes<float> quotients, float side, Lanes<float> xy = 0.0f)
{
    const Lanes<float> zero = 0.0f;
    return projection(quotients, shuffle<0, 1, 0, 1>(xy, interleaveHigh(quotients, Lanes<float>(side))),
                      shuffle<0, 0, 2, 3>(zero, interleaveHigh(quotients, zero)));
}

}  // namespace vorm::math3d
