// The vertices nearest to each vertex, and the quadric's terms at each of them.
#include "surface_fit/neighbourhoods.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "common/stages.hpp"

using examples::expectOk;
using examples::Mesh;
using examples::timed;

namespace surface_fit {
namespace {

// The vertices that share a triangle with each vertex.
std::vector<std::vector<int>> ringsOf(const Mesh& mesh)
{
    std::vector<std::vector<int>> rings(index(mesh.vertexCount()));
    for (std::size_t k = 0; k < mesh.corners.size(); k += 3)
        for (std::size_t c = 0; c < 3; ++c) {
            auto& ring = rings[index(mesh.corners[k + c])];
            ring.insert(ring.end(), {mesh.corners[k + (c + 1) % 3], mesh.corners[k + (c + 2) % 3]});
        }
    for (auto& ring : rings) {
        std::sort(ring.begin(), ring.end());
        ring.erase(std::unique(ring.begin(), ring.end()), ring.end());
    }
    return rings;
}

struct Neighbour {
    double distance, offset[3];
};

// The nearest of the vertices at most two edges away, from the vertex itself on.
std::vector<Neighbour> nearest(const Mesh& mesh, const std::vector<std::vector<int>>& rings, std::size_t v)
{
    std::vector<int> near{static_cast<int>(v)};
    for (const int first : rings[v]) {
        near.push_back(first);
        near.insert(near.end(), rings[index(first)].begin(), rings[index(first)].end());
    }
    std::sort(near.begin(), near.end());
    near.erase(std::unique(near.begin(), near.end()), near.end());
    std::vector<Neighbour> neighbours;
    for (const int n : near) {
        Neighbour& neighbour = neighbours.emplace_back();
        for (std::size_t i = 0; i < 3; ++i)
            neighbour.offset[i] = static_cast<double>(mesh.vertices[3 * index(n) + i]) - mesh.vertices[3 * v + i];
        neighbour.distance = std::hypot(neighbour.offset[0], neighbour.offset[1], neighbour.offset[2]);
    }
    std::sort(neighbours.begin(), neighbours.end(),
              [](const Neighbour& a, const Neighbour& b) { return a.distance < b.distance; });
    if (neighbours.size() > rows) neighbours.resize(rows);
    return neighbours;
}

}  // namespace

// A vertex without a normal has no neighbourhood.
Neighbourhoods neighbourhoodsOf(const Mesh& mesh, const std::vector<float>& normals)
{
    const auto rings = ringsOf(mesh);
    Neighbourhoods result{Doubles(rings.size() * rows * 3), Doubles(rings.size() * 9), Doubles(rings.size()),
                          std::vector<int>(rings.size())};
    for (std::size_t v = 0; v < rings.size(); ++v) {
        const float* const normal = &normals[3 * v];
        if (normal[0] == 0 && normal[1] == 0 && normal[2] == 0) continue;
        const bool alongX = std::abs(normal[0]) > 0.7f;
        const float axis[3] = {alongX ? 0.0f : 1.0f, alongX ? 1.0f : 0.0f, 0};
        float tangents[2][3];
        vormCrossProduct_v3_32f(normal, axis, tangents[0]);
        vormNormalize_v3_32f(tangents[0], tangents[0]);
        vormCrossProduct_v3_32f(normal, tangents[0], tangents[1]);
        double* axes = &result.frames[9 * v];
        for (const float* from : std::initializer_list<const float*>{tangents[0], tangents[1], normal})
            axes = std::copy_n(from, 3, axes);

        const auto neighbours = nearest(mesh, rings, v);
        const double radius = neighbours.back().distance;
        result.radii[v] = radius;
        result.sizes[v] = static_cast<int>(neighbours.size());
        if (radius == 0) continue;
        double* to = &result.offsets[v * rows * 3];
        for (const Neighbour& neighbour : neighbours)
            for (const double offset : neighbour.offset) *to++ = offset / radius;
    }
    return result;
}

Designs designsOf(const Neighbourhoods& around)
{
    constexpr int points = rows * row3, frame = 3 * row3;
    const int count = static_cast<int>(around.sizes.size());
    Doubles local(around.offsets.size());
    timed("into the frames    vormMul_mata_64f 24x3", count, {1, 0}, [&] {
        expectOk(vormMul_mata_64f(around.offsets.data(), points, row3, element, 3, rows, around.frames.data(), frame,
                                  row3, element, 3, 3, local.data(), points, row3, element, count),
                 "vormMul_mata_64f");
    });

    Designs result{Doubles(index(count) * rows * order), Doubles(index(count) * rows)};
    for (std::size_t v = 0; v < index(count); ++v)
        for (std::size_t r = v * rows; r < v * rows + index(around.sizes[v]); ++r) {
            const double px = local[3 * r], py = local[3 * r + 1];
            const double terms[order] = {px * px, px * py, py * py, px, py, 1};
            std::copy_n(terms, order, &result.x[order * r]);
            result.z[r] = local[3 * r + 2];
        }
    return result;
}

}  // namespace surface_fit
