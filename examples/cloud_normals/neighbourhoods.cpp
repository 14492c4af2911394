// Offsets of the neighbours of each point are the rows of X: their covariance is X^T X / near - m m^T.
#include "cloud_normals/neighbourhoods.hpp"

#include <vorm/vorm.h>

#include <algorithm>

#include "cloud_normals/grid.hpp"

using examples::expectOk;
using examples::Stage;

namespace cloud_normals {
namespace {

constexpr int element = sizeof(float), row3 = 3 * element, matrix3 = 3 * row3, offsets3 = near * row3;

// The sources are lists of pointers straight into the cloud: nothing is gathered first.
std::vector<float> offsetsOf(const std::vector<float>& points, Stage stage)
{
    const Grid grid(points);
    std::vector<float> offsets(near * points.size());
    std::vector<const float*> neighbours, middles;
    std::vector<float*> rows;
    for (std::size_t n = 0; n < points.size(); n += 3)
        for (const int neighbour : grid.nearest(&points[n], near)) {
            rows.push_back(&offsets[3 * rows.size()]);
            neighbours.push_back(&points[3 * index(neighbour)]);
            middles.push_back(&points[n]);
        }
    const int count = static_cast<int>(rows.size());
    stage("offsets      vormSub_vava_32f_L", count, {1, 0}, [&] {
        expectOk(vormSub_vava_32f_L(neighbours.data(), 0, element, middles.data(), 0, element, rows.data(), 0, element,
                                    3, count),
                 "vormSub_vava_32f_L");
    });
    return offsets;
}

}  // namespace

Neighbourhoods neighbourhoodsOf(const std::vector<float>& points, Stage stage)
{
    const std::vector<float> offsets = offsetsOf(points, stage), weights(near, 1.0f / near);
    const std::size_t objects = points.size() / 3;
    const int count = static_cast<int>(objects);
    std::vector<float> means(3 * objects), squares(9 * objects), shifts(9 * objects);
    stage("means        vormMul_tav_32f 13x3", count, {1, 0}, [&] {
        expectOk(vormMul_tav_32f(offsets.data(), offsets3, row3, element, 3, near, weights.data(), element, near,
                                 means.data(), row3, element, count),
                 "vormMul_tav_32f");
    });
    stage("X^T X        vormMul_tama_32f 13x3", count, {1, 0}, [&] {
        expectOk(vormMul_tama_32f(offsets.data(), offsets3, row3, element, 3, near, offsets.data(), offsets3, row3,
                                  element, 3, near, squares.data(), matrix3, row3, element, count),
                 "vormMul_tama_32f");
    });
    stage("m m^T        vormMul_mata_32f 3x1", count, {1, 0}, [&] {
        expectOk(vormMul_mata_32f(means.data(), row3, element, element, 1, 3, means.data(), row3, element, element, 1,
                                  3, shifts.data(), matrix3, row3, element, count),
                 "vormMul_mata_32f");
    });

    Neighbourhoods result{std::vector<float>(9 * objects), {}};
    stage("covariances  vormLComb_vava_32f", count, {1, 0}, [&] {
        expectOk(vormLComb_vava_32f(squares.data(), matrix3, element, 1.0f / near, shifts.data(), matrix3, element, -1,
                                    result.covariances.data(), matrix3, element, 9, count),
                 "vormLComb_vava_32f");
    });
    for (std::size_t n = 0; n < objects; ++n) {
        float radius;
        vormLen_v3_32f(&offsets[3 * (near * n + near - 1)], &radius);
        result.radii.push_back(radius);
    }
    return result;
}

}  // namespace cloud_normals
