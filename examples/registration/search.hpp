// Where does a scan belong? Point-to-plane steps from very many starts at once.
#pragma once

#include <random>

#include "registration/surface.hpp"

namespace registration {

// The motion that brings some points of the moving scan nearest to the surface of the fixed one. Any rotation is
// possible; the centroids of the scans are taken to be not very far apart.
Motion searched(const Surface& fixed, const Surface& moving, std::mt19937_64& random, examples::Stage stage);

}  // namespace registration
