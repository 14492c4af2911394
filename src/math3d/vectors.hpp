// Vectors of 2, 3 and 4 consecutive floats: what the fixed forms are made of.
#pragma once

#include "frame/operands.hpp"
#include "frame/operations.hpp"
#include "frame/small_vector.hpp"
#include "math3d/layers.hpp"

namespace vorm::math3d {

struct Min {  // b where they are equal or unordered, as the processor's own minimum
    VORM_INLINE static Lanes<float> apply(Lanes<float> a, Lanes<float> b) { return _mm_min_ps(a.v, b.v); }
};
struct Max {
    VORM_INLINE static Lanes<float> apply(Lanes<float> a, Lanes<float> b) { return _mm_max_ps(a.v, b.v); }
};

// dst[i] = src1[i] op src2[i]; everything is read before the first store.
template <class Op, int Len>
VORM_INLINE VormStatus elements(const float* pSrc1, const float* pSrc2, float* pDst)
{
    using V = SmallVector<float, Len>;
    combine(Op(), V::load(Vector{pSrc1, adjacent}, 0), V::load(Vector{pSrc2, adjacent}, 0))
        .store(Vector{pDst, adjacent}, 0);
    return StatusOk;
}

// Element i, read where it stands: functions that store between their reads mean what they say.
VORM_INLINE float at(const float* p, int i) { return elementAt(p, i * std::ptrdiff_t{sizeof(float)}); }
VORM_INLINE Loose<float>& at(float* p, int i) { return elementAt(p, i * std::ptrdiff_t{sizeof(float)}); }

// a0 b0 + a1 b1 + ..., left to right, the first product as the start.
template <int Len>
VORM_INLINE float dot(const float* a, const float* b)
{
    float sum = at(a, 0) * at(b, 0);
    for (int i = 1; i < Len; ++i) sum += at(a, i) * at(b, i);
    return sum;
}

// Each element divided by the length, in turn, so that the vector may be its own destination.
template <int Len>
VORM_INLINE VormStatus divideByLength(const float* pSrc, float lengthSquared, float* pDst)
{
    const float length = sqrt(lengthSquared);
    for (int i = 0; i < Len; ++i) at(pDst, i) = at(pSrc, i) / length;
    return StatusOk;
}

}  // namespace vorm::math3d
