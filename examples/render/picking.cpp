// Picking: a pixel's nearest and farthest point, taken back into the coordinates of each mesh, end the ray that
// is tested against its triangles.
#include "render/picking.hpp"

#include <cmath>
#include <limits>
#include <optional>

#include "common/surface.hpp"

using namespace examples;

namespace render {
namespace {

constexpr int vector3 = 3 * sizeof(float);

// The pixels at that depth, in the coordinates of the body.
std::vector<float> unprojected(const Body& body, const Camera& camera, const Canvas& canvas, std::vector<float> pixels,
                               float depth, Stage stage)
{
    for (std::size_t n = 2; n < pixels.size(); n += 3) pixels[n] = depth;
    std::vector<float> points(pixels.size());
    const int count = static_cast<int>(pixels.size() / 3);
    stage("and back  vormUnproject_m4v3a_32f", count, {1}, [&] {
        expectOk(vormUnproject_m4v3a_32f(camera.projection.data(), camera.view.data(), body.world.data(), pixels.data(),
                                         vector3, points.data(), vector3, count, static_cast<float>(canvas.columns()),
                                         static_cast<float>(canvas.rows()), 0, 1),
                 "vormUnproject_m4v3a_32f");
    });
    return points;
}

// T. Moeller and B. Trumbore, Fast, minimum storage ray/triangle intersection (1997).
std::optional<Hit> intersection(const float* from, const float* direction, const float* corner, const float* edge1,
                                const float* edge2)
{
    float h[3], s[3], q[3], volume, f, g, along, length, width;
    vormCrossProduct_v3_32f(direction, edge2, h);
    vormDotProduct_v3_32f(edge1, h, &volume);
    if (volume == 0) return {};
    vormSub_v3_32f(from, corner, s);
    vormDotProduct_v3_32f(s, h, &f);
    f /= volume;
    if (!(f >= 0 && f <= 1)) return {};
    vormCrossProduct_v3_32f(s, edge1, q);
    vormDotProduct_v3_32f(direction, q, &g);
    g /= volume;
    if (!(g >= 0 && f + g <= 1)) return {};
    // A triangle without area, or seen from its edge: the volume is a few roundings.
    vormLen_v3_32f(edge1, &length);
    vormLen_v3_32f(h, &width);
    if (std::abs(volume) <= 8 * std::numeric_limits<float>::epsilon() * length * width) return {};
    vormDotProduct_v3_32f(edge2, q, &along);
    return Hit{-1, -1, along / volume, f, g};
}

}  // namespace

// How far along its ray a point lies is the same in the coordinates of all bodies.
std::vector<Hit> picked(std::span<const Body> bodies, const Camera& camera, const Canvas& canvas,
                        const std::vector<float>& pixels, Stage stage)
{
    std::vector<Hit> hits(pixels.size() / 3);
    for (std::size_t b = 0; b < bodies.size(); ++b) {
        const Body& body = bodies[b];
        const auto from = unprojected(body, camera, canvas, pixels, 0, b == 0 ? stage : once);
        const auto to = unprojected(body, camera, canvas, pixels, 1, once);
        const auto [first, second] = edgesOf(body.vertices, body.corners);
        for (std::size_t n = 0; n < hits.size(); ++n) {
            float direction[3];
            vormSub_v3_32f(&to[3 * n], &from[3 * n], direction);
            for (std::size_t k = 0; k < body.corners.size(); k += 3) {
                const float* const corner = &body.vertices[3 * static_cast<std::size_t>(body.corners[k])];
                const auto hit = intersection(&from[3 * n], direction, corner, &first[k], &second[k]);
                if (!hit || !(hit->along >= 0 && hit->along < hits[n].along)) continue;
                hits[n] = *hit;
                hits[n].body = static_cast<int>(b), hits[n].triangle = static_cast<int>(k / 3);
            }
        }
    }
    return hits;
}

Point pointOf(const Hit& hit, const Body& body)
{
    const auto corner = [&](int i) {
        return &body.vertices[3 *
                              static_cast<std::size_t>(body.corners[static_cast<std::size_t>(3 * hit.triangle + i)])];
    };
    Point point;
    vormBaryCentric_v3_32f(corner(0), corner(1), corner(2), point.data(), hit.f, hit.g);
    return point;
}

}  // namespace render
