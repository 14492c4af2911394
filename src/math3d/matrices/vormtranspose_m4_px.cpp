// vormTranspose_m4 and vormMulTranspose_m4. Everything is read before the first store.

#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormTranspose_m4_32f(const float* pSrc, float* pDst)
{
    return Matrix4::load(pSrc).transposed().store(pDst);
}

VormStatus n8_vormMulTranspose_m4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return (Matrix4::load(pSrc1) * Matrix4::load(pSrc2)).transposed().store(pDst);
}
}
