// Normalised squares of errors, and the bounds of their means.
#include "kalman_bank/statistics.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numeric>

#include "common/stages.hpp"

using examples::expectOk;

namespace kalman {

double meanSquare(const Doubles& errors, const Doubles& covariances, int order)
{
    const int count = static_cast<int>(errors.size()) / order;
    const int element = sizeof(double), row = order * element, matrix = order * row;
    std::vector<int> pivots(errors.size());
    Doubles factors(covariances.size()), solutions(errors.size()), squares(static_cast<std::size_t>(count));
    expectOk(vormLUDecomp_ma_64f(covariances.data(), matrix, row, element, pivots.data(), factors.data(), matrix, row,
                                 element, order, count),
             "vormLUDecomp_ma_64f");
    expectOk(vormLUBackSubst_mava_64f(factors.data(), matrix, row, element, pivots.data(), errors.data(), row, element,
                                      solutions.data(), row, element, order, count),
             "vormLUBackSubst_mava_64f");
    // Scalar products of two arrays of vectors: the first one as matrices of one row.
    expectOk(vormMul_mava_64f(errors.data(), row, row, element, order, 1, solutions.data(), row, element, order,
                              squares.data(), element, element, count),
             "vormMul_mava_64f");
    return std::accumulate(squares.begin(), squares.end(), 0.0) / count;
}

// Wilson and Hilferty: the cube root of a chi-square number over its d degrees of freedom is nearly normal, with
// mean 1 - 2 / (9 d) and variance 2 / (9 d).
Interval chiSquareMean(int order, double count, double exceptions)
{
    double z = 0;  // exceeded in either direction by that share of normal numbers
    for (double step = 8; step > 1e-12; step /= 2)
        if (std::erfc((z + step) / std::sqrt(2.0)) > exceptions) z += step;
    const double variance = 2 / (9 * order * count), spread = z * std::sqrt(variance);
    return {order * std::pow(1 - variance - spread, 3), order * std::pow(1 - variance + spread, 3)};
}

// Innovations of a good filter are independent in time too, so that the mean of all steps has bounds of its
// own. Errors of successive steps hang together; each step has bounds then, so wide that all of them hold at once.
bool consistent(const char* type, const Squares& squares, int filters)
{
    constexpr double falseAlarms = 0.001;
    const auto steps = static_cast<double>(squares.errors.size());
    const double nis = std::accumulate(squares.innovations.begin(), squares.innovations.end(), 0.0) / steps;
    const auto [least, most] = std::minmax_element(squares.errors.begin(), squares.errors.end());
    const Interval all = chiSquareMean(seen, filters * steps, falseAlarms / 2);
    const Interval each = chiSquareMean(states, filters, falseAlarms / 2 / steps);
    const bool good = all.contains(nis) && std::all_of(squares.errors.begin(), squares.errors.end(),
                                                       [&](double mean) { return each.contains(mean); });
    std::printf("  %s  NIS of all steps    %.4f, within %.4f to %.4f\n", type, nis, all.low, all.high);
    std::printf("       NEES of each step   %.3f to %.3f, within %.3f to %.3f\n", *least, *most, each.low, each.high);
    return good;
}

void printErrors(const char* type, const Doubles& errors, const Doubles& covariances)
{
    const double filters = static_cast<double>(errors.size()) / states;
    double found[2] = {}, stated[2] = {};  // of positions, of velocities
    for (std::size_t n = 0; n < errors.size(); ++n) {
        const std::size_t i = n % states, half = i / seen;
        found[half] += errors[n] * errors[n] / filters;
        stated[half] += covariances[n * states + i] / filters;
    }
    std::printf("  %s  position %.5f (stated %.5f), velocity %.5f (stated %.5f)\n", type, std::sqrt(found[0]),
                std::sqrt(stated[0]), std::sqrt(found[1]), std::sqrt(stated[1]));
}

}  // namespace kalman
