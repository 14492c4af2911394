// vormMax of fixed vectors.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormMax_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Max, 2>(pSrc1, pSrc2, pDst);
}
VormStatus n8_vormMax_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Max, 3>(pSrc1, pSrc2, pDst);
}
VormStatus n8_vormMax_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Max, 4>(pSrc1, pSrc2, pDst);
}
}
