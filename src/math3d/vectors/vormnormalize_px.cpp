// vormNormalize of fixed vectors.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormNormalize_v2_32f(const float* pSrc, float* pDst)
{
    return divideByLength<2>(pSrc, dot<2>(pSrc, pSrc), pDst);
}
VormStatus n8_vormNormalize_v3_32f(const float* pSrc, float* pDst)
{
    return divideByLength<3>(pSrc, dot<3>(pSrc, pSrc), pDst);
}
VormStatus n8_vormNormalize_v4_32f(const float* pSrc, float* pDst)
{
    // Unlike the other lengths, the first element comes last.
    return divideByLength<4>(pSrc, dot<3>(pSrc + 1, pSrc + 1) + at(pSrc, 0) * at(pSrc, 0), pDst);
}
}
