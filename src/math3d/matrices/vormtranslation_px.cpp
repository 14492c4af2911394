// vormTranslation and vormScaling.

#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormTranslation_m4_32f(float* pDst, float x, float y, float z)
{
    return Matrix4{{row(1, 0, 0, 0), row(0, 1, 0, 0), row(0, 0, 1, 0), row(x, y, z, 1)}}.store(pDst);
}

VormStatus n8_vormScaling_m4_32f(float* pDst, float x, float y, float z)
{
    return Matrix4{{row(x, 0, 0, 0), row(0, y, 0, 0), row(0, 0, z, 0), row(0, 0, 0, 1)}}.store(pDst);
}
}
