// A mesh that stands in the world.
#pragma once

#include <array>
#include <vector>

#include "common/matrix.hpp"
#include "common/obj_reader.hpp"
#include "common/stages.hpp"

namespace render {

// How a mesh is brought into the world, where y is upwards and the ground is y = 0.
struct Place {
    float x, z, turn;            // turn about the vertical axis, in radians
    std::array<float, 3> scale;  // before the turn
};

// Vertices are in coordinates of the mesh itself, a box of edge 2 about the origin; normals are in those of the world.
struct Body {
    std::vector<float> vertices, normals, colours;
    std::vector<int> corners;
    examples::Matrix world;

    int vertexCount() const { return static_cast<int>(vertices.size() / 3); }
};

using Colour = std::array<float, 3>;

// The mesh with its lowest vertex on the ground.
Body standing(const examples::Mesh& mesh, const Place& place, const Colour& colour,
              examples::Stage stage = examples::once);

// Normals through the inverse of the matrix, transposed; of length 1, or zero where they were.
std::vector<float> movedNormals(const std::vector<float>& normals, const examples::Matrix& matrix,
                                examples::Stage stage = examples::once);

// Gives that triangle of the body corners of its own, in another colour.
void mark(Body& body, int triangle, const Colour& colour);

}  // namespace render
