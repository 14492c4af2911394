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
// Edges side by side. The fourth lanes are such that what is moved is the whole of row 3, 1 included.
VormStatus n8_vormOrthoOffCenterLH_m4_32f(float* pDst, float left, float right, float bottom, float top, float zNear,
                                          float zFar)
{
    const Lanes<float> low = row(left, bottom, zNear, 1), high = row(right, top, zFar, 0);
    const Lanes<float> sizes = high - low, scales = row(2, 2, 1, 1) / sizes;
    const Lanes<float> moved = shuffle<0, 1, 2, 3>(low + high, low) / (0.0f - sizes);
    return projection(scales, only<2>(scales), moved).store(pDst);
}
VormStatus n8_vormOrthoOffCenterRH_m4_32f(float* pDst, float left, float right, float bottom, float top, float zNear,
                                          float zFar)
{
    const Lanes<float> low = row(left, bottom, zNear, 1), high = row(right, top, zFar, 0);
    const Lanes<float> sizes = high - low, turned = low - high;  // -z is the depth
    const Lanes<float> scales = row(2, 2, 1, 1) / shuffle<0, 1, 2, 3>(sizes, turned);
    const Lanes<float> moved = shuffle<0, 1, 2, 3>(low + high, low) / shuffle<0, 1, 2, 3>(0.0f - sizes, turned);
    return projection(scales, only<2>(scales), moved).store(pDst);
}
}
