// Tracks over a scan, as thin rods and small beads that are drawn as part of its mesh.
#include "kalman_bank/picture.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include "common/matrix.hpp"
#include "common/rasteriser.hpp"

namespace kalman {
namespace {

using Point = std::array<float, 3>;

constexpr examples::View view{-28, 14};
constexpr int tracks = 10;
constexpr Point clay{0.60f, 0.50f, 0.40f}, truthColour{0.02f, 0.10f, 0.45f}, measuredColour{0.85f, 0.60f, 0.02f},
    estimateColour{0.75f, 0.02f, 0.02f};

Point pointAt(const Doubles& values, int n, int size)
{
    const double* const p = &values[static_cast<std::size_t>(n * size)];
    return {static_cast<float>(p[0]), static_cast<float>(p[1]), static_cast<float>(p[2])};
}

struct Scene {
    std::vector<float> vertices, normals, colours;
    std::vector<int> corners;

    int add(const Point& centre, const Point& outward, float radius, const Point& colour)
    {
        for (std::size_t i = 0; i < 3; ++i) vertices.push_back(centre[i] + radius * outward[i]);
        normals.insert(normals.end(), outward.begin(), outward.end());
        colours.insert(colours.end(), colour.begin(), colour.end());
        return static_cast<int>(vertices.size() / 3) - 1;
    }

    void rod(const Point& from, const Point& to, float radius, const Point& colour)
    {
        Point along, outward;
        vormSub_v3_32f(to.data(), from.data(), along.data());
        const bool alongX = std::abs(along[0]) > std::max(std::abs(along[1]), std::abs(along[2]));
        const Point axis{alongX ? 0.0f : 1.0f, alongX ? 1.0f : 0.0f, 0};
        vormCrossProduct_v3_32f(along.data(), axis.data(), outward.data());
        vormNormalize_v3_32f(outward.data(), outward.data());
        if (!std::isfinite(outward[0])) return;  // no length
        constexpr int sides = 6;
        examples::Matrix onward;
        vormRotationAxis_v3m4_32f(along.data(), onward.data(), 2 * std::numbers::pi_v<float> / sides);
        const int first = static_cast<int>(vertices.size() / 3);
        for (int k = 0; k < sides; ++k) {
            add(from, outward, radius, colour);
            add(to, outward, radius, colour);
            vormAffineTransformNormal_m4v3_32f(onward.data(), outward.data(), outward.data());
        }
        for (int k = 0; k < 2 * sides; k += 2) {
            const int a = first + k, b = first + (k + 2) % (2 * sides);
            corners.insert(corners.end(), {a, b, a + 1, b, b + 1, a + 1});
        }
    }

    void bead(const Point& centre, float radius, const Point& colour)
    {
        int tips[6];
        for (int k = 0; k < 6; ++k) {
            Point outward{};
            outward[static_cast<std::size_t>(k / 2)] = k % 2 == 0 ? 1.0f : -1.0f;
            tips[k] = add(centre, outward, radius, colour);
        }
        for (const int x : {tips[0], tips[1]})
            for (const int y : {tips[2], tips[3]})
                for (const int z : {tips[4], tips[5]}) corners.insert(corners.end(), {x, y, z});
    }
};

// Flyers that stay on the side that the viewer sees, each as far from those chosen before as can be.
std::vector<int> chosen(const std::vector<float>& normals, const Paths& paths, const Flight& flight)
{
    const examples::Matrix turn = examples::turnOf(view);
    const auto faces = [&](int vertex) {
        Point turned;
        vormAffineTransformNormal_m4v3_32f(turn.data(), &normals[3 * static_cast<std::size_t>(vertex)], turned.data());
        return turned[2] > 0.2f;
    };
    std::vector<float> distances(static_cast<std::size_t>(flight.count()), std::numeric_limits<float>::max());
    for (const auto& vertices : paths.vertices)
        for (std::size_t n = 0; n < distances.size(); ++n)
            if (!faces(vertices[n])) distances[n] = 0;
    std::vector<int> result;
    const Doubles& middle = flight.truth[flight.truth.size() / 2];
    while (result.size() < tracks) {
        const auto farthest = std::max_element(distances.begin(), distances.end());
        if (*farthest == 0) break;
        const int best = static_cast<int>(farthest - distances.begin());
        result.push_back(best);
        const Point from = pointAt(middle, best, states);
        for (int n = 0; n < flight.count(); ++n) {
            Point way;
            vormSub_v3_32f(pointAt(middle, n, states).data(), from.data(), way.data());
            float length;
            vormLen_v3_32f(way.data(), &length);
            float& distance = distances[static_cast<std::size_t>(n)];
            distance = std::min(distance, length);
        }
    }
    return result;
}

}  // namespace

examples::Picture drawTracks(const std::vector<float>& vertices, const std::vector<float>& normals,
                             const std::vector<int>& corners, const Paths& paths, const Flight& flight,
                             const std::vector<Doubles>& estimates)
{
    Scene scene{vertices, normals, {}, corners};
    for (std::size_t n = 0; n < vertices.size(); n += 3)
        scene.colours.insert(scene.colours.end(), clay.begin(), clay.end());
    for (const int n : chosen(normals, paths, flight))
        for (std::size_t k = 0; k < estimates.size(); ++k) {
            scene.rod(pointAt(flight.truth[k], n, states), pointAt(flight.truth[k + 1], n, states), 0.007f,
                      truthColour);
            scene.bead(pointAt(flight.measurements[k], n, seen), 0.011f, measuredColour);
            if (k > 0)
                scene.rod(pointAt(estimates[k - 1], n, states), pointAt(estimates[k], n, states), 0.007f,
                          estimateColour);
        }
    return examples::drawMesh(scene.vertices, scene.normals, scene.corners, view, 720, 576, scene.colours);
}

}  // namespace kalman
