// Point-to-plane steps: an array of starts, each with a small normal equation in every step.
//
// A step turns by w and shifts by t, both small: p goes to p + w x p + t, and its distance from the plane through q
// with the normal n to n.(p - q) + (p x n).w + n.t. So each correspondence is a row (p x n, n) of a matrix J and a
// number n.(q - p) of a right-hand side d, and the least squares solution (w, t) is that of J^T J (w, t) = J^T d.
#include "registration/search.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>

using examples::expectOk;
using examples::Stage;

namespace registration {
namespace {

// A sample is compared with the surface only where it is nearer than reach, and only where both look to about the same
// side. What is farther away counts as if it were at reach.
constexpr double sameSide = 0.5;

// Points of the moving scan, with a fourth element of 1 for the shift, and their normals.
struct Samples {
    Doubles points, normals;
    int count() const { return static_cast<int>(normals.size() / 3); }
};

Samples samplesOf(const Surface& surface, int count, std::mt19937_64& random)
{
    std::vector<int> chosen(index(surface.count()));
    std::iota(chosen.begin(), chosen.end(), 0);
    std::shuffle(chosen.begin(), chosen.end(), random);
    Samples samples;
    for (int k = 0; k < std::min(count, surface.count()); ++k) {
        const double *const p = &surface.points[3 * index(chosen[index(k)])],
                            *const n = &surface.normals[3 * index(chosen[index(k)])];
        samples.points.insert(samples.points.end(), {p[0], p[1], p[2], 1});
        samples.normals.insert(samples.normals.end(), n, n + 3);
    }
    return samples;
}

// What the samples look like after each motion: row k of matrix n is sample k moved by motion n.
Doubles movedByEach(const Doubles& points, int width, const Doubles& motions, Stage stage)
{
    const int starts = static_cast<int>(motions.size() / 16), count = static_cast<int>(points.size()) / width;
    Doubles result(index(starts) * index(count) * 3);
    const std::string what = "samples moved  vormMul_mta_64f " + std::to_string(count) + "x4";
    stage(what.c_str(), starts, {1}, [&] {
        expectOk(vormMul_mta_64f(points.data(), width * element, element, width, count, motions.data(), matrix4, row4,
                                 element, width, 3, result.data(), count * row3, row3, element, starts),
                 "vormMul_mta_64f");
    });
    return result;
}

// The rows of all starts, J and d, and how well each of them fits. A row of zeros changes nothing.
struct Rows {
    Doubles j, d, misfits;
};

Rows rowsOf(const Surface& fixed, const Doubles& points, const Doubles& normals, int count, double reach)
{
    const std::size_t all = points.size() / 3, starts = all / index(count);
    Rows rows{Doubles(6 * all), Doubles(all), Doubles(starts)};
    for (std::size_t r = 0; r < all; ++r) {
        const double* const p = &points[3 * r];
        double& misfit = rows.misfits[r / index(count)];
        const int nearest = fixed.tree.nearest(p, reach);
        const double *const q = &fixed.points[3 * index(std::max(nearest, 0))],
                            *const n = &fixed.normals[3 * index(std::max(nearest, 0))];
        if (nearest < 0 || dot(n, &normals[3 * r]) < sameSide || fixed.atBorder[index(nearest)]) {
            misfit += reach * reach;
            continue;
        }
        const double row[6] = {
            p[1] * n[2] - p[2] * n[1], p[2] * n[0] - p[0] * n[2], p[0] * n[1] - p[1] * n[0], n[0], n[1], n[2]};
        std::copy_n(row, 6, &rows.j[6 * r]);
        rows.d[r] = dot(n, q) - dot(n, p);
        misfit += rows.d[r] * rows.d[r];
    }
    return rows;
}

// (w, t) of every start. A little is added to the diagonal of J^T J: a start with few correspondences has no unique
// solution, and takes a small step then.
Doubles solved(const Rows& rows, int count, Stage stage)
{
    const int starts = static_cast<int>(rows.misfits.size());
    Doubles systems(36 * index(starts)), damped(systems.size()), factors(systems.size()), sides(6 * index(starts)),
        steps(sides.size()), damping(36);
    for (std::size_t i = 0; i < 6; ++i) damping[7 * i] = 1e-3 * count;

    const std::string shape = std::to_string(count) + "x6";
    stage(("J^T J          vormMul_tama_64f " + shape).c_str(), starts, {1, 0}, [&] {
        expectOk(vormMul_tama_64f(rows.j.data(), count * row6, row6, element, 6, count, rows.j.data(), count * row6,
                                  row6, element, 6, count, systems.data(), matrix6, row6, element, starts),
                 "vormMul_tama_64f");
    });
    stage(("J^T d          vormMul_tava_64f " + shape).c_str(), starts, {1}, [&] {
        expectOk(vormMul_tava_64f(rows.j.data(), count * row6, row6, element, 6, count, rows.d.data(), count * element,
                                  element, count, sides.data(), row6, element, starts),
                 "vormMul_tava_64f");
    });
    expectOk(vormAdd_mam_64f(systems.data(), matrix6, row6, element, damping.data(), row6, element, damped.data(),
                             matrix6, row6, element, 6, 6, starts),
             "vormAdd_mam_64f");
    stage("decomposition  vormCholeskyDecomp_ma_64f", starts, {1}, [&] {
        expectOk(vormCholeskyDecomp_ma_64f(damped.data(), matrix6, row6, element, factors.data(), matrix6, row6,
                                           element, 6, starts),
                 "vormCholeskyDecomp_ma_64f");
    });
    stage("solution       vormCholeskyBackSubst_mava_64f", starts, {1}, [&] {
        expectOk(vormCholeskyBackSubst_mava_64f(factors.data(), matrix6, row6, element, sides.data(), row6, element,
                                                steps.data(), row6, element, 6, starts),
                 "vormCholeskyBackSubst_mava_64f");
    });
    return steps;
}

// One step of all starts. Their misfits are those before it.
Doubles step(Doubles& motions, const Surface& fixed, const Samples& samples, double reach, Stage stage)
{
    const Doubles points = movedByEach(samples.points, 4, motions, stage);
    const Doubles normals = movedByEach(samples.normals, 3, motions, examples::once);
    const Rows rows = rowsOf(fixed, points, normals, samples.count(), reach);
    motions = followedBy(motions, solved(rows, samples.count(), stage));
    return rows.misfits;
}

// The best of the motions, the very best first. Of those that came to the same place only one is taken: otherwise a
// place that attracts many starts would leave no room for the others.
Doubles best(const Doubles& motions, const Doubles& misfits, int count)
{
    constexpr Difference samePlace{5, 0.05};
    std::vector<std::size_t> order(misfits.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return misfits[a] < misfits[b]; });
    std::vector<Motion> chosen;
    for (const std::size_t k : order) {
        Motion motion;
        std::copy_n(&motions[16 * k], 16, motion.data());
        const bool known = std::any_of(chosen.begin(), chosen.end(), [&](const Motion& other) {
            const Difference from = difference(motion, other);
            return from.degrees < samePlace.degrees && from.distance < samePlace.distance;
        });
        if (!known) chosen.push_back(motion);
        if (chosen.size() == index(count)) break;
    }
    Doubles result;
    for (const Motion& motion : chosen) result.insert(result.end(), motion.begin(), motion.end());
    return result;
}

Vec centroid(const Surface& surface)
{
    Vec sum{};
    for (std::size_t k = 0; k < surface.points.size(); ++k) sum[k % 3] += surface.points[k] / surface.count();
    return sum;
}

// Any rotation, and the shift that brings one centroid onto the other.
Doubles starts(int count, const Vec& from, const Vec& to, std::mt19937_64& random)
{
    Doubles result;
    for (int n = 0; n < count; ++n) {
        Motion motion = randomTurn(random);
        for (std::size_t i = 0; i < 3; ++i) motion[4 * i + 3] = to[i] - dot(&motion[4 * i], from.data());
        result.insert(result.end(), motion.begin(), motion.end());
    }
    return result;
}

}  // namespace

Motion searched(const Surface& fixed, const Surface& moving, std::mt19937_64& random, Stage stage)
{
    // Many starts and few samples first; a step then reaches less far, and fewer are left.
    struct Round {
        int starts, samples;
        double reach;
    };
    constexpr Round rounds[] = {{512, 64, 0.4}, {48, 128, 0.2}, {8, 1024, 0.1}};
    constexpr int steps = 8;
    Doubles motions = starts(rounds[0].starts, centroid(moving), centroid(fixed), random), misfits;
    for (const Round& round : rounds) {
        if (!misfits.empty()) motions = best(motions, misfits, round.starts);
        const Samples samples = samplesOf(moving, round.samples, random);
        for (int k = 0; k < steps; ++k)
            misfits = step(motions, fixed, samples, round.reach, std::exchange(stage, examples::once));
    }
    const Doubles result = best(motions, misfits, 1);
    Motion motion;
    std::copy_n(result.data(), 16, motion.data());
    return motion;
}

}  // namespace registration
