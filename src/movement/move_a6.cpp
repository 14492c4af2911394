// Objects of all layouts moved to all layouts, single precision.

#include "movement/move_bodies.hpp"

namespace vorm::movement {

VORM_MOVE_ALL_OBJECTS(float)

}  // namespace vorm::movement
