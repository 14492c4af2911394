// What is near each vertex of a mesh, as arrays of objects of one size.
#pragma once

#include <vector>

#include "common/obj_reader.hpp"

namespace surface_fit {

using Doubles = std::vector<double>;

constexpr int order = 6, rows = 24;  // rows: most neighbours that take part, the vertex itself among them
constexpr int element = sizeof(double), row3 = 3 * element, row6 = order * element;
constexpr int design = rows * row6, matrix = order * row6, heights = rows * element;  // from vertex to vertex
constexpr std::size_t elements = order * order;

inline std::size_t index(int n) { return static_cast<std::size_t>(n); }

// Rows behind the last neighbour are zero, which changes no fit.
struct Neighbourhoods {
    Doubles offsets;  // of the neighbours from the vertex, in units of the radius; rows x 3 for each vertex
    Doubles frames;   // tangent, tangent, normal; 3 x 3 for each vertex
    Doubles radii;
    std::vector<int> sizes;
};
Neighbourhoods neighbourhoodsOf(const examples::Mesh& mesh, const std::vector<float>& normals);

// The rows of X, and z, of every vertex.
struct Designs {
    Doubles x, z;  // rows x 6 and rows elements

    int count() const { return static_cast<int>(z.size()) / rows; }
};
Designs designsOf(const Neighbourhoods& around);

}  // namespace surface_fit
