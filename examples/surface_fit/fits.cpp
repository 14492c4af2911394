// The decompositions of all vertices, those that fail among them.
#include "surface_fit/fits.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>

#include "common/stages.hpp"

using examples::expectOk;
using examples::timed;

namespace surface_fit {
namespace {

// An array stops at its first object that fails, and on a team of threads every thread's part does: several stretches
// may be left undone. The first object of a stretch that is not done is one that failed; behind it the next call goes
// on. decompose(first, count) is the call, done(object) tells from marks in its results.
template <class Decompose, class Done>
void decomposeAll(int all, VormStatus failure, const char* function, const Decompose& decompose, const Done& done)
{
    const std::size_t count = index(all);
    for (std::size_t first = 0; first < count;) {
        std::size_t end = first;
        while (end < count && !done(end)) ++end;
        if (end > first) {
            const VormStatus status = decompose(first, static_cast<int>(end - first));
            if (status != failure) expectOk(status, function);
            while (first < end && done(first)) ++first;
        }
        ++first;
    }
}

// Least over largest magnitude.
template <class Pivot>
double ratio(const Pivot& pivot)
{
    double least = pivot(0), most = least;
    for (std::size_t k = 1; k < order; ++k) least = std::min(least, pivot(k)), most = std::max(most, pivot(k));
    return least > 0 ? least / most : 0;
}

template <class Ratio>
Doubles ratios(int count, const Ratio& ratioOf)
{
    Doubles result;
    for (std::size_t v = 0; v < index(count); ++v) result.push_back(ratioOf(v));
    return result;
}

}  // namespace

Systems systemsOf(const Designs& designs)
{
    const int count = designs.count();
    Systems systems{Doubles(index(count) * elements), Doubles(index(count) * order), 0};
    systems.nanoseconds += timed("normal equations   vormMul_tama_64f 24x6", count, {1, 0}, [&] {
        expectOk(vormMul_tama_64f(designs.x.data(), design, row6, element, order, rows, designs.x.data(), design, row6,
                                  element, order, rows, systems.matrices.data(), matrix, row6, element, count),
                 "vormMul_tama_64f");
    });
    systems.nanoseconds += timed("right-hand sides   vormMul_tava_64f 24x6", count, {1, 0}, [&] {
        expectOk(vormMul_tava_64f(designs.x.data(), design, row6, element, order, rows, designs.z.data(), heights,
                                  element, rows, systems.sides.data(), row6, element, count),
                 "vormMul_tava_64f");
    });
    return systems;
}

void solve(const Factors& factors, const Doubles& sides, Doubles& solutions)
{
    expectOk(vormLUBackSubst_mava_64f(factors.matrices.data(), matrix, row6, element, factors.pivots.data(),
                                      sides.data(), row6, element, solutions.data(), row6, element, order,
                                      static_cast<int>(sides.size()) / order),
             "vormLUBackSubst_mava_64f");
}

// Marks: row numbers are never negative, and a singular matrix leaves its last pivots as they were.
Fits byLU(const Systems& systems, Factors& factors)
{
    const int count = static_cast<int>(systems.sides.size()) / order;
    Fits fits{"LU", true, Doubles(systems.sides.size()), {}, systems.nanoseconds};
    factors = {Doubles(systems.matrices.size()), std::vector<int>(systems.sides.size())};
    fits.nanoseconds += timed("decomposition      vormLUDecomp_ma_64f 6x6", count, {1, 0}, [&] {
        std::fill(factors.pivots.begin(), factors.pivots.end(), -1);
        for (std::size_t k = order - 1; k < factors.matrices.size(); k += order) factors.matrices[k] = 0;
        decomposeAll(
            count, StatusSingular, "vormLUDecomp_ma_64f",
            [&](std::size_t first, int number) {
                return vormLUDecomp_ma_64f(&systems.matrices[first * elements], matrix, row6, element,
                                           &factors.pivots[first * order], &factors.matrices[first * elements], matrix,
                                           row6, element, order, number);
            },
            [&](std::size_t v) { return factors.pivots[v * order] >= 0 && factors.pivot(v, order - 1) != 0; });
    });
    fits.pivots = ratios(
        count, [&](std::size_t v) { return ratio([&](std::size_t k) { return std::abs(factors.pivot(v, k)); }); });
    fits.nanoseconds += timed("solution           vormLUBackSubst_mava_64f", count, {1, 0},
                              [&] { solve(factors, systems.sides, fits.quadrics); });
    return fits;
}

// The diagonal of the factor has reciprocals, so that 0 is a mark. Their squares compare with pivots of LU.
Fits byCholesky(const Systems& systems)
{
    const int count = static_cast<int>(systems.sides.size()) / order;
    Fits fits{"Cholesky", true, Doubles(systems.sides.size()), {}, systems.nanoseconds};
    Doubles factors(systems.matrices.size());
    const auto diagonal = [&](std::size_t v, std::size_t k) -> double& {
        return factors[v * elements + k * order + k];
    };
    fits.nanoseconds += timed("decomposition      vormCholeskyDecomp_ma_64f", count, {1, 0}, [&] {
        for (std::size_t v = 0; v < index(count); ++v) diagonal(v, order - 1) = 0;
        decomposeAll(
            count, StatusNotPositiveDefinite, "vormCholeskyDecomp_ma_64f",
            [&](std::size_t first, int number) {
                return vormCholeskyDecomp_ma_64f(&systems.matrices[first * elements], matrix, row6, element,
                                                 &factors[first * elements], matrix, row6, element, order, number);
            },
            [&](std::size_t v) { return diagonal(v, order - 1) != 0; });
    });
    fits.pivots = ratios(count, [&](std::size_t v) {
        const auto pivot = [&](std::size_t k) { return 1 / (diagonal(v, k) * diagonal(v, k)); };
        return diagonal(v, order - 1) == 0 ? 0 : ratio(pivot);
    });
    fits.nanoseconds += timed("solution           vormCholeskyBackSubst_mava_64f", count, {1, 0}, [&] {
        expectOk(vormCholeskyBackSubst_mava_64f(factors.data(), matrix, row6, element, systems.sides.data(), row6,
                                                element, fits.quadrics.data(), row6, element, order, count),
                 "vormCholeskyBackSubst_mava_64f");
    });
    return fits;
}

// A column that fails has a sum of squares below 2^-52, in R as in what is left there then. The squares on the
// diagonal compare with pivots of LU.
Fits byQR(const Designs& designs)
{
    const int count = designs.count();
    Fits fits{"QR", false, Doubles(index(count) * order), {}, 0};
    Doubles factors(designs.x.size()), buffer(rows * index(examples::threads()));
    constexpr std::size_t size = rows * order;
    const auto pivot = [&](std::size_t v, std::size_t k) {
        const double r = factors[v * size + k * order + k];
        return r * r >= 0x1p-52 ? r * r : 0;
    };
    const auto ratioOf = [&](std::size_t v) { return ratio([&](std::size_t k) { return pivot(v, k); }); };
    fits.nanoseconds += timed("decomposition      vormQRDecomp_ma_64f 24x6", count, {1, 0}, [&] {
        for (std::size_t k = 0; k < factors.size(); k += size) factors[k] = 0;
        decomposeAll(
            count, StatusDivisionByZero, "vormQRDecomp_ma_64f",
            [&](std::size_t first, int number) {
                return vormQRDecomp_ma_64f(&designs.x[first * size], design, row6, element, buffer.data(),
                                           &factors[first * size], design, row6, element, order, rows, number);
            },
            [&](std::size_t v) { return ratioOf(v) > 0; });
    });
    fits.pivots = ratios(count, ratioOf);
    fits.nanoseconds += timed("solution           vormQRBackSubst_mava_64f", count, {1, 0}, [&] {
        expectOk(vormQRBackSubst_mava_64f(factors.data(), design, row6, element, buffer.data(), designs.z.data(),
                                          heights, element, fits.quadrics.data(), row6, element, order, rows, count),
                 "vormQRBackSubst_mava_64f");
    });
    return fits;
}

}  // namespace surface_fit
