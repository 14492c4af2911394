// vormPerspective: central projections. 0 - (f - n) is neither n - f nor a sign change where it is zero.

#include "math3d/matrices/angle.hpp"
#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// Row 2 is (x, y, z, w), its w being 1 in left-handed and -1 in right-handed projections.
VORM_INLINE VormStatus perspective(float* pDst, float scaleX, float scaleY, Lanes<float> towards, float z)
{
    return Matrix4{{row(scaleX, 0, 0, 0), row(0, scaleY, 0, 0), towards, row(0, 0, z, 0)}}.store(pDst);
}
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
    return perspective(pDst, twice / width, twice / height, row(0, 0, zFar / depth, 1), zNear * zFar / (0 - depth));
}
VormStatus n8_vormPerspectiveRH_m4_32f(float* pDst, float width, float height, float zNear, float zFar)
{
    const float twice = zNear + zNear, depth = zNear - zFar;
    return perspective(pDst, twice / width, twice / height, row(0, 0, zFar / depth, -1), zNear * zFar / depth);
}
VormStatus n8_vormPerspectiveOffCenterLH_m4_32f(float* pDst, float left, float right, float bottom, float top,
                                                float zNear, float zFar)
{
    const float twice = zNear + zNear, width = right - left, height = top - bottom, depth = zFar - zNear;
    return perspective(pDst, twice / width, twice / height,
                       row((left + right) / (0 - width), (bottom + top) / (0 - height), zFar / depth, 1),
                       zNear * zFar / (0 - depth));
}
VormStatus n8_vormPerspectiveOffCenterRH_m4_32f(float* pDst, float left, float right, float bottom, float top,
                                                float zNear, float zFar)
{
    const float twice = zNear + zNear, width = right - left, height = top - bottom, depth = zNear - zFar;
    return perspective(pDst, twice / width, twice / height,
                       row((left + right) / width, (bottom + top) / height, zFar / depth, -1), zNear * zFar / depth);
}
VormStatus n8_vormPerspectiveFovLH_m4_32f(float* pDst, float fovY, float aspect, float zNear, float zFar)
{
    const float scale = cotangent(fovY * 0.5f), depth = zFar - zNear;
    return perspective(pDst, scale / aspect, scale, row(0, 0, zFar / depth, 1), (0 - zNear * zFar) / depth);
}
VormStatus n8_vormPerspectiveFovRH_m4_32f(float* pDst, float fovY, float aspect, float zNear, float zFar)
{
    const float scale = cotangent(fovY * 0.5f), depth = zNear - zFar;
    return perspective(pDst, scale / aspect, scale, row(0, 0, zFar / depth, -1), zNear * zFar / depth);
}
}
