// What has to be true of the road into the picture and back.
#include "render/checks.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

#include "common/surface.hpp"

using namespace examples;

namespace render {
namespace {

constexpr int vector3 = 3 * sizeof(float);
constexpr double epsilon = std::numeric_limits<float>::epsilon();

Point toViewport(const Camera& camera, const Canvas& canvas, const Body& body, const float* vertex)
{
    Point point;
    vormProject_m4v3_32f(camera.projection.data(), camera.view.data(), body.world.data(), vertex, point.data(),
                         static_cast<float>(canvas.columns()), static_cast<float>(canvas.rows()), 0, 1);
    return point;
}

// The larger one, and infinity where there is no number.
double larger(double a, double b) { return std::isnan(b) ? INFINITY : std::max(a, b); }

}  // namespace

void Checks::atMost(const char* what, double found, double limit)
{
    const bool good = found <= limit;
    std::printf("  %-58s %9.3g (at most %g)%s\n", what, found, limit, good ? "" : "  TOO MUCH");
    failed_ = failed_ || !good;
}

// The depth d of z is zFar / (zFar - zNear) (1 - zNear / z), so that d off by an epsilon is z off by
// z^2 (zFar - zNear) / (zFar zNear) epsilons; the scene ends well before z = 10.
double wayBack(const Camera& camera, const Canvas& canvas, const Body& body)
{
    constexpr double unit = epsilon * 100 * (Camera::zFar - Camera::zNear) / (Camera::zFar * Camera::zNear);
    std::vector<float> points = projected(camera, canvas, body);
    expectOk(vormUnproject_m4v3a_32f(camera.projection.data(), camera.view.data(), body.world.data(), points.data(),
                                     vector3, points.data(), vector3, body.vertexCount(),
                                     static_cast<float>(canvas.columns()), static_cast<float>(canvas.rows()), 0, 1),
             "vormUnproject_m4v3a_32f");
    double largest = 0;
    for (std::size_t n = 0; n < points.size(); n += 3) {
        float difference[3], length;
        vormSub_v3_32f(&points[n], &body.vertices[n], difference);
        vormLen_v3_32f(difference, &length);
        largest = larger(largest, static_cast<double>(length) / unit);
    }
    return largest;
}

double askew(const Body& body)
{
    std::vector<float> moved(body.vertices.size());
    expectOk(vormAffineTransformCoord_m4v3a_32f(body.world.data(), body.vertices.data(), vector3, moved.data(), vector3,
                                                body.vertexCount()),
             "vormAffineTransformCoord_m4v3a_32f");
    const Edges edges = edgesOf(body.vertices, body.corners), movedEdges = edgesOf(moved, body.corners);
    const std::vector<float> normals = movedNormals(faceNormals(edges), body.world);
    double largest = 0;
    for (std::size_t k = 0; k < normals.size(); k += 3) {
        float cross[3], area, first, second;
        vormCrossProduct_v3_32f(&edges.first[k], &edges.second[k], cross);
        vormLen_v3_32f(cross, &area);
        vormLen_v3_32f(&edges.first[k], &first);
        vormLen_v3_32f(&edges.second[k], &second);
        if (!(area > 0.1f * first * second)) continue;
        for (const auto* const sides : {&movedEdges.first, &movedEdges.second}) {
            float product;
            vormDotProduct_v3_32f(&normals[k], &(*sides)[k], &product);
            largest = larger(largest, std::abs(static_cast<double>(product)) / epsilon);
        }
    }
    return largest;
}

double besides(const Hit& hit, const float* pixel, const Camera& camera, const Canvas& canvas, const Body& body)
{
    const Point point = toViewport(camera, canvas, body, pointOf(hit, body).data());
    float away[2], distance;
    vormSub_v2_32f(point.data(), pixel, away);
    vormLen_v2_32f(away, &distance);
    double result = larger(0, static_cast<double>(distance));

    Point corners[3];
    for (int i = 0; i < 3; ++i) {
        const int vertex = body.corners[static_cast<std::size_t>(3 * hit.triangle + i)];
        corners[i] = toViewport(camera, canvas, body, &body.vertices[3 * static_cast<std::size_t>(vertex)]);
    }
    // Inside, the pixel is on the same side of all three edges; which one is the third corner's side.
    for (int i = 0; i < 3; ++i) {
        float edge[2], third[2], inner[2], length, side, pixelSide;
        vormSub_v2_32f(corners[(i + 1) % 3].data(), corners[i].data(), edge);
        vormSub_v2_32f(corners[(i + 2) % 3].data(), corners[i].data(), third);
        vormSub_v2_32f(pixel, corners[i].data(), inner);
        vormLen_v2_32f(edge, &length);
        vormCrossProduct_v2_32f(edge, third, &side);
        vormCrossProduct_v2_32f(edge, inner, &pixelSide);
        const float inside = side < 0 ? -pixelSide : pixelSide;
        result = larger(result, -static_cast<double>(inside) / static_cast<double>(length));
    }
    return result;
}

bool shown(const Hit& hit, const float* pixel, const Camera& camera, const Canvas& canvas, std::span<const Body> bodies)
{
    const float depth = canvas.depthAt(static_cast<int>(pixel[0]), static_cast<int>(pixel[1]));
    if (hit.body < 0) return depth > 1;
    const Body& body = bodies[static_cast<std::size_t>(hit.body)];
    return std::abs(toViewport(camera, canvas, body, pointOf(hit, body).data())[2] - depth) <= 1e-5f;
}

}  // namespace render
