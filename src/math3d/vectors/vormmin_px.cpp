// vormMin of fixed vectors.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormMin_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Min, 2>(pSrc1, pSrc2, pDst);
}
VormStatus n8_vormMin_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Min, 3>(pSrc1, pSrc2, pDst);
}
VormStatus n8_vormMin_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    return elements<Min, 4>(pSrc1, pSrc2, pDst);
}
}
