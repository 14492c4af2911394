// Rigid motions p -> R p + t as 4x4 matrices (R t; 0 1), one behind the other.
#pragma once

#include <array>
#include <cstddef>
#include <random>
#include <vector>

namespace registration {

using Doubles = std::vector<double>;
using Vec = std::array<double, 3>;
using Motion = std::array<double, 16>;

// The strides of packed vectors and matrices.
constexpr int element = sizeof(double), row3 = 3 * element, row4 = 4 * element, row6 = 6 * element;
constexpr int matrix3 = 3 * row3, matrix4 = 4 * row4, matrix6 = 6 * row6;

inline std::size_t index(int n) { return static_cast<std::size_t>(n); }

double dot(const double* a, const double* b);

// A turn by the angle |w| about the axis w, then a shift.
Motion motionOf(const Vec& w, const Vec& shift);

// Any rotation, each as likely as every other.
Motion randomTurn(std::mt19937_64& random);

Motion inverse(const Motion& motion);

// Each object's motion with a small one after it, (w, t) of six elements: result[n] = small[n] motion[n].
Doubles followedBy(const Doubles& motions, const Doubles& small);

// Points or, without the shift, directions: a row of three for each.
Doubles moved(const Doubles& points, const Motion& motion);
Doubles turned(const Doubles& directions, const Motion& motion);

// What is left of a motion after the inverse of another one.
struct Difference {
    double degrees, distance;  // the angle of the rotation, how far the origin goes
};
Difference difference(const Motion& a, const Motion& b);

}  // namespace registration
