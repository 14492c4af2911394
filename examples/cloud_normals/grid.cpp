// A grid of cubes: what is far away is not looked at.
#include "cloud_normals/grid.hpp"

#include <algorithm>
#include <cmath>

namespace cloud_normals {

// Points of a surface: as many of its cubes as the square of side_, and about ten points in each.
Grid::Grid(const std::vector<float>& points)
    : points_(points),
      side_(std::clamp(static_cast<int>(std::sqrt(static_cast<double>(points.size() / 3)) / 3), 1, 200)),
      starts_(index(side_ * side_ * side_) + 1),
      contents_(points.size() / 3)
{
    std::vector<std::size_t> cubes;
    for (std::size_t n = 0; n < points.size(); n += 3) {
        cubes.push_back(cube(along(points[n]), along(points[n + 1]), along(points[n + 2])));
        ++starts_[cubes.back() + 1];
    }
    for (std::size_t k = 1; k < starts_.size(); ++k) starts_[k] += starts_[k - 1];
    std::vector<int> next = starts_;
    for (std::size_t n = 0; n < cubes.size(); ++n) contents_[index(next[cubes[n]]++)] = static_cast<int>(n);
}

int Grid::along(float x) const
{
    return std::clamp(static_cast<int>((x + 1) / 2 * static_cast<float>(side_)), 0, side_ - 1);
}

// Shell after shell of cubes about that of the point. When those within reach have been seen, so has every point
// nearer than reach edges.
std::vector<int> Grid::nearest(const float* p, int count) const
{
    const int middle[3] = {along(p[0]), along(p[1]), along(p[2])};
    std::vector<Found> found;
    for (int reach = 0; reach < side_; ++reach) {
        int low[3], high[3];
        for (int i = 0; i < 3; ++i)
            low[i] = std::max(middle[i] - reach, 0), high[i] = std::min(middle[i] + reach, side_ - 1);
        for (int z = low[2]; z <= high[2]; ++z)
            for (int y = low[1]; y <= high[1]; ++y) {
                const bool inShell = std::abs(z - middle[2]) == reach || std::abs(y - middle[1]) == reach;
                for (int x = low[0]; x <= high[0]; ++x) {
                    if (!inShell && std::abs(x - middle[0]) != reach) continue;
                    for (int k = starts_[cube(x, y, z)]; k < starts_[cube(x, y, z) + 1]; ++k) {
                        const int point = contents_[index(k)];
                        const float* const q = &points_[3 * index(point)];
                        const float a = q[0] - p[0], b = q[1] - p[1], c = q[2] - p[2];
                        found.push_back({a * a + b * b + c * c, point});
                    }
                }
            }
        if (found.size() < index(count)) continue;
        std::partial_sort(found.begin(), found.begin() + count, found.end());
        const float seen = 2.0f / static_cast<float>(side_) * static_cast<float>(reach);
        if (found[index(count - 1)].square <= seen * seen) break;
    }
    std::vector<int> result;
    for (int k = 0; k < count; ++k) result.push_back(found[index(k)].point);
    return result;
}

}  // namespace cloud_normals
