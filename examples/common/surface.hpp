// The surface of a mesh: its place and its normals, taken with vorm.
#pragma once

#include <vector>

#include "common/obj_reader.hpp"
#include "common/stages.hpp"

namespace examples {

// The vertices moved to the origin and scaled to a box of edge 2; BadMesh where they have no extent.
std::vector<float> centredAndScaled(const std::vector<float>& vertices, Stage stage = once);

// The two edges of each triangle that leave its first corner.
struct Edges {
    std::vector<float> first, second;
};
Edges edgesOf(const std::vector<float>& vertices, const std::vector<int>& corners, Stage stage = once);

// A unit normal for each triangle, NaN where the triangle has no area.
std::vector<float> faceNormals(const Edges& edges, Stage stage = once);

// The mean direction of the faces that meet in each vertex, zero where there is none. size is that of
// the array of vertices.
struct VertexNormals {
    std::vector<float> normals;
    int skippedFaces = 0;  // those without area
};
VertexNormals vertexNormals(const std::vector<float>& faces, const std::vector<int>& corners, std::size_t size);

}  // namespace examples
