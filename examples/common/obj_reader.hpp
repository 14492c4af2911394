// Reads the triangles of a Wavefront OBJ file.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace examples {

struct Mesh {
    std::vector<float> vertices;  // x, y, z of each vertex
    std::vector<int> corners;     // three vertex numbers of each triangle, from 0

    int vertexCount() const { return static_cast<int>(vertices.size() / 3); }
    int triangleCount() const { return static_cast<int>(corners.size() / 3); }
};

// A file that is no usable mesh; line is 0 where the fault has no single place.
struct BadMesh : std::runtime_error {
    BadMesh(int line_, const std::string& reason) : std::runtime_error(reason), line(line_) {}
    int line;
};

// Vertices and faces of the text; polygons become fans of triangles, all other keywords are skipped.
Mesh parseObj(std::string_view text);

// The same from a file.
Mesh readObj(const std::string& path);

}  // namespace examples
