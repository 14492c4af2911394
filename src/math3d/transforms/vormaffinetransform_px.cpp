// vormAffineTransform: points through a whole matrix; each result is a row of four elements.

#include "math3d/matrices/matrix4.hpp"
#include "math3d/vectors.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// Each coordinate in all lanes.
VORM_INLINE Lanes<float> transformed(const Matrix4& m, const Lanes<float> (&v)[2])
{
    return (m.rows[3] + v[0] * m.rows[0]) + v[1] * m.rows[1];
}
VORM_INLINE Lanes<float> transformed(const Matrix4& m, const Lanes<float> (&v)[3])
{
    return ((m.rows[3] + v[0] * m.rows[0]) + v[1] * m.rows[1]) + v[2] * m.rows[2];
}
VORM_INLINE Lanes<float> transformed(const Matrix4& m, const Lanes<float> (&v)[4])
{
    return (v[0] * m.rows[0] + v[1] * m.rows[1]) + (v[2] * m.rows[2] + v[3] * m.rows[3]);
}

template <int Len>
VORM_INLINE void transformOne(const Matrix4& m, const float* pSrc, float* pDst)
{
    Lanes<float> v[Len];
    if constexpr (Len == 4) {
        const auto all = Lanes<float>::load(pSrc);
        unrolled<4>([&](auto i) VORM_INLINE_LAMBDA { v[i] = splat<i>(all); });
    } else {
        for (int i = 0; i < Len; ++i) v[i] = at(pSrc, i);
    }
    transformed(m, v).store(pDst);
}

template <int Len>
VORM_INLINE VormStatus transform(const float* pMatrix, const float* pSrc, float* pDst)
{
    transformOne<Len>(Matrix4::load(pMatrix), pSrc, pDst);
    return StatusOk;
}

template <int Len>
VORM_INLINE VormStatus transformArray(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
                                      int dstStride0, int count)
{
    const Matrix4 m = Matrix4::load(pMatrix);
    int n = 0;
    if (srcStride0 == Len * int{sizeof(float)} && dstStride0 == 4 * int{sizeof(float)})
        for (; n <= count - 4; n += 4, pSrc += 4 * Len, pDst += 16) {
            Lanes<float> in[Len];  // four vectors
            for (int i = 0; i < Len; ++i) in[i] = Lanes<float>::load(pSrc + 4 * i);
            unrolled<4>([&](auto k) VORM_INLINE_LAMBDA {
                Lanes<float> v[Len];
                unrolled<Len>([&](auto i) VORM_INLINE_LAMBDA {
                    constexpr int element = k * Len + i;
                    v[i] = splat<element % 4>(in[element / 4]);
                });
                transformed(m, v).store(pDst + 4 * k);
            });
        }
    for (; n < count; ++n, pSrc = advance(pSrc, srcStride0), pDst = advance(pDst, dstStride0))
        transformOne<Len>(m, pSrc, pDst);
    return StatusOk;
}

}  // namespace

#define ARRAY_PARAMS const float *pMatrix, const float *pSrc, int srcStride0, float *pDst, int dstStride0, int count
#define ARRAY_ARGS pMatrix, pSrc, srcStride0, pDst, dstStride0, count

extern "C" {

VormStatus n8_vormAffineTransform_m4v2_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return transform<2>(pMatrix, pSrc, pDst);
}
VormStatus n8_vormAffineTransform_m4v3_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return transform<3>(pMatrix, pSrc, pDst);
}
VormStatus n8_vormAffineTransform_m4v4_32f(const float* pMatrix, const float* pSrc, float* pDst)
{
    return transform<4>(pMatrix, pSrc, pDst);
}
VormStatus n8_vormAffineTransform_m4v2a_32f(ARRAY_PARAMS) { return transformArray<2>(ARRAY_ARGS); }
VormStatus n8_vormAffineTransform_m4v3a_32f(ARRAY_PARAMS) { return transformArray<3>(ARRAY_ARGS); }
VormStatus n8_vormAffineTransform_m4v4a_32f(ARRAY_PARAMS) { return transformArray<4>(ARRAY_ARGS); }
}
