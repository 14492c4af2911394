// From a mesh to its picture: turned, fitted into the picture, projected, drawn.
#include "common/rasteriser.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <limits>
#include <numbers>
#include <vector>

#include "common/canvas.hpp"
#include "common/stages.hpp"

namespace examples {
namespace {

constexpr int vector3 = 3 * sizeof(float);
constexpr float cameraDistance = 5, zNear = 1, zFar = 20;

struct Bounds {
    float low[3], high[3];
};
Bounds boundsOf(std::span<const float> points)
{
    constexpr float far = std::numeric_limits<float>::max();
    Bounds bounds{{far, far, far}, {-far, -far, -far}};
    for (std::size_t n = 0; n < points.size(); n += 3) {
        vormMin_v3_32f(&points[n], bounds.low, bounds.low);
        vormMax_v3_32f(&points[n], bounds.high, bounds.high);
    }
    return bounds;
}

// The window at distance 1 through which the viewer sees all points in the middle of the picture.
Matrix fittedProjection(std::span<const float> points, const Matrix& world, const Matrix& view, float width,
                        float height)
{
    Matrix plain, fitted;
    vormPerspectiveRH_m4_32f(plain.data(), 2, 2, zNear, zFar);  // x and y become those in the plane at distance 1
    std::vector<float> seen(points.size());
    expectOk(vormAffineTransformCoord_m4v3a_32f(product({world, view, plain}).data(), points.data(), vector3,
                                                seen.data(), vector3, static_cast<int>(points.size() / 3)),
             "vormAffineTransformCoord_m4v3a_32f");
    const auto [low, high] = boundsOf(seen);
    const float scale =
        0.78f * std::min(width / std::max(high[0] - low[0], 1e-6f), height / std::max(high[1] - low[1], 1e-6f));
    const float x = (low[0] + high[0]) / 2, y = (low[1] + high[1]) / 2;
    const float halfWidth = width / scale / 2, halfHeight = height / scale / 2;
    vormPerspectiveOffCenterRH_m4_32f(fitted.data(), x - halfWidth, x + halfWidth, y - halfHeight, y + halfHeight,
                                      zNear, zFar);
    return fitted;
}

}  // namespace

Matrix turnOf(View view)
{
    constexpr float degree = std::numbers::pi_v<float> / 180;
    Matrix turn, tilt;
    vormRotationY_m4_32f(turn.data(), view.turn * degree);
    vormRotationX_m4_32f(tilt.data(), view.tilt * degree);
    return product({turn, tilt});
}

Picture drawMesh(std::span<const float> vertices, std::span<const float> normals, std::span<const int> corners,
                 View view, int width, int height, std::span<const float> colours)
{
    const int count = static_cast<int>(vertices.size() / 3);
    Canvas canvas(width, height);
    const auto columns = static_cast<float>(canvas.columns()), rows = static_cast<float>(canvas.rows());

    const Matrix world = turnOf(view);
    const float eye[3] = {0, 0, cameraDistance}, at[3] = {0, 0, 0}, up[3] = {0, 1, 0};
    Matrix camera;
    vormLookAtRH_m4_32f(eye, at, up, camera.data());
    const Matrix projection = fittedProjection(vertices, world, camera, columns, rows);

    std::vector<float> points(vertices.size()), turned(normals.size());
    const auto project = [&](const Matrix& place) {
        expectOk(vormProject_m4v3a_32f(projection.data(), camera.data(), place.data(), vertices.data(), vector3,
                                       points.data(), vector3, count, columns, rows, 0, 1),
                 "vormProject_m4v3a_32f");
    };
    project(product({shadowOn(boundsOf(vertices).low[1]), world}));
    canvas.drawShadow(points, corners);

    project(world);
    expectOk(vormAffineTransformNormal_m4v3a_32f(world.data(), normals.data(), vector3, turned.data(), vector3, count),
             "vormAffineTransformNormal_m4v3a_32f");
    canvas.draw(points, turned, corners, colours);
    return canvas.picture({0, 0, 1});
}

}  // namespace examples
