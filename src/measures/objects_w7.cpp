// Measures of arrays and long sums, double precision.

#include "measures/objects_bodies.hpp"

namespace vorm::measures {

MEASURES_ALL(double)

}  // namespace vorm::measures
