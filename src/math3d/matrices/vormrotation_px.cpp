// vormRotationX, -Y, -Z, -Axis and -YawPitchRoll. 0 - s is no sign change: it has no negative zero.

#include "math3d/matrices/angle.hpp"
#include "math3d/matrices/matrix4.hpp"
#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormRotationX_m4_32f(float* pDst, float angle)
{
    const auto [s, c] = angleOf(angle);
    return Matrix4{{row(1, 0, 0, 0), row(0, c, s, 0), row(0, 0 - s, c, 0), row(0, 0, 0, 1)}}.store(pDst);
}

VormStatus n8_vormRotationY_m4_32f(float* pDst, float angle)
{
    const auto [s, c] = angleOf(angle);
    return Matrix4{{row(c, 0, 0 - s, 0), row(0, 1, 0, 0), row(s, 0, c, 0), row(0, 0, 0, 1)}}.store(pDst);
}

VormStatus n8_vormRotationZ_m4_32f(float* pDst, float angle)
{
    const auto [s, c] = angleOf(angle);
    return Matrix4{{row(c, s, 0, 0), row(0 - s, c, 0, 0), row(0, 0, 1, 0), row(0, 0, 0, 1)}}.store(pDst);
}

VormStatus n8_vormRotationAxis_v3m4_32f(const float* pAxis, float* pDst, float angle)
{
    const float length = vorm::sqrt(dot<3>(pAxis, pAxis));
    const float x = at(pAxis, 0) / length, y = at(pAxis, 1) / length, z = at(pAxis, 2) / length;
    const auto [s, c] = angleOf(angle);
    const float t = 1 - c;
    return Matrix4{{row(t * x * x + c, t * y * x + s * z, t * z * x - s * y, 0),
                    row(t * x * y - s * z, t * y * y + c, y * (t * z) + s * x, 0),
                    row(s * y + t * x * z, t * y * z - s * x, c + z * (t * z), 0), row(0, 0, 0, 1)}}
        .store(pDst);
}

// Roll about z, then pitch about x, then yaw about y.
VormStatus n8_vormRotationYawPitchRoll_m4_32f(float* pDst, float yaw, float pitch, float roll)
{
    const auto [sy, cy] = angleOf(yaw);
    const auto [sp, cp] = angleOf(pitch);
    const auto [sr, cr] = angleOf(roll);
    return Matrix4{{row(sr * (sy * sp) + cy * cr, sr * cp, sr * (sp * cy) - sy * cr, 0),
                    row(sy * sp * cr - cy * sr, cr * cp, sy * sr + cr * (sp * cy), 0), row(sy * cp, 0 - sp, cy * cp, 0),
                    row(0, 0, 0, 1)}}
        .store(pDst);
}
}
