// A companion core library for tests: it counts calls, and answers what it is told. The feature mask is
// taken from the environment, as it is asked for while libraries are loaded.

#include "standin_core.hpp"

#include <cstdlib>
#include <cstring>

#include "vorcore/vorcore.h"

extern "C" {

std::atomic<int> standinThreads{1}, standinLater{0}, standinAsked{0};
std::atomic<int> standinCache{1 << 20}, standinCacheAsked{0};
char standinLoadCalls[64];

int vorGetCpuFeatures(uint64_t* features, uint32_t* cpuidRegisters)
{
    std::strcat(standinLoadCalls, features || cpuidRegisters ? "?" : "F");
    return -1;  // a failure is not looked at
}

uint64_t vorGetEnabledCpuFeatures(void)
{
    std::strcat(standinLoadCalls, "E");
    const char* const mask = std::getenv("VORM_TEST_FEATURES");
    return mask ? std::strtoull(mask, nullptr, 0) : 0x3f;
}

int32_t ownGetNumThreads(void)
{
    const int before = standinAsked++;
    return before > 0 && standinLater != 0 ? standinLater : standinThreads;
}

int vorGetMaxCacheSizeB(int* sizeBytes)
{
    ++standinCacheAsked;
    if (standinCache == 0) return VorCoreUnknown;
    *sizeBytes = standinCache;
    return VorCoreOk;
}
}
