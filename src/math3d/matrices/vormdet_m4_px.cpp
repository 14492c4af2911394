// vormDet_m4: cofactors of row 0, each in a lane.

#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// The columns of each cofactor, which leave out that of its lane.
VORM_INLINE Lanes<float> first(Lanes<float> v) { return permute<1, 0, 0, 0>(v); }
VORM_INLINE Lanes<float> second(Lanes<float> v) { return permute<2, 2, 1, 1>(v); }
VORM_INLINE Lanes<float> third(Lanes<float> v) { return permute<3, 3, 3, 2>(v); }

}  // namespace

extern "C" {

VormStatus n8_vormDet_m4_32f(const float* pSrc, float* pDst)
{
    const auto [a0, a1, a2, a3] = Matrix4::load(pSrc).rows;
    const Lanes<float> d1 = second(a2) * third(a3) - third(a2) * second(a3);
    const Lanes<float> d2 = first(a2) * third(a3) - first(a3) * third(a2);
    const Lanes<float> d3 = second(a3) * first(a2) - second(a2) * first(a3);
    const Lanes<float> terms = ((d1 * first(a1) - d2 * second(a1)) + d3 * third(a1)) * a0;
    const Lanes<float> differences = terms - permute<1, 1, 3, 3>(terms);
    elementAt(pDst, 0) = lane<0>(differences) + lane<2>(differences);
    return StatusOk;
}
}
