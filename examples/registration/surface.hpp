// The surface about each point of a scan, from the points near it.
#pragma once

#include <vector>

#include "common/stages.hpp"
#include "registration/nearest.hpp"
#include "registration/scan.hpp"

namespace registration {

struct Surface {
    explicit Surface(const Scan& scan, examples::Stage stage = examples::once);
    Surface(const Surface&) = delete;  // the tree refers to the points

    int count() const { return static_cast<int>(points.size() / 3); }

    Doubles points;
    Tree tree;
    Doubles covariances;         // of the points near each point: wide along the surface, narrow across it
    Doubles normals;             // on the side of the scanner
    std::vector<char> atBorder;  // the surface goes on for one side only
};

// The inverses of an array of 3x3 covariances.
Doubles inverted(const Doubles& covariances, examples::Stage stage = examples::once);

// The largest difference from 1 of det(C) det(inverse of C), to be computed in either way.
double worstDeterminant(const Doubles& covariances, const Doubles& inverses);

}  // namespace registration
