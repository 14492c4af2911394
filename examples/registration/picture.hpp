// Scans as clouds of small discs.
#pragma once

#include "common/png_writer.hpp"
#include "registration/surface.hpp"

namespace registration {

// The fixed scan and the moving one, as it stands on the left and moved by the motion on the right.
examples::Picture drawBeforeAndAfter(const Surface& fixed, const Surface& moving, const Motion& motion);

}  // namespace registration
