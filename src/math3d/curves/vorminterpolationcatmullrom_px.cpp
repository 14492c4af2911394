// vormInterpolationCatmullRom: the Hermite curve whose tangents come from the points before and behind.

#include "math3d/curves/hermite.hpp"

using namespace vorm;
using namespace vorm::math3d;

#define CATMULL_ROM_PARAMS \
    const float *pSrc1, const float *pSrc2, const float *pSrc3, const float *pSrc4, float *pDst, float val
#define CATMULL_ROM_ARGS pSrc1, pSrc2, pSrc3, pSrc4, pDst, val

namespace {

template <int Len>
VORM_INLINE VormStatus curve(CATMULL_ROM_PARAMS)
{
    const auto before = loadFirst<Len>(pSrc1), from = loadFirst<Len>(pSrc2), to = loadFirst<Len>(pSrc3),
               behind = loadFirst<Len>(pSrc4);
    storeFirst<Len>(pDst, hermite(from, (to - before) * 0.5f, to, (behind - from) * 0.5f, val));
    return StatusOk;
}

}  // namespace

extern "C" {

VormStatus n8_vormInterpolationCatmullRom_v2_32f(CATMULL_ROM_PARAMS) { return curve<2>(CATMULL_ROM_ARGS); }
VormStatus n8_vormInterpolationCatmullRom_v3_32f(CATMULL_ROM_PARAMS) { return curve<3>(CATMULL_ROM_ARGS); }
VormStatus n8_vormInterpolationCatmullRom_v4_32f(CATMULL_ROM_PARAMS) { return curve<4>(CATMULL_ROM_ARGS); }
}
