// 4x4 transforms of points that are rows, p' = p M, as the functions named m4 of vorm make them.
#pragma once

#include <array>
#include <initializer_list>

namespace examples {

using Matrix = std::array<float, 16>;

// A chain of transforms, the first one first.
Matrix product(std::initializer_list<Matrix> chain);

// What a light from above throws onto the plane y = ground: points slide down the light.
Matrix shadowOn(float ground);

}  // namespace examples
