// vormBaryCentric: a point by its weights in a triangle.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

template <int Len>
VORM_INLINE VormStatus weigh(const float* pSrc1, const float* pSrc2, const float* pSrc3, float* pDst, float valF,
                             float valG)
{
    const auto a = loadFirst<Len>(pSrc1), b = loadFirst<Len>(pSrc2), c = loadFirst<Len>(pSrc3);
    storeFirst<Len>(pDst, ((b - a) * valF + a) + (c - a) * valG);
    return StatusOk;
}

}  // namespace

extern "C" {

VormStatus n8_vormBaryCentric_v2_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float* pDst,
                                     float valF, float valG)
{
    return weigh<2>(pSrc1, pSrc2, pSrc3, pDst, valF, valG);
}
VormStatus n8_vormBaryCentric_v3_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float* pDst,
                                     float valF, float valG)
{
    return weigh<3>(pSrc1, pSrc2, pSrc3, pDst, valF, valG);
}
VormStatus n8_vormBaryCentric_v4_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float* pDst,
                                     float valF, float valG)
{
    return weigh<4>(pSrc1, pSrc2, pSrc3, pDst, valF, valG);
}
}
