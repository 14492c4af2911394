// vormHermite: the cubic between two points with given tangents.

#include "math3d/curves/hermite.hpp"

using namespace vorm;
using namespace vorm::math3d;

#define HERMITE_PARAMS \
    const float *pPoint1, const float *pTangent1, const float *pPoint2, const float *pTangent2, float *pDst, float val
#define HERMITE_ARGS pPoint1, pTangent1, pPoint2, pTangent2, pDst, val

namespace {

template <int Len>
VORM_INLINE VormStatus curve(HERMITE_PARAMS)
{
    storeFirst<Len>(pDst, hermite(loadFirst<Len>(pPoint1), loadFirst<Len>(pTangent1), loadFirst<Len>(pPoint2),
                                  loadFirst<Len>(pTangent2), val));
    return StatusOk;
}

}  // namespace

extern "C" {

VormStatus n8_vormHermite_v2_32f(HERMITE_PARAMS) { return curve<2>(HERMITE_ARGS); }
VormStatus n8_vormHermite_v3_32f(HERMITE_PARAMS) { return curve<3>(HERMITE_ARGS); }
VormStatus n8_vormHermite_v4_32f(HERMITE_PARAMS) { return curve<4>(HERMITE_ARGS); }
}
