// Paths over the surface of a mesh.
#pragma once

#include <random>
#include <vector>

#include "common/obj_reader.hpp"
#include "kalman_bank/model.hpp"

namespace kalman {

struct Paths {
    std::vector<Doubles> planned;            // at each time, position and velocity of each flyer
    std::vector<std::vector<int>> vertices;  // at each time, the vertex that each flyer is leaving
};

// count flyers keep to the edges of the mesh for steps intervals, a little above it, at constant speed: each starts at
// a vertex and in every vertex goes on as straight as the edges allow.
Paths pathsOver(const examples::Mesh& mesh, const std::vector<float>& vertices, const std::vector<float>& normals,
                int count, int steps, std::mt19937_64& random);

}  // namespace kalman
