// Objects of all layouts moved to all layouts, double precision.

#include "movement/move_bodies.hpp"

namespace vorm::movement {

VORM_MOVE_ALL_OBJECTS(double)

}  // namespace vorm::movement
