// The cloud as small discs, and how many of its normals have what error.
#pragma once

#include <vector>

#include "common/png_writer.hpp"

namespace cloud_normals {

constexpr int bins = 16;          // of the histogram, the last one for all that is larger
constexpr float binWidth = 2.0f;  // degrees

int binOf(float degrees);

// Normals of zero are of points that are left out; an error that is NaN is unknown. On the left shaded by the normals,
// on the right with the colours of the histogram, which stands below.
examples::Picture drawCloud(const std::vector<float>& points, const std::vector<float>& normals,
                            const std::vector<float>& radii, const std::vector<float>& errors,
                            const std::vector<int>& histogram);

}  // namespace cloud_normals
