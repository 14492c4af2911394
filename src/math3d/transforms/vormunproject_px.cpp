// vormUnproject: from a viewport back to the world, through the inverse of all three transforms.

#include "factor/layers.hpp"
#include "math3d/matrices/matrix4.hpp"
#include "math3d/transforms/coord.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

// Sixteen numbers rounded to single precision.
VORM_LAYER VormStatus n8_own3dConvert64f32f_16(const double* pSrc, float* pDst);

VormStatus n8_own3dConvert64f32f_16(const double* pSrc, float* pDst)
{
    for (int k = 0; k < 16; ++k) at(pDst, k) = static_cast<float>(elementAt(pSrc, k * std::ptrdiff_t{sizeof(double)}));
    return StatusOk;
}
}

namespace {

struct Viewport {
    float width, height, minZ, depth;
};

// From the viewport to the range of the projection: x and y in -1 to 1 with y upward, z in 0 to 1.
template <class Number>
VORM_INLINE void normalise(Number (&v)[3], Number width, Number height, Number minZ, Number depth)
{
    v[0] = Number(2.0f) * v[0] / width - Number(1.0f);
    v[1] = Number(-2.0f) * v[1] / height + Number(1.0f);
    v[2] = (v[2] - minZ) / depth;
}

// The inverse of the three transforms, by the double-precision inversion of 4x4 matrices.
VORM_INLINE VormStatus inverseOf(const float* pProjection, const float* pView, const float* pWorld, float* inverse)
{
    constexpr int row = 4 * sizeof(double), element = sizeof(double);
    double wide[16], inverted[16];
    const Matrix4 all = (Matrix4::load(pWorld) * Matrix4::load(pView)) * Matrix4::load(pProjection);
    all.store(inverse);
    for (int k = 0; k < 16; ++k) wide[k] = inverse[k];
    const VormStatus status = n8_ownvormInvert_m_64f(wide, row, element, nullptr, inverted, row, element, 4);
    if (status == StatusOk) n8_own3dConvert64f32f_16(inverted, inverse);
    return status;
}

struct Unprojection {
    Elements<float> inverse;
    Viewport viewport;
};
template <class Number>
struct Unprojecting {
    Coord<Number> back;
    Number width, height, minZ, depth;
    VORM_INLINE explicit Unprojecting(const Unprojection& all)
        : back(all.inverse),
          width(all.viewport.width),
          height(all.viewport.height),
          minZ(all.viewport.minZ),
          depth(all.viewport.depth)
    {
    }
    VORM_INLINE VormStatus operator()(Number (&v)[3]) const
    {
        normalise(v, width, height, minZ, depth);
        return back(v);
    }
};

}  // namespace

extern "C" {

VormStatus n8_vormUnproject_m4v3_32f(const float* pProjection, const float* pView, const float* pWorld,
                                     const float* pSrc, float* pDst, float width, float height, float minZ, float maxZ)
{
    float v[3] = {at(pSrc, 0), at(pSrc, 1), at(pSrc, 2)};
    normalise(v, width, height, minZ, maxZ - minZ);
    for (int i = 0; i < 3; ++i) at(pDst, i) = v[i];  // there to stay where the matrices have no inverse

    float inverse[16];
    const VormStatus status = inverseOf(pProjection, pView, pWorld, inverse);
    if (status != StatusOk) return status;
    return oneCoord<3>(inverse, v, pDst);
}

VormStatus n8_vormUnproject_m4v3a_32f(const float* pProjection, const float* pView, const float* pWorld,
                                      const float* pSrc, int srcStride0, float* pDst, int dstStride0, int count,
                                      float width, float height, float minZ, float maxZ)
{
    if (count < 1) return StatusOk;
    float inverse[16];
    const VormStatus status = inverseOf(pProjection, pView, pWorld, inverse);
    if (status != StatusOk) return status;
    return eachPoint<3, Unprojecting>(Unprojection{Elements<float>(inverse), {width, height, minZ, maxZ - minZ}}, pSrc,
                                      srcStride0, pDst, dstStride0, count);
}
}
