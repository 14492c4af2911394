// vormAffineTransform3DH_mva: column vectors through a matrix, multiplied by the reciprocal of the resulting w. What
// its layers take, and what its kernels do.
#pragma once

#include "frame/call.hpp"
#include "math3d/layers.hpp"

#define AFFINE_3DH_PARAMS                                                                                       \
    const float *pSrc1, int src1Stride1, int src1Stride2, const float *pSrc2, int src2Stride0, int src2Stride2, \
        float *pDst, int dstStride0, int dstStride2, int count
#define AFFINE_3DH_ARGS \
    pSrc1, src1Stride1, src1Stride2, pSrc2, src2Stride0, src2Stride2, pDst, dstStride0, dstStride2, count

namespace vorm::math3d {

VORM_INLINE auto affine3DH(AFFINE_3DH_PARAMS)
{
    return arrayCallOf<float>(workOf(wrapMul(6, count), 1300, count), count, Matrix{pSrc1, src1Stride1, src1Stride2},
                              VectorArray{pSrc2, src2Stride0, src2Stride2}, VectorArray{pDst, dstStride0, dstStride2});
}

}  // namespace vorm::math3d
