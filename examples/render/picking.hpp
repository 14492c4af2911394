// Picking: what is seen at a point of the viewport.
#pragma once

#include <span>
#include <vector>

#include "common/canvas.hpp"
#include "common/stages.hpp"
#include "render/body.hpp"
#include "render/camera.hpp"

namespace render {

// A ray runs from zNear (along = 0) to zFar (along = 1). It hits the triangle at its first corner plus f times
// the first edge plus g times the second.
struct Hit {
    int body = -1, triangle = -1;  // -1: it hits nothing
    float along = 1, f = 0, g = 0;
};

// The nearest hit of the ray through each pixel; a pixel is x, y and a third element that is not read.
std::vector<Hit> picked(std::span<const Body> bodies, const Camera& camera, const examples::Canvas& canvas,
                        const std::vector<float>& pixels, examples::Stage stage = examples::once);

// The point that was hit, in the coordinates of the mesh.
Point pointOf(const Hit& hit, const Body& body);

}  // namespace render
