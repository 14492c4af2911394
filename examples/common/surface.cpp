// The surface of a mesh: its place and its normals, taken with vorm.
#include "common/surface.hpp"

#include <algorithm>
#include <cmath>

namespace examples {
namespace {

constexpr int element = sizeof(float), vector3 = 3 * element;  // the strides of packed vectors of three

bool isFinite(const float* v) { return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]); }

}  // namespace

std::vector<float> centredAndScaled(const std::vector<float>& vertices, Stage stage)
{
    const int count = static_cast<int>(vertices.size() / 3);
    float low[3], high[3], centre[3], size[3];
    for (int i = 0; i < 3; ++i) low[i] = high[i] = vertices[static_cast<std::size_t>(i)];
    for (std::size_t n = 0; n < vertices.size(); n += 3) {
        vormMin_v3_32f(low, &vertices[n], low);
        vormMax_v3_32f(high, &vertices[n], high);
    }
    vormMulC_v3_32f(low, low, 0.5f);  // halved first: the sum of two large numbers may be no number
    vormMulC_v3_32f(high, high, 0.5f);
    vormAdd_v3_32f(low, high, centre);
    vormSub_v3_32f(high, low, size);
    const float scale = 1 / std::max({size[0], size[1], size[2]});
    if (!std::isfinite(scale)) throw BadMesh(0, "the vertices are too close together");

    std::vector<float> moved(vertices.size()), placed(vertices.size());
    stage("centre  vormSub_vav_32f", count, {1, 0}, [&] {
        expectOk(vormSub_vav_32f(vertices.data(), vector3, element, centre, element, moved.data(), vector3, element, 3,
                                 count),
                 "vormSub_vav_32f");
    });
    stage("scale   vormMul_vac_32f", count, {1, 0}, [&] {
        expectOk(vormMul_vac_32f(moved.data(), vector3, element, scale, placed.data(), vector3, element, 3, count),
                 "vormMul_vac_32f");
    });
    return placed;
}

// The sources are lists of pointers straight into the vertex array: nothing is gathered first.
Edges edgesOf(const std::vector<float>& vertices, const std::vector<int>& corners, Stage stage)
{
    const std::size_t triangles = corners.size() / 3;
    std::vector<const float*> corner[3];
    for (auto& list : corner) list.resize(triangles);
    Edges edges{std::vector<float>(3 * triangles), std::vector<float>(3 * triangles)};
    std::vector<float*> first(triangles), second(triangles);
    for (std::size_t k = 0; k < triangles; ++k) {
        for (std::size_t c = 0; c < 3; ++c) corner[c][k] = &vertices[3 * static_cast<std::size_t>(corners[3 * k + c])];
        first[k] = &edges.first[3 * k], second[k] = &edges.second[3 * k];
    }
    const int count = static_cast<int>(triangles);
    const auto subtract = [&](const auto& from, const auto& to, const auto& edge) {
        expectOk(vormSub_vava_32f_L(to.data(), 0, element, from.data(), 0, element, edge.data(), 0, element, 3, count),
                 "vormSub_vava_32f_L");
    };
    stage("edges   vormSub_vava_32f_L", 2 * count, {1, 0}, [&] {
        subtract(corner[0], corner[1], first);
        subtract(corner[0], corner[2], second);
    });
    return edges;
}

std::vector<float> faceNormals(const Edges& edges, Stage stage)
{
    std::vector<float> normals(edges.first.size());
    stage("normals vormCrossProduct_v3_32f", static_cast<int>(normals.size() / 3), {1}, [&] {
        for (std::size_t n = 0; n < normals.size(); n += 3) {
            vormCrossProduct_v3_32f(&edges.first[n], &edges.second[n], &normals[n]);
            vormNormalize_v3_32f(&normals[n], &normals[n]);
        }
    });
    return normals;
}

VertexNormals vertexNormals(const std::vector<float>& faces, const std::vector<int>& corners, std::size_t size)
{
    VertexNormals result{std::vector<float>(size)};
    std::vector<float>& normals = result.normals;
    for (std::size_t k = 0; k < faces.size(); k += 3) {
        if (!isFinite(&faces[k])) {
            ++result.skippedFaces;
            continue;
        }
        for (std::size_t c = 0; c < 3; ++c) {
            float* const normal = &normals[3 * static_cast<std::size_t>(corners[k + c])];
            vormAdd_v3_32f(normal, &faces[k], normal);
        }
    }
    for (std::size_t n = 0; n < size; n += 3) {
        float unit[3];
        vormNormalize_v3_32f(&normals[n], unit);
        for (std::size_t i = 0; i < 3; ++i) normals[n + i] = isFinite(unit) ? unit[i] : 0;
    }
    return result;
}

}  // namespace examples
