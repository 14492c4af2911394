// Flyers that follow paths, pushed about at random, and the measurements of where they are.
#pragma once

#include <random>
#include <vector>

#include "kalman_bank/paths.hpp"

namespace kalman {

// What the filters are given, and the truth they are judged by. Step k leads from time k to time k + 1.
struct Flight {
    std::vector<Doubles> truth;         // the states at each time
    std::vector<Doubles> controls;      // G a of each step
    std::vector<Doubles> measurements;  // at the end of each step
    Doubles measurementNoise;           // R of each flyer

    int steps() const { return static_cast<int>(controls.size()); }
    int count() const { return static_cast<int>(truth.front().size() / states); }
};

// Every flyer is steered back to its path, from where it really is. The filters know the acceleration that was asked
// for: then the error of an estimate does not depend on it, and the model of the filters holds exactly.
Flight simulated(const Paths& paths, std::mt19937_64& random);

}  // namespace kalman
