// vormPerspective: central projections. 0 - (f - n) is neither n - f nor a sign change where it is zero.

#include "math3d/matrices/angle.hpp"
#include "math3d/matrices/projection.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

VORM_INLINE float cotangent(float angle)
{
    const auto [s, c] = angleOf(angle);
    return c / s;
}

}  // namespace

extern "C" {

VormStatus n8_vormPerspectiveLH_m4_32f(float* pDst, float width, float height, float zNear, float zFar)
{
    const float twice = zNear + zNear, depth = zFar - zNear;
    return central(row(twice, twice, zFar, zNear * zFar) / row(width, height, depth, 0 - depth), 1).store(pDst);
}
VormStatus n8_vormPerspectiveRH_m4_32f(float* pDst, float width, float height, float zNear, float zFar)
{
    const float twice = zNear + zNear, depth = zNear - zFar;
    return central(row(twice, twice, zFar, zNear * zFar) / row(width, height, depth, depth), -1).store(pDst);
}
VormStatus n8_vormPerspectiveOffCenterLH_m4_32f(float* pDst, float left, float right, float bottom, float top,
                                                float zNear, float zFar)
{
    const float twice = zNear + zNear, width = right - left, height = top - bottom, depth = zFar - zNear;
    return central(row(twice, twice, zFar, zNear * zFar) / row(width, height, depth, 0 - depth), 1,
                   row(left + right, bottom + top, 0, 0) / row(0 - width, 0 - height, 1, 1))
        .store(pDst);
}
VormStatus n8_vormPerspectiveOffCenterRH_m4_32f(float* pDst, float left, float right, float bottom, float top,
                                                float zNear, float zFar)
{
    const float twice = zNear + zNear, width = right - left, height = top - bottom, depth = zNear - zFar;
    return central(row(twice, twice, zFar, zNear * zFar) / row(width, height, depth, depth), -1,
                   row(left + right, bottom + top, 0, 0) / row(width, height, 1, 1))
        .store(pDst);
}
VormStatus n8_vormPerspectiveFovLH_m4_32f(float* pDst, float fovY, float aspect, float zNear, float zFar)
{
    const float scale = cotangent(fovY * 0.5f), depth = zFar - zNear;
    return central(row(scale, scale, zFar, 0 - zNear * zFar) / row(aspect, 1, depth, depth), 1).store(pDst);
}
VormStatus n8_vormPerspectiveFovRH_m4_32f(float* pDst, float fovY, float aspect, float zNear, float zFar)
{
    const float scale = cotangent(fovY * 0.5f), depth = zNear - zFar;
    return central(row(scale, scale, zFar, zNear * zFar) / row(aspect, 1, depth, depth), -1).store(pDst);
}
}
