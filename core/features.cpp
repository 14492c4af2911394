// Processor features by cpuid.

#include <cpuid.h>

#include "vorcore/vorcore.h"

namespace {

struct Registers {
    unsigned eax, ebx, ecx, edx;
};

Registers cpuid(unsigned leaf)
{
    Registers r{};
    __get_cpuid_count(leaf, 0, &r.eax, &r.ebx, &r.ecx, &r.edx);  // leaves zeros where there is no such leaf
    return r;
}

// Whether the operating system saves the upper halves of the 256-bit registers.
bool savesYmm(const Registers& leaf1)
{
    if (!(leaf1.ecx & bit_OSXSAVE)) return false;
    unsigned low, high;
    __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return (low & 6) == 6;
}

uint64_t detect(const Registers& leaf1)
{
    uint64_t mask = 0;
    const auto feature = [&](bool present, uint64_t bit) { mask |= present ? bit : 0; };
    feature(leaf1.edx & bit_MMX, VorCpuMmx);
    feature(leaf1.edx & bit_SSE, VorCpuSse);
    feature(leaf1.edx & bit_SSE2, VorCpuSse2);
    feature(leaf1.ecx & bit_SSE3, VorCpuSse3);
    feature(leaf1.ecx & bit_SSSE3, VorCpuSsse3);
    feature(leaf1.ecx & bit_SSE4_1, VorCpuSse41);
    feature(leaf1.ecx & bit_SSE4_2, VorCpuSse42);
    feature(leaf1.ecx & bit_POPCNT, VorCpuPopcnt);
    if (savesYmm(leaf1)) {
        feature(leaf1.ecx & bit_AVX, VorCpuAvx);
        feature(leaf1.ecx & bit_FMA, VorCpuFma);
        feature(cpuid(7).ebx & bit_AVX2, VorCpuAvx2);
    }
    return mask;
}

}  // namespace

extern "C" int vorGetCpuFeatures(uint64_t* features, uint32_t* cpuidRegisters)
{
    const Registers leaf1 = cpuid(1);
    if (features) *features = detect(leaf1);
    if (cpuidRegisters) {
        cpuidRegisters[0] = leaf1.eax;
        cpuidRegisters[1] = leaf1.ebx;
        cpuidRegisters[2] = leaf1.ecx;
        cpuidRegisters[3] = leaf1.edx;
    }
    return VorCoreOk;
}

extern "C" uint64_t vorGetEnabledCpuFeatures(void) { return detect(cpuid(1)); }
