// vormLookAtLH and vormLookAtRH: from the world to the frame of a camera.

#include "math3d/matrices/matrix4.hpp"
#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// Vectors in lanes 0 to 2; nothing is known of lane 3.
using Vector3 = Lanes<float>;

VORM_INLINE Vector3 normalized(Vector3 v)
{
    const Vector3 squares = v * v;
    return v / sqrt(splat<0>(squares) + splat<1>(squares) + splat<2>(squares));
}
VORM_INLINE Vector3 cross(Vector3 a, Vector3 b)
{
    return permute<1, 2, 0, 3>(a) * permute<2, 0, 1, 3>(b) - permute<2, 0, 1, 3>(a) * permute<1, 2, 0, 3>(b);
}

VORM_INLINE VormStatus lookAlong(Vector3 direction, Vector3 eye, const float* pUp, float* pDst)
{
    const Vector3 z = normalized(direction), x = normalized(cross(loadThree(pUp), z)), y = cross(z, x);
    const Matrix4 axes = Matrix4{{x, y, z, 0.0f}}.transposed();
    // The three dot products with the eye, side by side.
    const Vector3 dots = axes.rows[0] * splat<0>(eye) + axes.rows[1] * splat<1>(eye) + axes.rows[2] * splat<2>(eye);
    const Vector3 moved = 0.0f - dots, one = 1.0f;
    const Vector3 last = shuffle<0, 1, 0, 1>(moved, interleaveHigh(moved, one));
    return Matrix4{{axes.rows[0], axes.rows[1], axes.rows[2], last}}.store(pDst);
}

}  // namespace

extern "C" {

VormStatus n8_vormLookAtLH_m4_32f(const float* pEye, const float* pAt, const float* pUp, float* pDst)
{
    const Vector3 eye = loadThree(pEye);
    return lookAlong(loadThree(pAt) - eye, eye, pUp, pDst);
}
VormStatus n8_vormLookAtRH_m4_32f(const float* pEye, const float* pAt, const float* pUp, float* pDst)
{
    const Vector3 eye = loadThree(pEye);
    return lookAlong(eye - loadThree(pAt), eye, pUp, pDst);
}
}
