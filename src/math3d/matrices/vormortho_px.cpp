// vormOrtho: parallel projections. 0 - (f - n) is neither n - f nor a sign change where it is zero.

#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// Scales and translations of x, y and z.
VORM_INLINE VormStatus ortho(float* pDst, float scaleX, float scaleY, float scaleZ, float x, float y, float z)
{
    return Matrix4{{row(scaleX, 0, 0, 0), row(0, scaleY, 0, 0), row(0, 0, scaleZ, 0), row(x, y, z, 1)}}.store(pDst);
}

}  // namespace

extern "C" {

VormStatus n8_vormOrthoLH_m4_32f(float* pDst, float width, float height, float zNear, float zFar)
{
    const float depth = zFar - zNear;
    return ortho(pDst, 2 / width, 2 / height, 1 / depth, 0, 0, zNear / (0 - depth));
}
VormStatus n8_vormOrthoRH_m4_32f(float* pDst, float width, float height, float zNear, float zFar)
{
    const float depth = zNear - zFar;
    return ortho(pDst, 2 / width, 2 / height, 1 / depth, 0, 0, zNear / depth);
}
VormStatus n8_vormOrthoOffCenterLH_m4_32f(float* pDst, float left, float right, float bottom, float top, float zNear,
                                          float zFar)
{
    const float width = right - left, height = top - bottom, depth = zFar - zNear;
    return ortho(pDst, 2 / width, 2 / height, 1 / depth, (left + right) / (0 - width), (bottom + top) / (0 - height),
                 zNear / (0 - depth));
}
VormStatus n8_vormOrthoOffCenterRH_m4_32f(float* pDst, float left, float right, float bottom, float top, float zNear,
                                          float zFar)
{
    const float width = right - left, height = top - bottom, depth = zNear - zFar;
    return ortho(pDst, 2 / width, 2 / height, 1 / depth, (left + right) / (0 - width), (bottom + top) / (0 - height),
                 zNear / depth);
}
}
