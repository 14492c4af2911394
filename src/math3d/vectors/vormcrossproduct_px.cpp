// vormCrossProduct of fixed vectors: each element is stored as soon as it is computed.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// The minor a_i b_j - a_j b_i.
VORM_INLINE float minor2(const float* a, const float* b, int i, int j)
{
    return at(a, i) * at(b, j) - at(a, j) * at(b, i);
}

}  // namespace

extern "C" {

VormStatus n8_vormCrossProduct_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    at(pDst, 0) = minor2(pSrc1, pSrc2, 0, 1);
    return StatusOk;
}

VormStatus n8_vormCrossProduct_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    at(pDst, 0) = minor2(pSrc1, pSrc2, 1, 2);
    at(pDst, 1) = minor2(pSrc1, pSrc2, 2, 0);
    at(pDst, 2) = minor2(pSrc1, pSrc2, 0, 1);
    return StatusOk;
}

VormStatus n8_vormCrossProduct_v4_32f(const float* a, const float* b, const float* c, float* pDst)
{
    // The order within each minor is part of the result's rounding; a minor of (c, b) is c_i b_j - c_j b_i.
    at(pDst, 0) = minor2(b, c, 2, 3) * at(a, 1) - minor2(c, b, 3, 1) * at(a, 2) + minor2(c, b, 2, 1) * at(a, 3);
    at(pDst, 1) =
        0.0f - (minor2(b, c, 2, 3) * at(a, 0) - minor2(c, b, 3, 0) * at(a, 2) + minor2(c, b, 2, 0) * at(a, 3));
    at(pDst, 2) = minor2(c, b, 3, 1) * at(a, 0) - minor2(c, b, 3, 0) * at(a, 1) + minor2(c, b, 1, 0) * at(a, 3);
    at(pDst, 3) =
        0.0f - (minor2(c, b, 2, 1) * at(a, 0) - minor2(c, b, 2, 0) * at(a, 1) + minor2(c, b, 1, 0) * at(a, 2));
    return StatusOk;
}
}
