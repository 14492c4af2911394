// vormDotProduct of fixed vectors.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormDotProduct_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    at(pDst, 0) = dot<2>(pSrc1, pSrc2);
    return StatusOk;
}
VormStatus n8_vormDotProduct_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    at(pDst, 0) = dot<3>(pSrc1, pSrc2);
    return StatusOk;
}
VormStatus n8_vormDotProduct_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    at(pDst, 0) = dot<4>(pSrc1, pSrc2);
    return StatusOk;
}

// Not exported: the dot product under its internal name. The look-at matrices form three of them side by side.
VORM_HIDDEN VormStatus vormMul_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    at(pDst, 0) = dot<3>(pSrc1, pSrc2);
    return StatusOk;
}
}
