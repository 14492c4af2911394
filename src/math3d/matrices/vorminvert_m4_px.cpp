// vormInvert_m4: Cramer's rule, each cofactor in a lane. The order of the steps is the order of the rounding.

#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

VORM_INLINE Lanes<float> pairsSwapped(Lanes<float> v) { return permute<1, 0, 3, 2>(v); }
VORM_INLINE Lanes<float> halvesSwapped(Lanes<float> v) { return permute<2, 3, 0, 1>(v); }

// 1 / det from the estimate a by one step, (a + a) - det a^2; det a is near 1 where a^2 alone leaves the range.
VORM_INLINE Lanes<float> reciprocalOf(Lanes<float> det)
{
    const Lanes<float> a = estimateReciprocal(det), square = a * a;
    const auto isNormal = (square >= Lanes<float>(__FLT_MIN__)) & (square <= Lanes<float>(__FLT_MAX__));
    return (a + a) - select(isNormal, det * square, det * a * a);
}

}  // namespace

extern "C" {

VORM_LAYER VormStatus n8_own3dvormInvert_m_32f_4x4(const float* pSrc, int srcStride1, float* pDet, float* pDst,
                                                   int dstStride1);

VormStatus n8_own3dvormInvert_m_32f_4x4(const float* pSrc, int srcStride1, float* pDet, float* pDst, int dstStride1)
{
    Lanes<float> r[4];
    for (int i = 0; i < 4; ++i) r[i] = Lanes<float>::load(advance(pSrc, std::ptrdiff_t{i} * srcStride1));
    transpose(r);
    const Lanes<float> r0 = r[0], r1 = halvesSwapped(r[1]), r2 = r[2], r3 = halvesSwapped(r[3]);
    const Lanes<float> q = halvesSwapped(r2);
    Lanes<float> m0, m1, m2, m3, t, u;

    t = pairsSwapped(r2 * r3), u = halvesSwapped(t);
    m0 = r1 * u - r1 * t;
    m1 = halvesSwapped(r0 * u - r0 * t);

    t = pairsSwapped(r1 * r2), u = halvesSwapped(t);
    m0 = (r3 * t + m0) - r3 * u;
    m3 = halvesSwapped(r0 * u - r0 * t);

    t = pairsSwapped(halvesSwapped(r1) * r3), u = halvesSwapped(t);
    m0 = (q * t + m0) - q * u;
    m2 = halvesSwapped(r0 * u - r0 * t);

    t = pairsSwapped(r0 * r1), u = halvesSwapped(t);
    m2 = r3 * u - (r3 * t + m2);
    m3 = (q * t - m3) - q * u;

    t = pairsSwapped(r0 * r3), u = halvesSwapped(t);
    m1 = q * u + (m1 - q * t);
    m2 = (r1 * t + m2) - r1 * u;

    t = pairsSwapped(r0 * q), u = halvesSwapped(t);
    m1 = (r3 * t + m1) - r3 * u;
    m3 = r1 * u + (m3 - r1 * t);

    const Lanes<float> d = r0 * m0, e = halvesSwapped(d) + d, det = splat<1>(e) + splat<0>(e);
    if (vorm::abs(firstLane(det)) < 0x1p-119f) {
        if (pDet) elementAt(pDet, 0) = 0;
        return StatusSingular;
    }
    if (pDet) elementAt(pDet, 0) = firstLane(det);
    const Lanes<float> scale = reciprocalOf(det), rows[4] = {m0, m1, m2, m3};
    for (int i = 0; i < 4; ++i) (rows[i] * scale).store(advance(pDst, std::ptrdiff_t{i} * dstStride1));
    return StatusOk;
}

VormStatus n8_vormInvert_m4_32f(const float* pSrc, float* pDet, float* pDst)
{
    return n8_own3dvormInvert_m_32f_4x4(pSrc, 16, pDet, pDst, 16);
}
}
