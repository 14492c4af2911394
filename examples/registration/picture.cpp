// Each point of a scan is drawn as a disc across its normal.
#include "registration/picture.hpp"

#include <array>

#include "common/discs.hpp"
#include "common/rasteriser.hpp"
#include "common/sheet.hpp"

namespace registration {
namespace {

using Single = std::array<float, 3>;

constexpr int width = 400, height = 420;
constexpr float radius = 0.028f;  // so that neighbouring discs overlap

void add(examples::Discs& discs, const Doubles& points, const Doubles& normals, const Single& colour)
{
    const auto single = [](const Doubles& from, std::size_t n) {
        return Single{static_cast<float>(from[n]), static_cast<float>(from[n + 1]), static_cast<float>(from[n + 2])};
    };
    for (std::size_t n = 0; n < points.size(); n += 3) discs.add(single(points, n), single(normals, n), radius, colour);
}

examples::Picture drawScans(const Surface& fixed, const Doubles& points, const Doubles& normals)
{
    examples::Discs scene;
    add(scene, fixed.points, fixed.normals, {0.62f, 0.46f, 0.28f});
    add(scene, points, normals, {0.10f, 0.28f, 0.60f});
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
