// 4x4 transforms of points that are rows.
#include "common/matrix.hpp"

#include <vorm/vorm.h>

namespace examples {

Matrix product(std::initializer_list<Matrix> chain)
{
    Matrix result, next;
    vormIdentity_m4_32f(result.data());
    for (const Matrix& factor : chain) {
        vormMul_mm4x4_32f(result.data(), factor.data(), next.data());
        result = next;
    }
    return result;
}

// p + (p.y - ground) (slideX, -1, slideZ), and that is linear.
Matrix shadowOn(float ground)
{
    constexpr float slideX = 0.22f, slideZ = -0.12f;
    return {1, 0, 0, 0, slideX, 0, slideZ, 0, 0, 0, 1, 0, -ground * slideX, ground, -ground * slideZ, 1};
}

}  // namespace examples
