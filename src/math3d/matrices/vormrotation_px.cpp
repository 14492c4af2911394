// vormRotationX, -Y, -Z, -Axis and -YawPitchRoll. 0 - s is no sign change: it has no negative zero.

#include "math3d/matrices/angle.hpp"
#include "math3d/matrices/matrix4.hpp"

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

// Each row is t times the axis times a coordinate, plus one of (c, s z, -s y), (-s z, c, s x), (s y, -s x, c).
VormStatus n8_vormRotationAxis_v3m4_32f(const float* pAxis, float* pDst, float angle)
{
    const auto [s, c] = angleOf(angle);
    const Lanes<float> axis = loadThree(pAxis), squares = axis * axis;
    const Lanes<float> n = axis / sqrt((splat<0>(squares) + splat<1>(squares)) + splat<2>(squares));
    const Lanes<float> tn = (1.0f - c) * n, sn = s * n, cosine = c;
    const Lanes<float> turned = interleaveLow(sn, -sn), last = interleaveHigh(sn, -sn);  // sx -sx sy -sy, sz -sz
    const Lanes<float> both = interleaveLow(cosine, last);                               // c sz c -sz
    const auto inAxes = row(0, 0, 0, 1) == Lanes<float>(0.0f);
    return Matrix4{{where(inAxes, splat<0>(n) * tn + shuffle<0, 1, 3, 3>(both, turned)),
                    where(inAxes, splat<1>(n) * tn + shuffle<3, 2, 0, 0>(both, turned)),
                    where(inAxes, splat<2>(n) * tn + shuffle<2, 1, 0, 0>(turned, cosine)), row(0, 0, 0, 1)}}
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
