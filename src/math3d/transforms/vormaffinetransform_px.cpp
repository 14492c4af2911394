// vormAffineTransform: points through a whole matrix; each result is a row of four elements.

#include "math3d/matrices/matrix4.hpp"
#include "math3d/transforms/points.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// A vector through the rows of a matrix.
template <int Len>
class Rows {
public:
    VORM_INLINE explicit Rows(const float* pMatrix) : m_(Matrix4::load(pMatrix)) {}
    VORM_INLINE Lanes<float> operator()(const float* p) const
    {
        const Lanes<float> sum = (m_.rows[3] + at(p, 0) * m_.rows[0]) + at(p, 1) * m_.rows[1];
        if constexpr (Len == 2)
            return sum;
        else
            return sum + at(p, 2) * m_.rows[2];
    }

private:
    Matrix4 m_;
};
// Here sums of two products come first: x y x y times (M00 M11 M02 M13), y x y x times the others of both rows. So half
// of what spreads the coordinates is done by loads.
template <>
class Rows<4> {
public:
    VORM_INLINE explicit Rows(const float* pMatrix)
    {
        const Matrix4 m = Matrix4::load(pMatrix);
        for (int k = 0; k < 2; ++k)
            same_[k] = alternating(m.rows[2 * k], m.rows[2 * k + 1]),
            swapped_[k] = alternating(m.rows[2 * k + 1], m.rows[2 * k]);
    }
    VORM_INLINE Lanes<float> operator()(const float* p) const
    {
        const Lanes<float> xy = loadTwice(p), zw = loadTwice(p + 2);
        return (xy * same_[0] + permute<1, 0, 3, 2>(xy) * swapped_[0]) +
               (zw * same_[1] + permute<1, 0, 3, 2>(zw) * swapped_[1]);
    }

private:
    // a0 b1 a2 b3
    VORM_INLINE static Lanes<float> alternating(Lanes<float> a, Lanes<float> b)
    {
        return permute<0, 2, 1, 3>(shuffle<0, 2, 1, 3>(a, b));
    }
    Lanes<float> same_[2], swapped_[2];
};

template <int Len>
VORM_INLINE VormStatus transform(const float* pMatrix, const float* pSrc, float* pDst)
{
    const Rows<Len> rows(pMatrix);
    rows(pSrc).store(pDst);
    return StatusOk;
}

// Packed points, a register of each coordinate: as many as fill registers. Returns how many.
template <int Len>
VORM_INLINE int transformPacked(const float* pMatrix, const float* pSrc, float* pDst, int count)
{
    using L = Wide<float>;
    if (count < L::width) return 0;
    const Elements<L> matrix(pMatrix);
    int n = 0;
    for (; n <= count - L::width; n += L::width, pSrc += Len * L::width, pDst += 4 * L::width) {
        L v[Len], t[4];
        loadPacked(pSrc, v);
        for (int e = 0; e < 4; ++e) {
            t[e] = (matrix.m[3][e] + v[0] * matrix.m[0][e]) + v[1] * matrix.m[1][e];
            if constexpr (Len == 3) t[e] = t[e] + v[2] * matrix.m[2][e];
        }
        const auto store = [&](int point, int element, L pairs) VORM_INLINE_LAMBDA {
            eachPart(pairs, [&](int q, Lanes<float> part) VORM_INLINE_LAMBDA {
                float* const to = pDst + 4 * (4 * q + point) + element;
                storePairs(to, to + 4, part);
            });
        };
        for (int e = 0; e < 4; e += 2) {
            store(0, e, interleaveLow(t[e], t[e + 1]));
            store(2, e, interleaveHigh(t[e], t[e + 1]));
        }
    }
    return n;
}

template <int Len>
VORM_INLINE VormStatus transformArray(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
                                      int dstStride0, int count)
{
    const Rows<Len> rows(pMatrix);
    int n = 0;
    if constexpr (Len < 4)
        if (srcStride0 == Len * int{sizeof(float)} && dstStride0 == 4 * int{sizeof(float)})
            n = transformPacked<Len>(pMatrix, pSrc, pDst, count);
    for (; n < count; ++n)
        rows(advance(pSrc, std::ptrdiff_t{n} * srcStride0)).store(advance(pDst, std::ptrdiff_t{n} * dstStride0));
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
    through(Matrix4::load(pMatrix), Lanes<float>::load(pSrc)).store(pDst);  // rearranged rows pay in arrays
    return StatusOk;
}
VormStatus n8_vormAffineTransform_m4v2a_32f(ARRAY_PARAMS) { return transformArray<2>(ARRAY_ARGS); }
VormStatus n8_vormAffineTransform_m4v3a_32f(ARRAY_PARAMS) { return transformArray<3>(ARRAY_ARGS); }
VormStatus n8_vormAffineTransform_m4v4a_32f(ARRAY_PARAMS) { return transformArray<4>(ARRAY_ARGS); }
}
