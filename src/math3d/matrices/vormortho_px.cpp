// vormOrtho: parallel projections. 0 - (f - n) is neither n - f nor a sign change where it is zero.

#include "math3d/matrices/projection.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormOrthoLH_m4_32f(float* pDst, float width, float height, float zNear, float zFar)
{
    const float depth = zFar - zNear;
    return parallel(row(2, 2, 1, zNear) / row(width, height, depth, 0 - depth)).store(pDst);
}
VormStatus n8_vormOrthoRH_m4_32f(float* pDst, float width, float height, float zNear, float zFar)
{
    const float depth = zNear - zFar;
    return parallel(row(2, 2, 1, zNear) / row(width, height, depth, depth)).store(pDst);
}
VormStatus n8_vormOrthoOffCenterLH_m4_32f(float* pDst, float left, float right, float bottom, float top, float zNear,
                                          float zFar)
{
    const float width = right - left, height = top - bottom, depth = zFar - zNear;
    return parallel(row(2, 2, 1, zNear) / row(width, height, depth, 0 - depth),
                    row(left + right, bottom + top, 0, 0) / row(0 - width, 0 - height, 1, 1))
        .store(pDst);
}
VormStatus n8_vormOrthoOffCenterRH_m4_32f(float* pDst, float left, float right, float bottom, float top, float zNear,
                                          float zFar)
{
    const float width = right - left, height = top - bottom, depth = zNear - zFar;
    return parallel(row(2, 2, 1, zNear) / row(width, height, depth, depth),
                    row(left + right, bottom + top, 0, 0) / row(0 - width, 0 - height, 1, 1))
        .store(pDst);
}
}
