// Points drawn as discs, each across its normal, which drawMesh takes for a mesh.
#pragma once

#include <array>
#include <vector>

namespace examples {

struct Discs {
    std::vector<float> vertices, normals, colours;
    std::vector<int> corners;

    // The normal is a unit vector, the colour red, green and blue of linear light.
    void add(const std::array<float, 3>& centre, const std::array<float, 3>& normal, float radius,
             const std::array<float, 3>& colour);
};

}  // namespace examples
