// vormSub of fixed vectors.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormSub_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Sub, 2>(pSrc1, pSrc2, pDst);
}
VormStatus n8_vormSub_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Sub, 3>(pSrc1, pSrc2, pDst);
}
VormStatus n8_vormSub_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Sub, 4>(pSrc1, pSrc2, pDst);
}
}
