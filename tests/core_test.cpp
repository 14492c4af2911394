// The companion core library against what the system says of the machine.

#include <gtest/gtest.h>
#include <sched.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>

#include "vorcore/vorcore.h"

namespace {

std::string cpuFlags()
{
    std::ifstream cpuinfo("/proc/cpuinfo");
    for (std::string line; std::getline(cpuinfo, line);)
        if (line.starts_with("flags")) return line + " ";
    return {};
}

TEST(Core, FeaturesOfTheProcessor)
{
    const std::string flags = cpuFlags();
    if (flags.empty()) GTEST_SKIP() << "no flags in /proc/cpuinfo";
    uint64_t features = 0;
    uint32_t registers[4] = {};
    EXPECT_EQ(vorGetCpuFeatures(&features, registers), VorCoreOk);
    EXPECT_EQ(vorGetCpuFeatures(nullptr, nullptr), VorCoreOk);
    EXPECT_EQ(vorGetEnabledCpuFeatures(), features);
    const std::pair<const char*, uint64_t> names[] = {
        {"mmx", VorCpuMmx},     {"sse", VorCpuSse},      {"sse2", VorCpuSse2},    {"pni", VorCpuSse3},
        {"ssse3", VorCpuSsse3}, {"sse4_1", VorCpuSse41}, {"sse4_2", VorCpuSse42}, {"popcnt", VorCpuPopcnt},
        {"avx", VorCpuAvx},     {"fma", VorCpuFma},      {"avx2", VorCpuAvx2},
    };
    for (const auto& [name, bit] : names)
        EXPECT_EQ((features & bit) != 0, flags.find(std::string(" ") + name + " ") != std::string::npos) << name;
    EXPECT_EQ(registers[2] >> 9 & 1, (features & VorCpuSsse3) != 0);
}

TEST(Core, Threads)
{
    cpu_set_t mask;
    ASSERT_EQ(sched_getaffinity(0, sizeof mask, &mask), 0);
    EXPECT_EQ(ownGetNumThreads(), CPU_COUNT(&mask));
    int32_t threads = 0;
    EXPECT_EQ(vorSetNumThreads(5), VorCoreOk);
    EXPECT_EQ(vorSetNumThreads(-1), VorCoreBadArgument);
    EXPECT_EQ(vorGetNumThreads(&threads), VorCoreOk);
    EXPECT_EQ(threads, 5);
    EXPECT_EQ(ownGetNumThreads(), 5);
    EXPECT_EQ(vorGetNumThreads(nullptr), VorCoreNullPointer);
    EXPECT_EQ(vorSetNumThreads(0), VorCoreOk);
    EXPECT_EQ(ownGetNumThreads(), CPU_COUNT(&mask));
}

TEST(Core, LargestCache)
{
    int bytes = 0;
    EXPECT_EQ(vorGetMaxCacheSizeB(nullptr), VorCoreNullPointer);
    ASSERT_EQ(vorGetMaxCacheSizeB(&bytes), VorCoreOk);
    EXPECT_GE(bytes, 16 * 1024);
    // What the kernel says of the first processor's caches, where it does.
    long largest = 0;
    for (int index = 0; index < 8; ++index) {
        std::ifstream file("/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(index) + "/size");
        long kib = 0;
        if (file >> kib) largest = std::max(largest, kib * 1024);
    }
    if (largest) {
        EXPECT_EQ(bytes, largest);
    }
}

}  // namespace
