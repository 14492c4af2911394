// A disc is a fan of triangles in the plane of two tangents.
#include "common/discs.hpp"

#include <vorm/vorm.h>

#include <cmath>
#include <numbers>

namespace examples {

void Discs::add(const std::array<float, 3>& centre, const std::array<float, 3>& normal, float radius,
                const std::array<float, 3>& colour)
{
    constexpr int sides = 6;
    const bool alongX = std::abs(normal[0]) > 0.7f;
    const float axis[3] = {alongX ? 0.0f : 1.0f, alongX ? 1.0f : 0.0f, 0};
    float side[3], up[3];
    vormCrossProduct_v3_32f(axis, normal.data(), up);
    vormNormalize_v3_32f(up, up);
    vormCrossProduct_v3_32f(up, normal.data(), side);
    const int first = static_cast<int>(vertices.size() / 3);
    for (int k = 0; k < sides; ++k) {
        const float angle = 2 * std::numbers::pi_v<float> * static_cast<float>(k) / sides;
        const float c = std::cos(angle), s = std::sin(angle);
        for (std::size_t i = 0; i < 3; ++i) vertices.push_back(centre[i] + radius * (c * side[i] + s * up[i]));
        normals.insert(normals.end(), normal.begin(), normal.end());
        colours.insert(colours.end(), colour.begin(), colour.end());
        if (k > 1) corners.insert(corners.end(), {first, first + k - 1, first + k});
    }
}

}  // namespace examples
