// Which features a processor has, by what cpuid and the operating system say.
#pragma once

#include <cstdint>

#include "vorcore/vorcore.h"

namespace vorcore {

struct Registers {
    std::uint32_t eax, ebx, ecx, edx;
};

// Leaves 1 and 7 of cpuid, and the low half of the extended control register 0, 0 where there is none.
constexpr std::uint64_t featuresOf(const Registers& leaf1, const Registers& leaf7, std::uint32_t xcr0)
{
    std::uint64_t mask = 0;
    const auto feature = [&](std::uint32_t word, int bit, std::uint64_t name) { mask |= word >> bit & 1 ? name : 0; };
    feature(leaf1.edx, 23, VorCpuMmx);
    feature(leaf1.edx, 25, VorCpuSse);
    feature(leaf1.edx, 26, VorCpuSse2);
    feature(leaf1.ecx, 0, VorCpuSse3);
    feature(leaf1.ecx, 9, VorCpuSsse3);
    feature(leaf1.ecx, 19, VorCpuSse41);
    feature(leaf1.ecx, 20, VorCpuSse42);
    feature(leaf1.ecx, 23, VorCpuPopcnt);
    constexpr std::uint32_t savesYmm = 6;  // both halves of the 256-bit registers
    if ((xcr0 & savesYmm) == savesYmm) {
        feature(leaf1.ecx, 28, VorCpuAvx);
        feature(leaf1.ecx, 12, VorCpuFma);
        feature(leaf7.ebx, 5, VorCpuAvx2);
    }
    return mask;
}

}  // namespace vorcore
