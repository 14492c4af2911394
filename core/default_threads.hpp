// The number of threads where nobody has set one.
#pragma once

#include <cstdint>

namespace vorcore {

// VORM_NUM_THREADS where it is a positive number, else the first number of OMP_NUM_THREADS where that is one,
// else the processors. Either text may be null.
std::int32_t defaultThreads(const char* vormNumThreads, const char* ompNumThreads, std::int32_t processors);

}  // namespace vorcore
