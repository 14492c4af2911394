// What has to be true of the road into the picture and back.
#pragma once

#include <span>

#include "common/canvas.hpp"
#include "render/body.hpp"
#include "render/camera.hpp"
#include "render/picking.hpp"

namespace render {

// Prints what it finds beside what is allowed, and remembers whether all was good.
class Checks {
public:
    void atMost(const char* what, double found, double limit);
    bool failed() const { return failed_; }

private:
    bool failed_ = false;
};

// The largest distance between a vertex and what the viewport gives back of it, in units of the error that a depth
// off by one epsilon makes at the far end of the scene.
double wayBack(const Camera& camera, const examples::Canvas& canvas, const Body& body);

// Edges moved as points are, and the normals of their triangles moved as normals, ought to be at right angles still:
// the largest scalar product in epsilons. Slivers, whose normals are mostly rounding, do not count.
double askew(const Body& body);

// How far a pixel lies outside of the triangle that it hit, as the triangle appears in the viewport, and how far from
// the point that was hit; the larger one, in samples.
double besides(const Hit& hit, const float* pixel, const Camera& camera, const examples::Canvas& canvas,
               const Body& body);

// Is what was hit at the middle of a sample what the z-buffer shows there?
bool shown(const Hit& hit, const float* pixel, const Camera& camera, const examples::Canvas& canvas,
           std::span<const Body> bodies);

}  // namespace render
