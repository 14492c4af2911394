// How many processors this process may use.
#pragma once

#include <cstdint>
#include <string>

namespace vorcore {

// Those in the calling thread's affinity mask.
std::int32_t processorsInMask();

// As many as the quota of this process's control group and of the groups above it lasts for, rounded up; 0
// where none has a quota. Files are looked for below root, which is empty but in tests.
std::int32_t processorsInQuota(const std::string& root);

}  // namespace vorcore
