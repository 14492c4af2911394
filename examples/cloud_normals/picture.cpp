// Discs, seen from the side to which their normals point, and bars.
#include "cloud_normals/picture.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "common/discs.hpp"
#include "common/rasteriser.hpp"
#include "common/sheet.hpp"

namespace cloud_normals {
namespace {

using examples::Picture;
using Colour = std::array<float, 3>;

constexpr int width = 400, height = 400, barsHeight = 110;
constexpr examples::View view{-28, 14};
constexpr Colour clay{0.60f, 0.50f, 0.40f}, unknown{0.10f, 0.28f, 0.60f};

// From pale to red.
Colour colourOf(int bin)
{
    const float t = std::sqrt(static_cast<float>(bin) / (bins - 1));
    return {0.62f + 0.10f * t, 0.60f - 0.55f * t, 0.56f - 0.53f * t};
}

// Nothing tells on which side of the cloud the surface is solid; what is seen faces the viewer.
std::array<float, 3> towardsViewer(const float* normal)
{
    const examples::Matrix turn = examples::turnOf(view);
    const float facing = normal[0] * turn[2] + normal[1] * turn[6] + normal[2] * turn[10];
    const float side = facing < 0 ? -1.0f : 1.0f;
    return {side * normal[0], side * normal[1], side * normal[2]};
}

template <class ColourOf>
Picture drawDiscs(const std::vector<float>& points, const std::vector<float>& normals, const std::vector<float>& radii,
                  const ColourOf& colour)
{
    examples::Discs discs;
    for (std::size_t n = 0; n < radii.size(); ++n) {
        const float *const p = &points[3 * n], *const normal = &normals[3 * n];
        if (normal[0] == 0 && normal[1] == 0 && normal[2] == 0) continue;
        discs.add({p[0], p[1], p[2]}, towardsViewer(normal), 0.55f * radii[n], colour(n));
    }
    return examples::drawMesh(discs.vertices, discs.normals, discs.corners, view, width, height, discs.colours);
}

void fill(Picture& picture, int left, int right, int top, int bottom, const Colour& colour)
{
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            for (std::size_t i = 0; i < 3; ++i)
                picture.rgb[static_cast<std::size_t>(3 * (y * picture.width + x)) + i] =
                    static_cast<std::uint8_t>(std::lround(255 * std::pow(colour[i], 1 / 2.2f)));
}

Picture drawBars(const std::vector<int>& histogram)
{
    constexpr int margin = 20, step = (2 * width - 2 * margin) / bins, gap = 3;
    Picture picture = examples::blackSheet(2 * width, barsHeight);
    fill(picture, 0, 2 * width, 0, barsHeight, {0.27f, 0.27f, 0.28f});
    const int most = std::max(1, *std::max_element(histogram.begin(), histogram.end()));
    for (int bin = 0; bin < bins; ++bin) {
        const int bottom = barsHeight - margin / 2, left = margin + bin * step;
        const int number = histogram[static_cast<std::size_t>(bin)];
        const int tall = static_cast<int>(static_cast<double>(barsHeight - margin) * number / most);
        fill(picture, left + gap, left + step - gap, bottom - std::max(tall, number > 0 ? 2 : 0), bottom,
             colourOf(bin));
        fill(picture, left, left + step, bottom, bottom + 1, {0.05f, 0.05f, 0.05f});
    }
    return picture;
}

}  // namespace

int binOf(float degrees) { return std::min(static_cast<int>(degrees / binWidth), bins - 1); }

examples::Picture drawCloud(const std::vector<float>& points, const std::vector<float>& normals,
                            const std::vector<float>& radii, const std::vector<float>& errors,
                            const std::vector<int>& histogram)
{
    Picture sheet = examples::blackSheet(2 * width, height + barsHeight);
    examples::paste(drawDiscs(points, normals, radii, [](std::size_t) { return clay; }), sheet, 0, 0);
    const auto byError = [&](std::size_t n) { return std::isnan(errors[n]) ? unknown : colourOf(binOf(errors[n])); };
    examples::paste(drawDiscs(points, normals, radii, byError), sheet, width, 0);
    examples::paste(drawBars(histogram), sheet, 0, height);
    return sheet;
}

}  // namespace cloud_normals
