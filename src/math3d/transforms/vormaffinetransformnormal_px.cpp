// vormAffineTransformNormal: directions through the upper left of a matrix.

#include "math3d/transforms/points.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// Of one column of the matrix, or of all with its rows for m0 to m2.
template <class Number>
VORM_INLINE Number sum(const Number (&v)[2], Number m0, Number m1, Number)
{
    return m0 * v[0] + m1 * v[1];
}
template <class Number>
VORM_INLINE Number sum(const Number (&v)[3], Number m0, Number m1, Number m2)
{
    return (m0 * v[0] + m1 * v[1]) + m2 * v[2];
}

template <class Number>
struct Normal {
    Elements<Number> matrix;
    VORM_INLINE explicit Normal(const Elements<float>& elements) : matrix(elements) {}
    template <int Len>
    VORM_INLINE VormStatus operator()(Number (&v)[Len]) const
    {
        const auto& m = matrix.m;
        Number sums[Len];
        for (int e = 0; e < Len; ++e) sums[e] = sum(v, m[0][e], m[1][e], m[2][e]);
        for (int e = 0; e < Len; ++e) v[e] = sums[e];
        return StatusOk;
    }
};

template <int Len>
VORM_INLINE VormStatus one(const float* pMatrix, const float* pSrc, float* pDst)
{
    return onePoint<Len>(pMatrix, pSrc, pDst,
                         [](const auto& v, const auto& m) VORM_INLINE_LAMBDA { return sum(v, m[0], m[1], m[2]); });
}

}  // namespace

extern "C" {

VormStatus n8_vormAffineTransformNormal_m4v2_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return one<2>(pMatrix, pSrc, pDst);
}
VormStatus n8_vormAffineTransformNormal_m4v3_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return one<3>(pMatrix, pSrc, pDst);
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
