// Errors of solutions, and what they leave of the heights.
#include "surface_fit/comparison.hpp"

#include <vorm/vorm.h>

#include <cmath>
#include <limits>

#include "common/stages.hpp"

using examples::expectOk;

namespace surface_fit {

// Iterative refinement: s = s + (X^T X)^-1 X^T (z - X s). The factors have errors, so the correction is not exact
// either; but each round leaves only a small part of the error before it.
Doubles improved(const Designs& designs, const Factors& factors, const Doubles& quadrics)
{
    std::vector<long double> s(quadrics.begin(), quadrics.end());
    Doubles sides(s.size()), corrections(s.size());
    for (int round = 0; round < 5; ++round) {
        for (std::size_t v = 0; v < index(designs.count()); ++v) {
            long double side[order] = {};
            for (std::size_t r = v * rows; r < (v + 1) * rows; ++r) {
                const double* const x = &designs.x[order * r];
                long double rest = designs.z[r];
                for (std::size_t i = 0; i < order; ++i) rest -= x[i] * s[v * order + i];
                for (std::size_t i = 0; i < order; ++i) side[i] += x[i] * rest;
            }
            for (std::size_t i = 0; i < order; ++i) sides[v * order + i] = static_cast<double>(side[i]);
        }
        solve(factors, sides, corrections);
        for (std::size_t k = 0; k < s.size(); ++k) s[k] += corrections[k];
    }
    Doubles result;
    for (const long double x : s) result.push_back(static_cast<double>(x));
    return result;
}

Doubles distances(const Doubles& a, const Doubles& b, const std::vector<std::size_t>& vertices)
{
    Doubles result;
    for (const std::size_t v : vertices) {
        double difference = 0, size = 0;
        for (std::size_t i = v * order; i < (v + 1) * order; ++i)
            difference = std::hypot(difference, a[i] - b[i]), size = std::hypot(size, b[i]);
        const double epsilons = difference / size / std::numeric_limits<double>::epsilon();
        result.push_back(difference == 0 ? 0 : std::isnan(epsilons) ? INFINITY : epsilons);
    }
    return result;
}

double residual(const Designs& designs, const Doubles& quadrics, const std::vector<std::size_t>& vertices)
{
    Doubles heightsOf(designs.z.size()), rest(designs.z.size());
    expectOk(vormMul_mava_64f(designs.x.data(), design, row6, element, order, rows, quadrics.data(), row6, element,
                              order, heightsOf.data(), heights, element, designs.count()),
             "vormMul_mava_64f");
    expectOk(vormSub_vava_64f(heightsOf.data(), heights, element, designs.z.data(), heights, element, rest.data(),
                              heights, element, rows, designs.count()),
             "vormSub_vava_64f");
    double sum = 0;
    for (const std::size_t v : vertices)
        for (std::size_t r = v * rows; r < (v + 1) * rows; ++r) sum += rest[r] * rest[r];
    return std::sqrt(sum / static_cast<double>(vertices.size() * rows));
}

}  // namespace surface_fit
