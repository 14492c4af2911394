// What is near each point of a cloud: how it is spread.
#pragma once

#include <vector>

#include "common/stages.hpp"

namespace cloud_normals {

constexpr int near = 13;  // points of a neighbourhood, the point itself among them

struct Neighbourhoods {
    std::vector<float> covariances;  // packed, 3x3 for each point
    std::vector<float> radii;        // the distance of the farthest neighbour
};

// The points are in a box of edge 2 about the origin; there are at least near of them.
Neighbourhoods neighbourhoodsOf(const std::vector<float>& points, examples::Stage stage);

}  // namespace cloud_normals
