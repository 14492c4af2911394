// vormMul_mm4x4: the fixed product of two packed 4x4 matrices. It has no layer but the public one.

#include "products/layers.hpp"
#include "products/matrix_fixed.hpp"
#include "frame/checks.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mm4x4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;

    // Both operands are read before the first store: the destination may overlap them.
    constexpr int stride1 = 4 * sizeof(float);
    const FactorsInRegisters<float, 4, false> a{SmallMatrix<float, 4>::load(Matrix{pSrc1, stride1, adjacent}, 0)};
    const auto b = SmallMatrix<float, 4>::load(Matrix{pSrc2, stride1, adjacent}, 0);
    product(a, b, Matrix{pDst, stride1, adjacent}, 0);
    return StatusOk;
}
}
