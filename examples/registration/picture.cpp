// Each point of a scan is drawn as a disc across its normal.
#include "registration/picture.hpp"

#include <cmath>
#include <numbers>

#include "common/rasteriser.hpp"
#include "common/sheet.hpp"

namespace registration {
namespace {

using Colour = std::array<float, 3>;

constexpr int width = 400, height = 420, sides = 6;
constexpr double radius = 0.028;  // so that neighbouring discs overlap

struct Scene {
    std::vector<float> vertices, normals, colours;
    std::vector<int> corners;

    void add(const Doubles& points, const Doubles& directions, const Colour& colour)
    {
        for (std::size_t n = 0; n < points.size(); n += 3) disc(&points[n], &directions[n], colour);
    }

    void disc(const double* centre, const double* normal, const Colour& colour)
    {
        const bool alongX = std::abs(normal[0]) > 0.7;
        const double axis[3] = {alongX ? 0.0 : 1.0, alongX ? 1.0 : 0.0, 0}, part = dot(axis, normal);
        double side[3];
        for (std::size_t i = 0; i < 3; ++i) side[i] = axis[i] - part * normal[i];
        const double length = std::sqrt(dot(side, side));
        for (double& x : side) x /= length;
        const double up[3] = {normal[1] * side[2] - normal[2] * side[1], normal[2] * side[0] - normal[0] * side[2],
                              normal[0] * side[1] - normal[1] * side[0]};
        const int first = static_cast<int>(vertices.size() / 3);
        for (int k = 0; k < sides; ++k) {
            const double angle = 2 * std::numbers::pi * k / sides, c = std::cos(angle), s = std::sin(angle);
            for (std::size_t i = 0; i < 3; ++i) {
                vertices.push_back(static_cast<float>(centre[i] + radius * (c * side[i] + s * up[i])));
                normals.push_back(static_cast<float>(normal[i]));
            }
            colours.insert(colours.end(), colour.begin(), colour.end());
            if (k > 1) corners.insert(corners.end(), {first, first + k - 1, first + k});
        }
    }
};

examples::Picture drawScans(const Surface& fixed, const Doubles& points, const Doubles& normals)
{
    Scene scene;
    scene.add(fixed.points, fixed.normals, {0.62f, 0.46f, 0.28f});
    scene.add(points, normals, {0.10f, 0.28f, 0.60f});
    return examples::drawMesh(scene.vertices, scene.normals, scene.corners, examples::View{20, 14}, width, height,
                              scene.colours);
}

}  // namespace

examples::Picture drawBeforeAndAfter(const Surface& fixed, const Surface& moving, const Motion& motion)
{
    examples::Picture both = examples::blackSheet(2 * width, height);
    examples::paste(drawScans(fixed, moving.points, moving.normals), both, 0, 0);
    examples::paste(drawScans(fixed, moved(moving.points, motion), turned(moving.normals, motion)), both, width, 0);
    return both;
}

}  // namespace registration
