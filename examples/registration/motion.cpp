// Rigid motions as 4x4 matrices.
#include "registration/motion.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "common/stages.hpp"

using examples::expectOk;

namespace registration {

double dot(const double* a, const double* b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

// Rodrigues: R = 1 + sin a K + (1 - cos a) K K, where K p is the cross product of the unit axis and p.
Motion motionOf(const Vec& w, const Vec& shift)
{
    const double angle = std::hypot(w[0], w[1], w[2]), s = std::sin(angle), c = 1 - std::cos(angle);
    const double x = angle > 0 ? w[0] / angle : 0, y = angle > 0 ? w[1] / angle : 0, z = angle > 0 ? w[2] / angle : 0;
    // clang-format off
    return {1 - c * (y * y + z * z), c * x * y - s * z,       c * x * z + s * y,       shift[0],
            c * x * y + s * z,       1 - c * (x * x + z * z), c * y * z - s * x,       shift[1],
            c * x * z - s * y,       c * y * z + s * x,       1 - c * (x * x + y * y), shift[2],
            0,                       0,                       0,                       1};
    // clang-format on
}

// A point on the sphere of unit quaternions, which four normal numbers give without a preferred direction.
Motion randomTurn(std::mt19937_64& random)
{
    std::normal_distribution<double> normal;
    const double q0 = std::abs(normal(random)), q1 = normal(random), q2 = normal(random), q3 = normal(random);
    const double sine = std::hypot(q1, q2, q3), angle = 2 * std::atan2(sine, q0);
    return motionOf({angle * q1 / sine, angle * q2 / sine, angle * q3 / sine}, {});
}

Motion inverse(const Motion& motion)
{
    Motion result{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) {
            result[4 * i + j] = motion[4 * j + i];
            result[4 * i + 3] -= motion[4 * j + i] * motion[4 * j + 3];
        }
    result[15] = 1;
    return result;
}

Doubles followedBy(const Doubles& motions, const Doubles& small)
{
    Doubles steps;
    for (std::size_t n = 0; n < small.size(); n += 6) {
        const double* const s = &small[n];
        const Motion step = motionOf({s[0], s[1], s[2]}, {s[3], s[4], s[5]});
        steps.insert(steps.end(), step.begin(), step.end());
    }
    Doubles result(motions.size());
    expectOk(vormMul_mama_64f(steps.data(), matrix4, row4, element, 4, 4, motions.data(), matrix4, row4, element, 4, 4,
                              result.data(), matrix4, row4, element, static_cast<int>(motions.size() / 16)),
             "vormMul_mama_64f");
    return result;
}

Doubles turned(const Doubles& directions, const Motion& motion)
{
    Doubles result(directions.size());
    expectOk(vormMul_mva_64f(motion.data(), row4, element, 3, 3, directions.data(), row3, element, 3, result.data(),
                             row3, element, static_cast<int>(directions.size() / 3)),
             "vormMul_mva_64f");
    return result;
}

Doubles moved(const Doubles& points, const Motion& motion)
{
    const Doubles about = turned(points, motion);
    Doubles result(points.size());
    expectOk(vormAdd_vav_64f(about.data(), row3, element, &motion[3], row4, result.data(), row3, element, 3,
                             static_cast<int>(points.size() / 3)),
             "vormAdd_vav_64f");
    return result;
}

// The angle by its sine too: near zero the cosine does not tell small angles apart.
Difference difference(const Motion& a, const Motion& b)
{
    const Motion back = inverse(b);
    Motion rest;
    expectOk(
        vormMul_mm_64f(a.data(), row4, element, 4, 4, back.data(), row4, element, 4, 4, rest.data(), row4, element),
        "vormMul_mm_64f");
    const double sine = std::hypot(rest[9] - rest[6], rest[2] - rest[8], rest[4] - rest[1]) / 2;
    const double cosine = (rest[0] + rest[5] + rest[10] - 1) / 2;
    return {std::atan2(sine, cosine) * 180 / std::numbers::pi, std::hypot(a[3] - b[3], a[7] - b[7], a[11] - b[11])};
}

}  // namespace registration
