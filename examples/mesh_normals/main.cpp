// Reads a mesh, takes its normals with vorm and draws it: mesh_normals [input.obj [output.png]].
#include <cstdio>
#include <string>
#include <vector>

#include "common/png_writer.hpp"
#include "common/rasteriser.hpp"
#include "common/stages.hpp"
#include "common/surface.hpp"

using namespace examples;

namespace {

void run(const std::string& input, const std::string& output)
{
    printVersion();
    const Mesh mesh = readObj(input);
    std::printf("%s: %d vertices, %d triangles\n", input.c_str(), mesh.vertexCount(), mesh.triangleCount());
    std::printf("Nanoseconds per object (threads):\n");

    const std::vector<float> vertices = centredAndScaled(mesh.vertices, timed);
    const std::vector<float> faces = faceNormals(edgesOf(vertices, mesh.corners, timed), timed);
    const auto [normals, skipped] = vertexNormals(faces, mesh.corners, vertices.size());
    if (skipped > 0) std::printf("Triangles without area, left out: %d\n", skipped);

    const Picture picture = drawMesh(vertices, normals, mesh.corners, View{-28, 14}, 800, 640);
    writePng(picture, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), picture.width, picture.height);
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "bunny.png", run); }
