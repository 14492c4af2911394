// vormMul_mm4x4: the fixed product of two packed 4x4 matrices. It has no layer but the public one.

#include "frame/checks.hpp"
#include "products/layers.hpp"
#include "products/matrix_fixed.hpp"

using namespace vorm;

extern "C" {

VormStatus n8_vormMul_mm4x4_32f(const float* pSrc1, const float* pSrc2, float* pDst)
{
    if (anyNull(pSrc1, pSrc2, pDst)) return StatusNullPointer;

    // Both operands are in registers before the first store: the destination may overlap them.
    constexpr int stride1 = 4 * sizeof(float);
    const CommonRows<float, 4, Matrix<const float, Adjacent>> a({pSrc1, stride1, adjacent});
    const CommonRows<float, 4, Matrix<const float, Adjacent>> b({pSrc2, stride1, adjacent});
    const Matrix dst{pDst, stride1, adjacent};
    unrolled<4>([&](auto i) VORM_INLINE_LAMBDA {
        SmallMatrix<float, 4>::store<i, 0>(dst, 0, sumOf<Order::leftToRight, 4, i>([&](auto k) VORM_INLINE_LAMBDA {
                                               return splat<k>(a.all.v[0][i]) * b.all.v[0][k];
                                           }));
    });
    return StatusOk;
}
}
