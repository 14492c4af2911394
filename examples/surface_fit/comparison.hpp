// How good the fits of the methods are.
#pragma once

#include "surface_fit/fits.hpp"

namespace surface_fit {

// Solutions with hardly any error: those given, improved with residuals of long double.
Doubles improved(const Designs& designs, const Factors& factors, const Doubles& quadrics);

// |a - b| / |b| of each of the given vertices, in epsilons.
Doubles distances(const Doubles& a, const Doubles& b, const std::vector<std::size_t>& vertices);

// The root mean square of all |X s - z| of the given vertices, in units of their radii.
double residual(const Designs& designs, const Doubles& quadrics, const std::vector<std::size_t>& vertices);

}  // namespace surface_fit
