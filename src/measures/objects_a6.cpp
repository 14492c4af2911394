// Measures of arrays and long sums, single precision.

#include "measures/objects_bodies.hpp"

namespace vorm::measures {

MEASURES_ALL(float)

}  // namespace vorm::measures
