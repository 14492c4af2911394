// vormMul_mm4x4: the fixed product of two packed 4x4 matrices. It has no layer but the public one.

#include "products/layers.hpp"
#include "products/matrix_fixed.hpp"

using namespace vorm;
using namespace vorm::products;

extern "C" {

VormStatus n8_vormMul_mm4x4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    if (!pSrc1 || !pSrc2 || !pDst) return StatusNullPointer;

    // All of a tile is read before its first store: the destination may overlap the operands.
    constexpr int stride1 = 4 * sizeof(float);
    using Operand = Matrix<const float, Adjacent>;
    const Factors<float, 4, Operand> a{{pSrc1, stride1, adjacent}};
    const Rows<float, 4, Operand> b{{pSrc2, stride1, adjacent}};
    tile<float, 4, Order::leftToRight, 0, 4, 0, 1>(a, b, Matrix{pDst, stride1, adjacent});
    return StatusOk;
}
}
