// vormAffineTransformNormal: directions through the upper left of a matrix.

#include "math3d/transforms/points.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

template <class Number>
struct Normal {
    Elements<Number> matrix;
    VORM_INLINE explicit Normal(const Elements<float>& elements) : matrix(elements) {}
    template <int Len>
    VORM_INLINE VormStatus operator()(Number (&v)[Len]) const
    {
        const auto& m = matrix.m;
        Number sums[Len];
        for (int e = 0; e < Len; ++e) {
            sums[e] = m[0][e] * v[0] + m[1][e] * v[1];
            if constexpr (Len == 3) sums[e] = sums[e] + m[2][e] * v[2];
        }
        for (int e = 0; e < Len; ++e) v[e] = sums[e];
        return StatusOk;
    }
};

}  // namespace

extern "C" {

VormStatus n8_vormAffineTransformNormal_m4v2_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return onePoint<2, Normal>(Elements<float>(pMatrix), pSrc, pDst);
}
VormStatus n8_vormAffineTransformNormal_m4v3_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return onePoint<3, Normal>(Elements<float>(pMatrix), pSrc, pDst);
}
VormStatus n8_vormAffineTransformNormal_m4v2a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
                                                  int dstStride0, int count)
{
    return eachPoint<2, Normal>(Elements<float>(pMatrix), pSrc, srcStride0, pDst, dstStride0, count);
}
VormStatus n8_vormAffineTransformNormal_m4v3a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
                                                  int dstStride0, int count)
{
    return eachPoint<3, Normal>(Elements<float>(pMatrix), pSrc, srcStride0, pDst, dstStride0, count);
}
}
