// Covariances of neighbourhoods, their principal axes and their inverses.
#include "registration/surface.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "common/principal_axes.hpp"

using examples::expectOk;
using examples::Stage;

namespace registration {
namespace {

constexpr int near = 16;  // points that tell what the surface is like

// Of the nearest points, seen from each point: near x 3 elements.
Doubles offsetsOf(const Doubles& points, const Tree& tree)
{
    Doubles offsets;
    for (std::size_t n = 0; n < points.size(); n += 3) {
        const auto neighbours = tree.nearest(&points[n], near);
        for (int k = 0; k < near; ++k) {
            const double* const p = &points[3 * index(neighbours[index(k) % neighbours.size()])];
            for (std::size_t i = 0; i < 3; ++i) offsets.push_back(p[i] - points[n + i]);
        }
    }
    return offsets;
}

// X^T w, where all weights w are one over the number of rows of X.
Doubles meansOf(const Doubles& offsets, int count)
{
    const Doubles weights(near, 1.0 / near);
    Doubles means(3 * index(count));
    expectOk(vormMul_tav_64f(offsets.data(), near * row3, row3, element, 3, near, weights.data(), element, near,
                             means.data(), row3, element, count),
             "vormMul_tav_64f");
    return means;
}

// X^T X / near - m m^T, and what the scanner cannot tell in any direction. Packed matrices are vectors of nine, too.
Doubles covariancesOf(const Doubles& offsets, const Doubles& means, int count, Stage stage)
{
    constexpr double floor = acrossSd * acrossSd;
    const double smallest[9] = {floor, 0, 0, 0, floor, 0, 0, 0, floor};
    Doubles squares(9 * index(count)), shifts(squares.size()), about(squares.size()), result(squares.size());
    stage("X^T X          vormMul_tama_64f 16x3", count, {1}, [&] {
        expectOk(vormMul_tama_64f(offsets.data(), near * row3, row3, element, 3, near, offsets.data(), near * row3,
                                  row3, element, 3, near, squares.data(), matrix3, row3, element, count),
                 "vormMul_tama_64f");
    });
    expectOk(vormMul_mata_64f(means.data(), row3, element, element, 1, 3, means.data(), row3, element, element, 1, 3,
                              shifts.data(), matrix3, row3, element, count),
             "vormMul_mata_64f");
    expectOk(vormLComb_vava_64f(squares.data(), matrix3, element, 1.0 / near, shifts.data(), matrix3, element, -1,
                                about.data(), matrix3, element, 9, count),
             "vormLComb_vava_64f");
    expectOk(vormAdd_mam_64f(about.data(), matrix3, row3, element, smallest, row3, element, result.data(), matrix3,
                             row3, element, 3, 3, count),
             "vormAdd_mam_64f");
    return result;
}

// The last principal axes, on the side of the scanner.
Doubles normalsOf(const Doubles& covariances, const Vec& towards, Stage stage)
{
    const Doubles axes = examples::principalAxes(covariances, stage).vectors;
    Doubles normals;
    for (std::size_t n = 0; n < axes.size(); n += 9) {
        const double* const normal = &axes[n + 6];
        const double side = dot(normal, towards.data()) < 0 ? -1 : 1;
        for (std::size_t i = 0; i < 3; ++i) normals.push_back(side * normal[i]);
    }
    return normals;
}

// At a border the points near a point are on one side of it. Their mean m is far away then, measured along the surface
// in their own spread: m^T C^-1 m without the part of the normal, which is a principal direction of C.
std::vector<char> bordersOf(const Doubles& means, const Doubles& inverses, const Doubles& normals)
{
    constexpr double far = 0.8;  // a straight border has 2.5, the middle of random points about 0.1
    Doubles products(means.size());
    expectOk(vormMul_mava_64f(inverses.data(), matrix3, row3, element, 3, 3, means.data(), row3, element, 3,
                              products.data(), row3, element, static_cast<int>(means.size() / 3)),
             "vormMul_mava_64f");
    std::vector<char> result;
    for (std::size_t n = 0; n < means.size(); n += 3) {
        const double *const mean = &means[n], *const product = &products[n], *const normal = &normals[n];
        result.push_back(dot(mean, product) - dot(normal, mean) * dot(normal, product) > far);
    }
    return result;
}

}  // namespace

Surface::Surface(const Scan& scan, Stage stage) : points(scan.points), tree(points)
{
    const Doubles offsets = offsetsOf(points, tree), means = meansOf(offsets, count());
    covariances = covariancesOf(offsets, means, count(), stage);
    const Doubles inverses = inverted(covariances);
    normals = normalsOf(covariances, scan.towards, stage);
    atBorder = bordersOf(means, inverses, normals);
}

Doubles inverted(const Doubles& covariances, Stage stage)
{
    const int count = static_cast<int>(covariances.size() / 9);
    Doubles inverses(covariances.size()), buffer(12 * index(examples::threads()));
    stage("inverses       vormInvert_ma_64f 3x3", count, {1, 0}, [&] {
        expectOk(vormInvert_ma_64f(covariances.data(), matrix3, row3, element, buffer.data(), inverses.data(), matrix3,
                                   row3, element, 3, count),
                 "vormInvert_ma_64f");
    });
    return inverses;
}

double worstDeterminant(const Doubles& covariances, const Doubles& inverses)
{
    const int count = static_cast<int>(covariances.size() / 9);
    Doubles buffer(12 * index(examples::threads())), of(index(count)), ofInverse(index(count));
    for (const auto& [matrices, result] : {std::pair(&covariances, &of), std::pair(&inverses, &ofInverse)})
        expectOk(vormDet_ma_64f(matrices->data(), matrix3, row3, element, 3, buffer.data(), result->data(), count),
                 "vormDet_ma_64f");
    double worst = 0;
    for (std::size_t n = 0; n < of.size(); ++n) {
        const double off = std::abs(of[n] * ofInverse[n] - 1);
        worst = std::isnan(off) ? INFINITY : std::max(worst, off);
    }
    return worst;
}

}  // namespace registration
