// The 4x4 matrix, row by row in registers.
#pragma once

#include "frame/shuffles.hpp"
#include "math3d/layers.hpp"

namespace vorm::math3d {

VORM_INLINE Lanes<float> row(float x, float y, float z, float w) { return _mm_setr_ps(x, y, z, w); }

struct Matrix4 {
    Lanes<float> rows[4];

    VORM_INLINE static Matrix4 load(const float* p)
    {
        return {
            {Lanes<float>::load(p), Lanes<float>::load(p + 4), Lanes<float>::load(p + 8), Lanes<float>::load(p + 12)}};
    }
    VORM_INLINE VormStatus store(float* p) const
    {
        for (int r = 0; r < 4; ++r) rows[r].store(p + 4 * r);
        return StatusOk;
    }
    VORM_INLINE Matrix4 transposed() const
    {
        Matrix4 t = *this;
        transpose(t.rows);
        return t;
    }
    // Each row r of the product is ((a0 B0 + a1 B1) + a2 B2) + a3 B3, a being row r of the left one.
    VORM_INLINE friend Matrix4 operator*(const Matrix4& a, const Matrix4& b)
    {
        Matrix4 product;
        for (int r = 0; r < 4; ++r) {
            const Lanes<float> left = a.rows[r];
            product.rows[r] = ((splat<0>(left) * b.rows[0] + splat<1>(left) * b.rows[1]) + splat<2>(left) * b.rows[2]) +
                              splat<3>(left) * b.rows[3];
        }
        return product;
    }
};

// (x M0 + y M1) + (z M2 + w M3).
VORM_INLINE Lanes<float> through(const Matrix4& m, Lanes<float> v)
{
    return (splat<0>(v) * m.rows[0] + splat<1>(v) * m.rows[1]) + (splat<2>(v) * m.rows[2] + splat<3>(v) * m.rows[3]);
}

}  // namespace vorm::math3d
