// vormMulC of fixed vectors: times a constant.

#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

template <int Len>
VORM_INLINE VormStatus timesConstant(const float* pSrc, float* pDst, float val)
{
    using V = SmallVector<float, Len>;
    combine(Mul(), V::load(Vector{pSrc, adjacent}, 0), V::broadcast(val)).store(Vector{pDst, adjacent}, 0);
    return StatusOk;
}

}  // namespace

extern "C" {

VormStatus n8_vormMulC_v2_32f(const float* pSrc, float* pDst, float val) { return timesConstant<2>(pSrc, pDst, val); }
VormStatus n8_vormMulC_v3_32f(const float* pSrc, float* pDst, float val) { return timesConstant<3>(pSrc, pDst, val); }
VormStatus n8_vormMulC_v4_32f(const float* pSrc, float* pDst, float val) { return timesConstant<4>(pSrc, pDst, val); }
}
