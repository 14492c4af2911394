// Tracks over a scan.
#pragma once

#include <vector>

#include "common/png_writer.hpp"
#include "kalman_bank/simulation.hpp"

namespace kalman {

// A scan, and some of the flyers over its visible side: where they really flew, where they were measured, and where
// the filters took them to be after each measurement.
examples::Picture drawTracks(const std::vector<float>& vertices, const std::vector<float>& normals,
                             const std::vector<int>& corners, const Paths& paths, const Flight& flight,
                             const std::vector<Doubles>& estimates);

}  // namespace kalman
