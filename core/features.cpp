// Processor features by cpuid.

#include "features.hpp"

#include <cpuid.h>

namespace {

using vorcore::Registers;

Registers cpuid(unsigned leaf)
{
    Registers r{};
    __get_cpuid_count(leaf, 0, &r.eax, &r.ebx, &r.ecx, &r.edx);  // leaves zeros where there is no such leaf
    return r;
}

uint32_t xcr0(const Registers& leaf1)
{
    if (!(leaf1.ecx & bit_OSXSAVE)) return 0;
    uint32_t low, high;
    __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return low;
}

uint64_t detect(const Registers& leaf1) { return vorcore::featuresOf(leaf1, cpuid(7), xcr0(leaf1)); }

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
