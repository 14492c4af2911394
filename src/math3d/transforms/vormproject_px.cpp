// vormProject: from the world to a viewport, whose y axis runs downward.

#include "math3d/matrices/matrix4.hpp"
#include "math3d/transforms/points.hpp"

using namespace vorm;
using namespace vorm::math3d;

namespace {

// The middle and the reach of a viewport along each axis.
struct Viewport {
    float middle[3], reach[3];
    VORM_INLINE Viewport(float width, float height, float minZ, float maxZ)
        : middle{width * 0.5f, height * 0.5f, minZ}, reach{width * 0.5f, 0 - height * 0.5f, maxZ - minZ}
    {
    }
};

// All three transforms in one matrix.
struct Projection {
    Elements<float> matrix;
    Viewport viewport;
};
template <class Number>
struct Projecting {
    Elements<Number> matrix;
    Number middle[3], reach[3];
    VORM_INLINE explicit Projecting(const Projection& all) : matrix(all.matrix)
    {
        for (int e = 0; e < 3; ++e) middle[e] = all.viewport.middle[e], reach[e] = all.viewport.reach[e];
    }
    VORM_INLINE VormStatus operator()(Number (&v)[3]) const
    {
        Number t[4];
        const auto& m = matrix.m;
        for (int e = 0; e < 4; ++e) t[e] = (v[2] * m[2][e] + m[3][e]) + (v[0] * m[0][e] + v[1] * m[1][e]);
        for (int e = 0; e < 3; ++e) v[e] = middle[e] + reach[e] * (t[e] / t[3]);
        return StatusOk;
    }
};

}  // namespace

extern "C" {

VormStatus n8_vormProject_m4v3_32f(const float* pProjection, const float* pView, const float* pWorld, const float* pSrc,
                                   float* pDst, float width, float height, float minZ, float maxZ)
{
    const Matrix4 world = Matrix4::load(pWorld);
    const Lanes<float> x = at(pSrc, 0), y = at(pSrc, 1), z = at(pSrc, 2);
    const Lanes<float> inWorld = (world.rows[3] + z * world.rows[2]) + (x * world.rows[0] + y * world.rows[1]);
    const Lanes<float> t = through(Matrix4::load(pProjection), through(Matrix4::load(pView), inWorld));
    const auto& [middle, reach] = Viewport(width, height, minZ, maxZ);
    const Lanes<float> inViewport =
        row(middle[0], middle[1], middle[2], 0) + row(reach[0], reach[1], reach[2], 0) * (t / splat<3>(t));
    storeThree(pDst, inViewport);
    return StatusOk;
}

// Unlike the single member it multiplies the matrices first, which rounds differently.
VormStatus n8_vormProject_m4v3a_32f(const float* pProjection, const float* pView, const float* pWorld,
                                    const float* pSrc, int srcStride0, float* pDst, int dstStride0, int count,
                                    float width, float height, float minZ, float maxZ)
{
    float all[16];
    (Matrix4::load(pWorld) * (Matrix4::load(pView) * Matrix4::load(pProjection))).store(all);
    return eachPoint<3, Projecting>(Projection{Elements<float>(all), Viewport(width, height, minZ, maxZ)}, pSrc,
                                    srcStride0, pDst, dstStride0, count);
}
}
