// vormAffineTransform3DH_mva: the kernel for adjacent elements.

#include "math3d/transforms/affine_3dh_kernels.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

template <class Number>
struct Affine3DH {
    Elements<Number> matrix;
    VORM_INLINE explicit Affine3DH(const Elements<float>& elements) : matrix(elements) {}
    VORM_INLINE VormStatus operator()(Number (&v)[3]) const
    {
        const auto& m = matrix.m;
        return divideByLast(v, [&](int e) VORM_INLINE_LAMBDA {
            return (v[0] * m[e][0] + v[1] * m[e][1]) + (v[2] * m[e][2] + m[e][3]);
        });
    }
};

}  // namespace

extern "C" {

VormStatus n8_ownvormAffineTransform3DH_mva_32f(AFFINE_3DH_PARAMS)
{
    return contiguousKernel<Affine3DH>(affine3DH(AFFINE_3DH_ARGS));
}
}
