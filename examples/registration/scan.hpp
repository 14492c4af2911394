// What a scanner sees of a surface: points with errors.
#pragma once

#include <random>

#include "common/obj_reader.hpp"
#include "registration/motion.hpp"

namespace registration {

// Standard deviations of the errors of a point: in the direction of sight, and across it.
constexpr double alongSd = 0.004, acrossSd = 0.001;

struct Scan {
    Doubles points;  // three elements each
    Vec towards;     // from the surface to the scanner, far away
    int count() const { return static_cast<int>(points.size() / 3); }
};

// count points of the triangles that face the scanner; how many a triangle gets goes with its area as the scanner sees
// it. What is hidden by something in front of it is not left out.
Scan scanned(const std::vector<float>& vertices, const std::vector<int>& corners, const Vec& towards, int count,
             std::mt19937_64& random);

// The same in coordinates of its own.
Scan moved(const Scan& scan, const Motion& motion);

}  // namespace registration
