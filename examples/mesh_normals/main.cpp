// Reads a mesh, takes its normals with vorm and draws it: mesh_normals [input.obj [output.png]].
#include <vorcore/vorcore.h>
#include <vorm/vorm.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/obj_reader.hpp"
#include "common/png_writer.hpp"
#include "common/rasteriser.hpp"

using namespace examples;

namespace {

constexpr int element = sizeof(float), vector3 = 3 * element;  // the strides of packed vectors of three

void expectOk(VormStatus status, const char* function)
{
    if (status != StatusOk) throw std::runtime_error(std::string(function) + ": status " + std::to_string(status));
}

// Does the work a number of times, and gives the objects a second of the fastest: other programs may
// be running.
template <class Work>
double millionsPerSecond(int objects, const Work& work)
{
    using Seconds = std::chrono::duration<double>;
    const auto now = [] { return std::chrono::steady_clock::now(); };
    Seconds fastest = Seconds::max(), all{};
    for (int rounds = 0; rounds < 20 || all < Seconds(0.05); ++rounds) {
        const auto start = now();
        work();
        const Seconds round = now() - start;
        fastest = std::min(fastest, round), all += round;
    }
    return objects / fastest.count() * 1e-6;
}

// Does the work, and tells how fast it went with each number of threads; 0 is the library's default.
template <class Work>
void timed(const char* what, int objects, std::initializer_list<int> threadNumbers, const Work& work)
{
    std::printf("  %-34s %6d objects", what, objects);
    for (const int threads : threadNumbers) {
        std::int32_t used = 0;
        vorSetNumThreads(threads);
        vorGetNumThreads(&used);
        if (threads == 1 || used > 1) std::printf(", %6.1f (%d)", millionsPerSecond(objects, work), used);
    }
    std::printf("\n");
    vorSetNumThreads(0);
}

bool isFinite(const float* v) { return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]); }

// The vertices moved to the origin and scaled to a box of edge 2.
std::vector<float> centredAndScaled(const std::vector<float>& vertices)
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

    std::vector<float> placed(vertices.size());
    timed("centre  vormSub_vav_32f", count, {1, 0}, [&] {
        expectOk(vormSub_vav_32f(vertices.data(), vector3, element, centre, element, placed.data(), vector3, element, 3,
                                 count),
                 "vormSub_vav_32f");
    });
    for (std::size_t n = 0; n < placed.size(); n += 3) vormMulC_v3_32f(&placed[n], &placed[n], scale);
    return placed;
}

// The two edges of each triangle that leave its first corner. The sources are lists of pointers
// straight into the vertex array: nothing is gathered first.
struct Edges {
    std::vector<float> first, second;
};
Edges edgesOf(const std::vector<float>& vertices, const std::vector<int>& corners)
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
    timed("edges   vormSub_vava_32f_L", 2 * count, {1, 0}, [&] {
        subtract(corner[0], corner[1], first);
        subtract(corner[0], corner[2], second);
    });
    return edges;
}

// A unit normal for each triangle, NaN where the triangle has no area.
std::vector<float> faceNormals(const Edges& edges)
{
    std::vector<float> normals(edges.first.size());
    timed("normals vormCrossProduct_v3_32f", static_cast<int>(normals.size() / 3), {1}, [&] {
        for (std::size_t n = 0; n < normals.size(); n += 3) {
            vormCrossProduct_v3_32f(&edges.first[n], &edges.second[n], &normals[n]);
            vormNormalize_v3_32f(&normals[n], &normals[n]);
        }
    });
    return normals;
}

// The mean direction of the faces that meet in each vertex, zero where there is none.
std::vector<float> vertexNormals(const std::vector<float>& faces, const std::vector<int>& corners, std::size_t size)
{
    std::vector<float> normals(size);
    int skipped = 0;
    for (std::size_t k = 0; k < faces.size(); k += 3) {
        if (!isFinite(&faces[k])) {
            ++skipped;
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
    if (skipped > 0) std::printf("Triangles without area, left out: %d\n", skipped);
    return normals;
}

void run(const std::string& input, const std::string& output)
{
    const VersionRecord& version = *vormGetLibVersion();
    std::printf("%s %s, built %s\n", version.libraryLabel, version.versionLabel, version.buildDateLabel);

    std::error_code ignored;
    if (std::filesystem::equivalent(input, output, ignored)) throw std::runtime_error(output + ": is the input");
    const Mesh mesh = readObj(input);
    std::printf("%s: %d vertices, %d triangles\n", input.c_str(), mesh.vertexCount(), mesh.triangleCount());
    std::printf("Million objects a second (threads):\n");

    const std::vector<float> vertices = centredAndScaled(mesh.vertices);
    const std::vector<float> faces = faceNormals(edgesOf(vertices, mesh.corners));
    const std::vector<float> normals = vertexNormals(faces, mesh.corners, vertices.size());

    const Picture picture = drawMesh(vertices, normals, mesh.corners, View{-28, 14}, 800, 640);
    writePng(picture, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), picture.width, picture.height);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc > 3) {
        std::fprintf(stderr, "usage: %s [input.obj [output.png]]\n", argv[0]);
        return 1;
    }
    const std::string input = argc > 1 ? argv[1] : VORM_EXAMPLE_DATA "/bunny.obj";
    const std::string output = argc > 2 ? argv[2] : "bunny.png";
    try {
        run(input, output);
        return 0;
    } catch (const BadMesh& bad) {
        const std::string place = bad.line > 0 ? ":" + std::to_string(bad.line) : "";
        std::fprintf(stderr, "%s%s: %s\n", input.c_str(), place.c_str(), bad.what());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
