// vormInvert_m4: Cramer's rule, each cofactor in a lane. The order of the steps is the order of the rounding.

#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

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
    const auto at = [&](int i) { return Lanes<float>::load(advance(pSrc, std::ptrdiff_t{i} * srcStride1)); };
    const Lanes<float> low01 = interleaveLow(at(0), at(1)), low23 = interleaveLow(at(2), at(3));
    const Lanes<float> high01 = interleaveHigh(at(0), at(1)), high23 = interleaveHigh(at(2), at(3));
    // The columns of the source; those with halves swapped begin with rows 2 and 3.
    const Lanes<float> r0 = lowPairs(low01, low23), r0Swapped = lowPairs(low23, low01);
    const Lanes<float> r1 = highPairs(low23, low01), r1Unswapped = highPairs(low01, low23);
    const Lanes<float> r2 = lowPairs(high01, high23), q = lowPairs(high23, high01);
    const Lanes<float> r3 = highPairs(high23, high01);
    Lanes<float> m0, m1, m2, m3, t, u;
    // t and u are products of columns, with pairs swapped and back to front. Where a difference is to have its halves
    // swapped, its factors have.
    const auto take = [&](Lanes<float> products) {
        t = permute<1, 0, 3, 2>(products);
        u = permute<3, 2, 1, 0>(products);
    };

    take(r2 * r3);
    m0 = r1 * u - r1 * t;
    m1 = r0Swapped * t - r0Swapped * u;

    take(r1 * r2);
    m0 = (r3 * t + m0) - r3 * u;
    m3 = r0Swapped * t - r0Swapped * u;

    take(r1Unswapped * r3);
    m0 = (q * t + m0) - q * u;
    m2 = r0Swapped * t - r0Swapped * u;

    // The first row tells the determinant, and the others are finished while its reciprocal is on the way.
    const Lanes<float> d = r0 * m0, e = permute<2, 3, 0, 1>(d) + d, det = splat<1>(e) + splat<0>(e);
    if (vorm::abs(firstLane(det)) < 0x1p-119f) {
        if (pDet) elementAt(pDet, 0) = 0;
        return StatusSingular;
    }
    if (pDet) elementAt(pDet, 0) = firstLane(det);
    const Lanes<float> scale = reciprocalOf(det);

    take(r0 * r1);
    m2 = r3 * u - (r3 * t + m2);
    m3 = (q * t - m3) - q * u;

    take(r0 * r3);
    m1 = q * u + (m1 - q * t);
    m2 = (r1 * t + m2) - r1 * u;

    take(r0 * q);
    m1 = (r3 * t + m1) - r3 * u;
    m3 = r1 * u + (m3 - r1 * t);

    const Lanes<float> rows[4] = {m0, m1, m2, m3};
    for (int i = 0; i < 4; ++i) (rows[i] * scale).store(advance(pDst, std::ptrdiff_t{i} * dstStride1));
    return StatusOk;
}

VormStatus n8_vormInvert_m4_32f(const float* pSrc, float* pDet, float* pDst)
{
    return n8_own3dvormInvert_m_32f_4x4(pSrc, 16, pDet, pDst, 16);
}
}
