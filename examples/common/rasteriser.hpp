// Draws a triangle mesh with smooth shading on a plain ground.
#pragma once

#include <span>

#include "common/matrix.hpp"
#include "common/png_writer.hpp"

namespace examples {

// The mesh is turned about the vertical axis, then tilted towards the viewer; angles in degrees.
struct View {
    float turn = 0, tilt = 0;
};

// Into the frame of the viewer, who looks along -z.
Matrix turnOf(View view);

// The mesh lies about the origin with a radius of about 1, y upwards; normals has one unit vector per
// vertex (zero where there is none), colours nothing or red, green and blue of linear light for each vertex.
// The picture is fitted to the mesh.
Picture drawMesh(std::span<const float> vertices, std::span<const float> normals, std::span<const int> corners,
                 View view, int width, int height, std::span<const float> colours = {});

}  // namespace examples
