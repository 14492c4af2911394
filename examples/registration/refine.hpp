// The last steps of a registration, with every point weighted by what is known about it.
#pragma once

#include "registration/surface.hpp"

namespace registration {

struct Refined {
    Motion motion;
    int correspondences;  // of the last step
    int steps;
    double determinants;  // how far det(C) det(inverse of C) was from 1 at most
};

// Steps from a motion that is nearly right, until they are too small to matter.
Refined refined(const Surface& fixed, const Surface& moving, const Motion& start, examples::Stage stage);

}  // namespace registration
