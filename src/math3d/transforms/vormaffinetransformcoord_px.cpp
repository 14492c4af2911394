// vormAffineTransformCoord: points through a matrix, divided by the resulting w.

#include "math3d/transforms/coord.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormAffineTransformCoord_m4v2_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return oneCoord<2>(pMatrix, pSrc, pDst);
}
VormStatus n8_vormAffineTransformCoord_m4v3_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return oneCoord<3>(pMatrix, pSrc, pDst);
}
VormStatus n8_vormAffineTransformCoord_m4v2a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
                                                 int dstStride0, int count)
{
    return eachPoint<2, Coord>(Elements<float>(pMatrix), pSrc, srcStride0, pDst, dstStride0, count);
}
VormStatus n8_vormAffineTransformCoord_m4v3a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
                                                 int dstStride0, int count)
{
    return eachPoint<3, Coord>(Elements<float>(pMatrix), pSrc, srcStride0, pDst, dstStride0, count);
}
}
