// Which of many points are the nearest ones: a grid of cubes.
#pragma once

#include <vector>

namespace cloud_normals {

inline std::size_t index(int n) { return static_cast<std::size_t>(n); }

// The points are in a box of edge 2 about the origin, and have to outlive the grid.
class Grid {
public:
    explicit Grid(const std::vector<float>& points);

    // The numbers of the nearest points, the nearest first.
    std::vector<int> nearest(const float* p, int count) const;

private:
    struct Found {
        float square;
        int point;
        auto operator<=>(const Found&) const = default;
    };

    int along(float x) const;  // the number of a cube along an axis
    std::size_t cube(int x, int y, int z) const { return index((z * side_ + y) * side_ + x); }

    const std::vector<float>& points_;
    int side_;                            // cubes along each axis
    std::vector<int> starts_, contents_;  // the points of cube n begin at contents_[starts_[n]]
};

}  // namespace cloud_normals
