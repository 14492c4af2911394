// Plane-to-plane steps: the difference q - p of two corresponding points has a covariance, C(q) + R C(p) R^T, with
// large variances along the surface, where q is just a neighbour of p, and small ones across it. Its inverse W weighs
// the difference, and (w, t) makes the sum of e^T W e least, e = q - (p + w x p + t): with J = (-[p] 1) this is
// (sum of J^T W J) (w, t) = sum of J^T W (q - p), [p] being the matrix of the cross product with p.
#include "registration/refine.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>
#include <utility>

using examples::expectOk;
using examples::Stage;

namespace registration {
namespace {

// The nearest points correspond where they are nearer than this, a few times the distance of neighbours within a scan.
constexpr double reach = 0.08, sameSide = 0.8;

// Arrays with one object for each correspondence.
struct Correspondences {
    Doubles covariances, jacobians, differences;
    int count() const { return static_cast<int>(differences.size() / 3); }
};

Correspondences correspondences(const Surface& fixed, const Surface& moving, const Motion& motion)
{
    const Doubles points = moved(moving.points, motion), normals = turned(moving.normals, motion);
    Correspondences result;
    Doubles ofFixed, ofMoving;
    for (int n = 0; n < moving.count(); ++n) {
        const double* const p = &points[3 * index(n)];
        const int nearest = fixed.tree.nearest(p, reach);
        if (nearest < 0 || fixed.atBorder[index(nearest)] || moving.atBorder[index(n)]) continue;
        if (dot(&normals[3 * index(n)], &fixed.normals[3 * index(nearest)]) < sameSide) continue;
        const double* const q = &fixed.points[3 * index(nearest)];
        for (std::size_t i = 0; i < 3; ++i) result.differences.push_back(q[i] - p[i]);
        result.jacobians.insert(result.jacobians.end(), {0, p[2], -p[1], 1, 0, 0,  //
                                                         -p[2], 0, p[0], 0, 1, 0,  //
                                                         p[1], -p[0], 0, 0, 0, 1});
        const double *const c = &fixed.covariances[9 * index(nearest)], *const d = &moving.covariances[9 * index(n)];
        ofFixed.insert(ofFixed.end(), c, c + 9);
        ofMoving.insert(ofMoving.end(), d, d + 9);
    }

    const int count = result.count();
    if (count < 6) throw examples::BadMesh(0, "its scans do not overlap");
    Doubles half(ofMoving.size()), turnedOnes(ofMoving.size());
    result.covariances.resize(ofMoving.size());
    expectOk(vormMul_mma_64f(motion.data(), row4, element, 3, 3, ofMoving.data(), matrix3, row3, element, 3, 3,
                             half.data(), matrix3, row3, element, count),
             "vormMul_mma_64f");
    expectOk(vormMul_mat_64f(half.data(), matrix3, row3, element, 3, 3, motion.data(), row4, element, 3, 3,
                             turnedOnes.data(), matrix3, row3, element, count),
             "vormMul_mat_64f");
    expectOk(vormAdd_mama_64f(ofFixed.data(), matrix3, row3, element, turnedOnes.data(), matrix3, row3, element,
                              result.covariances.data(), matrix3, row3, element, 3, 3, count),
             "vormAdd_mama_64f");
    return result;
}

// The sum of all objects: the second half is added to the first one, until one object is left.
Doubles sumOf(Doubles objects, int size)
{
    const int stride = size * element;
    for (int count = static_cast<int>(objects.size()) / size; count > 1;) {
        const int half = (count + 1) / 2;
        expectOk(vormAdd_vava_64f(objects.data(), stride, element, &objects[index(half * size)], stride, element,
                                  objects.data(), stride, element, size, count - half),
                 "vormAdd_vava_64f");
        count = half;
    }
    objects.resize(index(size));
    return objects;
}

// A normal equation for each correspondence, J^T W J and J^T W (q - p), and the solution of their sum.
Doubles solved(const Correspondences& all, const Doubles& weights, Stage stage)
{
    constexpr int jacobian = 3 * row6;
    const int count = all.count();
    Doubles weighted(18 * index(count)), systems(36 * index(count)), sides(6 * index(count)), factor(36), result(6);
    stage("W J            vormMul_mama_64f 3x3 3x6", count, {1}, [&] {
        expectOk(vormMul_mama_64f(weights.data(), matrix3, row3, element, 3, 3, all.jacobians.data(), jacobian, row6,
                                  element, 6, 3, weighted.data(), jacobian, row6, element, count),
                 "vormMul_mama_64f");
    });
    stage("J^T W J        vormMul_tama_64f 3x6 3x6", count, {1, 0}, [&] {
        expectOk(vormMul_tama_64f(all.jacobians.data(), jacobian, row6, element, 6, 3, weighted.data(), jacobian, row6,
                                  element, 6, 3, systems.data(), matrix6, row6, element, count),
                 "vormMul_tama_64f");
    });
    stage("J^T W (q - p)  vormMul_tava_64f 3x6", count, {1}, [&] {
        expectOk(vormMul_tava_64f(weighted.data(), jacobian, row6, element, 6, 3, all.differences.data(), row3, element,
                                  3, sides.data(), row6, element, count),
                 "vormMul_tava_64f");
    });
    Doubles system, side;
    stage("sum            vormAdd_vava_64f", count, {1}, [&] {
        system = sumOf(systems, 36);
        side = sumOf(sides, 6);
    });
    expectOk(vormCholeskyDecomp_m_64f(system.data(), row6, element, factor.data(), row6, element, 6),
             "vormCholeskyDecomp_m_64f");
    expectOk(
        vormCholeskyBackSubst_mv_64f(factor.data(), row6, element, side.data(), element, result.data(), element, 6),
        "vormCholeskyBackSubst_mv_64f");
    return result;
}

}  // namespace

Refined refined(const Surface& fixed, const Surface& moving, const Motion& start, Stage stage)
{
    constexpr int mostSteps = 40;
    constexpr double enough = 1e-5;
    Refined result{start, 0, 0, 0};
    Doubles motion(start.begin(), start.end());
    for (double size = 1; size > enough && result.steps < mostSteps; ++result.steps) {
        const Stage now = std::exchange(stage, examples::once);
        const Correspondences all = correspondences(fixed, moving, result.motion);
        const Doubles weights = inverted(all.covariances, now), small = solved(all, weights, now);
        result.determinants = std::max(result.determinants, worstDeterminant(all.covariances, weights));
        result.correspondences = all.count();
        motion = followedBy(motion, small);
        std::copy_n(motion.data(), 16, result.motion.data());
        size = 0;
        for (const double x : small) size = std::max(size, std::abs(x));
    }
    return result;
}

}  // namespace registration
