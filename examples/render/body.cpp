// From the coordinates of a mesh to those of the world.
#include "render/body.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "common/surface.hpp"

using namespace examples;

namespace render {
namespace {

constexpr int vector3 = 3 * sizeof(float);

// y of the lowest vertex, once all of them have been through the matrix.
float lowest(const std::vector<float>& vertices, const Matrix& matrix, Stage stage)
{
    const int count = static_cast<int>(vertices.size() / 3);
    std::vector<float> moved(vertices.size());
    stage("vertices  vormAffineTransformCoord_m4v3a_32f", count, {1}, [&] {
        expectOk(
            vormAffineTransformCoord_m4v3a_32f(matrix.data(), vertices.data(), vector3, moved.data(), vector3, count),
            "vormAffineTransformCoord_m4v3a_32f");
    });
    float low = std::numeric_limits<float>::max();
    for (std::size_t n = 1; n < moved.size(); n += 3) low = std::min(low, moved[n]);
    return low;
}

}  // namespace

std::vector<float> movedNormals(const std::vector<float>& normals, const Matrix& matrix, Stage stage)
{
    const int count = static_cast<int>(normals.size() / 3);
    Matrix back;
    float determinant;
    expectOk(vormInvert_m4_32f(matrix.data(), &determinant, back.data()), "vormInvert_m4_32f");
    vormTranspose_m4_32f(back.data(), back.data());
    std::vector<float> moved(normals.size());
    stage("normals   vormAffineTransformNormal_m4v3a_32f", count, {1}, [&] {
        expectOk(
            vormAffineTransformNormal_m4v3a_32f(back.data(), normals.data(), vector3, moved.data(), vector3, count),
            "vormAffineTransformNormal_m4v3a_32f");
    });
    for (std::size_t n = 0; n < moved.size(); n += 3) {
        float unit[3];
        vormNormalize_v3_32f(&moved[n], unit);
        if (std::isfinite(unit[0])) std::copy_n(unit, 3, &moved[n]);
    }
    return moved;
}

Body standing(const Mesh& mesh, const Place& place, const Colour& colour, Stage stage)
{
    Body body{centredAndScaled(mesh.vertices), {}, {}, mesh.corners, {}};
    Matrix scaling, turn, translation;
    vormScaling_m4_32f(scaling.data(), place.scale[0], place.scale[1], place.scale[2]);
    vormRotationY_m4_32f(turn.data(), place.turn);
    const float low = lowest(body.vertices, product({scaling, turn}), stage);
    vormTranslation_m4_32f(translation.data(), place.x, -low, place.z);
    body.world = product({scaling, turn, translation});

    const auto faces = faceNormals(edgesOf(body.vertices, body.corners));
    body.normals = movedNormals(vertexNormals(faces, body.corners, body.vertices.size()).normals, body.world, stage);
    for (int n = 0; n < body.vertexCount(); ++n) body.colours.insert(body.colours.end(), colour.begin(), colour.end());
    return body;
}

void mark(Body& body, int triangle, const Colour& colour)
{
    for (int k = 3 * triangle; k < 3 * triangle + 3; ++k) {
        int& corner = body.corners[static_cast<std::size_t>(k)];
        const int own = body.vertexCount();
        for (auto* const values : {&body.vertices, &body.normals})
            for (int i = 0; i < 3; ++i) values->push_back((*values)[static_cast<std::size_t>(3 * corner + i)]);
        body.colours.insert(body.colours.end(), colour.begin(), colour.end());
        corner = own;
    }
}

}  // namespace render
