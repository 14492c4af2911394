// vormLenSqr of fixed vectors.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormLenSqr_v2_32f(const float* pSrc, float* pDst)
{
    at(pDst, 0) = dot<2>(pSrc, pSrc);
    return StatusOk;
}
VormStatus n8_vormLenSqr_v3_32f(const float* pSrc, float* pDst)
{
    at(pDst, 0) = dot<3>(pSrc, pSrc);
    return StatusOk;
}
VormStatus n8_vormLenSqr_v4_32f(const float* pSrc, float* pDst)
{
    at(pDst, 0) = dot<4>(pSrc, pSrc);
    return StatusOk;
}
}
