// Flyers that follow paths: steering, motion and measurement, each a call for all flyers.
#include "kalman_bank/simulation.hpp"

#include <vorm/vorm.h>

#include <cmath>

#include "common/stages.hpp"

using examples::expectOk;

namespace kalman {
namespace {

constexpr int element = sizeof(double), row3 = 3 * element, row6 = 6 * element, matrix3 = 3 * row3;

// How hard a flyer is steered: it oscillates about its path with 4 radians a second, critically damped.
constexpr double stiffness = 16, damping = 8;

// Range finders far away, one for each flyer: precise across the line of sight, less so along it.
constexpr double acrossSd = 0.01, alongSd = 0.04;

Doubles normalNumbers(int count, std::mt19937_64& random)
{
    std::normal_distribution<double> normal;
    Doubles numbers(static_cast<std::size_t>(count));
    for (double& number : numbers) number = normal(random);
    return numbers;
}

// d d^T of the lines of sight d.
Doubles projections(int count, std::mt19937_64& random)
{
    Doubles sights = normalNumbers(seen * count, random), result(9 * static_cast<std::size_t>(count));
    for (std::size_t n = 0; n < sights.size(); n += seen) {
        double* const d = &sights[n];
        const double length = std::hypot(d[0], d[1], d[2]);
        for (int i = 0; i < seen; ++i) d[i] /= length;
    }
    expectOk(vormMul_mata_64f(sights.data(), row3, element, element, 1, 3, sights.data(), row3, element, element, 1, 3,
                              result.data(), matrix3, row3, element, count),
             "vormMul_mata_64f");
    return result;
}

// (along - across) d d^T + across 1: what is `along` in the direction of d, and `across` at right angles to it.
Doubles spread(const Doubles& projections, double along, double across)
{
    const int count = static_cast<int>(projections.size() / 9);
    const double diagonal[9] = {across, 0, 0, 0, across, 0, 0, 0, across};
    Doubles result(projections.size());
    expectOk(vormMul_mac_64f(projections.data(), matrix3, row3, element, along - across, result.data(), matrix3, row3,
                             element, 3, 3, count),
             "vormMul_mac_64f");
    expectOk(vormAdd_mam_64f(result.data(), matrix3, row3, element, diagonal, row3, element, result.data(), matrix3,
                             row3, element, 3, 3, count),
             "vormAdd_mam_64f");
    return result;
}

// a = stiffness (planned p - p) + damping (planned v - v).
Doubles steering(const Doubles& planned, const Doubles& truth)
{
    const int count = static_cast<int>(truth.size() / states);
    Doubles off(truth.size()), result(truth.size() / 2);
    expectOk(vormSub_vava_64f(planned.data(), row6, element, truth.data(), row6, element, off.data(), row6, element,
                              states, count),
             "vormSub_vava_64f");
    expectOk(vormLComb_vava_64f(off.data(), row6, element, stiffness, off.data() + seen, row6, element, damping,
                                result.data(), row3, element, seen, count),
             "vormLComb_vava_64f");
    return result;
}

// G a.
Doubles effect(const Doubles& accelerations)
{
    static constexpr auto g = acceleration<double>();
    const int count = static_cast<int>(accelerations.size() / seen);
    Doubles result(2 * accelerations.size());
    expectOk(vormMul_mva_64f(g.data(), row3, element, seen, states, accelerations.data(), row3, element, seen,
                             result.data(), row6, element, count),
             "vormMul_mva_64f");
    return result;
}

// F x + G (a + w).
Doubles moved(const Doubles& truth, const Doubles& accelerations, std::mt19937_64& random)
{
    static constexpr auto f = transition<double>();
    const int count = static_cast<int>(truth.size() / states);
    const Doubles pushes = normalNumbers(seen * count, random);
    Doubles disturbed(accelerations.size()), result(truth.size());
    expectOk(vormSaxpy_vava_64f(pushes.data(), row3, element, disturbance, accelerations.data(), row3, element,
                                disturbed.data(), row3, element, seen, count),
             "vormSaxpy_vava_64f");
    const Doubles effects = effect(disturbed);
    expectOk(vormGaxpy_mva_64f(f.data(), row6, element, states, states, truth.data(), row6, element, states,
                               effects.data(), row6, element, states, result.data(), row6, element, count),
             "vormGaxpy_mva_64f");
    return result;
}

// p plus an error: normal numbers times a root of R have the covariance R.
Doubles measured(const Doubles& truth, const Doubles& noiseRoots, std::mt19937_64& random)
{
    const int count = static_cast<int>(truth.size() / states);
    const Doubles numbers = normalNumbers(seen * count, random);
    Doubles result(numbers.size());
    expectOk(vormMul_mava_64f(noiseRoots.data(), matrix3, row3, element, seen, seen, numbers.data(), row3, element,
                              seen, result.data(), row3, element, count),
             "vormMul_mava_64f");
    expectOk(vormAdd_vava_64f(result.data(), row3, element, truth.data(), row6, element, result.data(), row3, element,
                              seen, count),
             "vormAdd_vava_64f");
    return result;
}

}  // namespace

Flight simulated(const Paths& paths, std::mt19937_64& random)
{
    Flight flight;
    flight.truth.push_back(paths.planned.front());
    const Doubles along = projections(flight.count(), random);
    const Doubles noiseRoots = spread(along, alongSd, acrossSd);
    flight.measurementNoise = spread(along, alongSd * alongSd, acrossSd * acrossSd);
    for (std::size_t k = 1; k < paths.planned.size(); ++k) {
        const Doubles accelerations = steering(paths.planned[k - 1], flight.truth.back());
        flight.controls.push_back(effect(accelerations));
        flight.truth.push_back(moved(flight.truth.back(), accelerations, random));
        flight.measurements.push_back(measured(flight.truth.back(), noiseRoots, random));
    }
    return flight;
}

}  // namespace kalman
