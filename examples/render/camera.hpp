// A camera that flies along a curve, and what it sees.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "common/canvas.hpp"
#include "common/matrix.hpp"
#include "common/stages.hpp"
#include "render/body.hpp"

namespace render {

using Point = std::array<float, 3>;

// Right-handed: x to the right, y upwards, looking along -z. Depths from 0 at zNear to 1 at zFar.
struct Camera {
    static constexpr float fovY = 0.6f, zNear = 1, zFar = 16;

    Point eye, at;
    examples::Matrix view, projection;

    Point towardsViewer() const;  // a unit vector
};

// Where the camera is and what it looks at.
struct Key {
    Point eye, at;
};

// At that part of the way from the first of the keys to the last one, through all of them.
Camera onPath(std::span<const Key> keys, float part, float aspect);

// The viewport is the canvas, in samples.
std::vector<float> projected(const Camera& camera, const examples::Canvas& canvas, const Body& body,
                             examples::Stage stage = examples::once);

// How many of the vertices are within the pyramid between zNear and zFar that the camera sees.
int inView(const Camera& camera, const Body& body);

// Draws all bodies and their shadows on the ground.
void drawBodies(const Camera& camera, std::span<const Body> bodies, examples::Canvas& canvas);

}  // namespace render
