// What decides the path of a product: the limits of the team, and which kernels have straight-line bodies.
#pragma once

namespace vorm::products {

// The largest work measures that stay serial where both precisions share them; that of the contiguous
// standard layout stands at each member.
constexpr int teamLimitList = 3600, teamLimitAnyStride = 1440, teamLimitPointers = 1440;

// The orders from 3 on that have straight-line bodies. A kernel that has fewer says so by name.
enum class Bodies { none, upTo5, upTo6 };

}  // namespace vorm::products
