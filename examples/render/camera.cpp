// A camera that flies along a curve, and what it sees.
#include "render/camera.hpp"

#include <algorithm>
#include <cmath>

using namespace examples;

namespace render {
namespace {

constexpr int vector3 = 3 * sizeof(float), vector4 = 4 * sizeof(float);

std::vector<float> projectedBy(const Camera& camera, const Canvas& canvas, const Body& body, const Matrix& world)
{
    std::vector<float> points(body.vertices.size());
    expectOk(vormProject_m4v3a_32f(camera.projection.data(), camera.view.data(), world.data(), body.vertices.data(),
                                   vector3, points.data(), vector3, body.vertexCount(),
                                   static_cast<float>(canvas.columns()), static_cast<float>(canvas.rows()), 0, 1),
             "vormProject_m4v3a_32f");
    return points;
}

}  // namespace

Point Camera::towardsViewer() const
{
    Point direction;
    vormSub_v3_32f(eye.data(), at.data(), direction.data());
    vormNormalize_v3_32f(direction.data(), direction.data());
    return direction;
}

// A stretch of the curve needs a point before it and one behind; the first and the last key are their own.
Camera onPath(std::span<const Key> keys, float part, float aspect)
{
    const int last = static_cast<int>(keys.size()) - 1;
    const float way = part * static_cast<float>(last);
    const int from = std::clamp(static_cast<int>(way), 0, last - 1);
    const auto key = [&](int n) { return keys[static_cast<std::size_t>(std::clamp(n, 0, last))]; };
    const Key a = key(from - 1), b = key(from), c = key(from + 1), d = key(from + 2);
    const float val = way - static_cast<float>(from);

    Camera camera;
    vormInterpolationCatmullRom_v3_32f(a.eye.data(), b.eye.data(), c.eye.data(), d.eye.data(), camera.eye.data(), val);
    vormInterpolationCatmullRom_v3_32f(a.at.data(), b.at.data(), c.at.data(), d.at.data(), camera.at.data(), val);
    const float up[3] = {0, 1, 0};
    vormLookAtRH_m4_32f(camera.eye.data(), camera.at.data(), up, camera.view.data());
    vormPerspectiveFovRH_m4_32f(camera.projection.data(), Camera::fovY, aspect, Camera::zNear, Camera::zFar);
    return camera;
}

std::vector<float> projected(const Camera& camera, const Canvas& canvas, const Body& body, Stage stage)
{
    std::vector<float> points;
    stage("viewport  vormProject_m4v3a_32f", body.vertexCount(), {1},
          [&] { points = projectedBy(camera, canvas, body, body.world); });
    return points;
}

int inView(const Camera& camera, const Body& body)
{
    std::vector<float> clip(4 * static_cast<std::size_t>(body.vertexCount()));
    expectOk(vormAffineTransform_m4v3a_32f(product({body.world, camera.view, camera.projection}).data(),
                                           body.vertices.data(), vector3, clip.data(), vector4, body.vertexCount()),
             "vormAffineTransform_m4v3a_32f");
    int count = 0;
    for (std::size_t n = 0; n < clip.size(); n += 4) {
        const float x = clip[n], y = clip[n + 1], z = clip[n + 2], w = clip[n + 3];
        count += std::abs(x) <= w && std::abs(y) <= w && 0 <= z && z <= w;
    }
    return count;
}

void drawBodies(const Camera& camera, std::span<const Body> bodies, Canvas& canvas)
{
    for (const Body& body : bodies) {
        const Matrix flat = product({body.world, shadowOn(0)});
        canvas.drawShadow(projectedBy(camera, canvas, body, flat), body.corners);
        canvas.draw(projected(camera, canvas, body), body.normals, body.corners, body.colours);
    }
}

}  // namespace render
