// vormInterpolationLinear: the line through two points.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

template <int Len>
VORM_INLINE VormStatus interpolate(const float* pSrc1, const float* pSrc2, float* pDst, float val)
{
    const auto a = loadFirst<Len>(pSrc1), b = loadFirst<Len>(pSrc2);
    storeFirst<Len>(pDst, (b - a) * val + a);
    return StatusOk;
}

}  // namespace

extern "C" {

VormStatus n8_vormInterpolationLinear_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst, float val)
{
    return interpolate<2>(pSrc1, pSrc2, pDst, val);
}
VormStatus n8_vormInterpolationLinear_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst, float val)
{
    return interpolate<3>(pSrc1, pSrc2, pDst, val);
}
VormStatus n8_vormInterpolationLinear_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst, float val)
{
    return interpolate<4>(pSrc1, pSrc2, pDst, val);
}
}
