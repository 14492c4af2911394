// The size of the largest data or unified cache, by cpuid.

#include <cpuid.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdint>

#include "vorcore/vorcore.h"

namespace {

// Deterministic cache parameters: one subleaf per cache, ended by type 0 (1 data, 3 unified).
int64_t largestCache(unsigned leaf)
{
    int64_t largest = 0;
    for (unsigned index = 0; index < 16; ++index) {
        unsigned eax, ebx, ecx, edx;
        if (!__get_cpuid_count(leaf, index, &eax, &ebx, &ecx, &edx)) break;
        const unsigned type = eax & 0x1f;
        if (type == 0) break;
        if (type != 1 && type != 3) continue;
        const int64_t ways = (ebx >> 22) + 1, partitions = ((ebx >> 12) & 0x3ff) + 1, line = (ebx & 0xfff) + 1;
        largest = std::max(largest, ways * partitions * line * (int64_t{ecx} + 1));
    }
    return largest;
}

// 0 before the first question, below 0 where the processor does not tell. In a virtual machine each cpuid takes
// microseconds, all of them together longer than the work that asks.
std::atomic<int64_t> sizeKnown{0};

}  // namespace

extern "C" int vorGetMaxCacheSizeB(int* sizeBytes)
{
    if (!sizeBytes) return VorCoreNullPointer;
    int64_t size = sizeKnown.load(std::memory_order_relaxed);
    if (size == 0) {
        constexpr unsigned leaf = 4, extendedLeaf = 0x8000001d;  // the same format under two numbers
        size = std::max(largestCache(leaf), largestCache(extendedLeaf));
        if (size == 0) size = -1;
        sizeKnown.store(size, std::memory_order_relaxed);
    }
    if (size < 0) return VorCoreUnknown;
    *sizeBytes = static_cast<int>(std::min<int64_t>(size, INT_MAX));
    return VorCoreOk;
}
