// The dispatch index, in processes of their own: one for each answer of the core library.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "standin_core.hpp"
#include "vorm/vorm.h"

namespace {

// What this process sees: the target, the calls made at load, and some arithmetic.
std::string seenHere()
{
    const VersionRecord* const record = vormGetLibVersion();
    const float a[4] = {0.1f, 1e-30f, -7, 3}, b[4] = {0.7f, 1e30f, 2, 3};
    float sum[4];
    vormAdd_vav_32f(a, 16, 4, b, 4, sum, 16, 4, 4, 1);
    char text[200];
    std::snprintf(text, sizeof text, "%s|%s|%s|%s %s %d.%d.%d %d|%a %a %a %a", record->targetCode, record->libraryLabel,
                  standinLoadCalls, record->versionLabel, record->buildDateLabel, record->versionMajor,
                  record->versionMinor, record->versionUpdate, record->revision, sum[0], sum[1], sum[2], sum[3]);
    return text;
}

std::string seenWithFeatures(const char* mask)
{
    char self[4096] = {};
    if (!realpath("/proc/self/exe", self)) return {};
    const std::string command = std::string("VORM_TEST_FEATURES=") + mask + " '" + self + "' --probe";
    FILE* const pipe = popen(command.c_str(), "r");
    char line[200] = {};
    if (pipe && !std::fgets(line, sizeof line, pipe)) line[0] = 0;
    if (pipe) pclose(pipe);
    return line;
}

TEST(Dispatch, TargetByBothFeatureBits)
{
    const std::string rest =
        "|FE|7.1.1 (r37466) Sep 24 2012 7.1.1 37466|" + seenHere().substr(seenHere().rfind('|') + 1);
    EXPECT_EQ(seenWithFeatures("0x30"), "n8|vorm Wren (n8)" + rest);
    EXPECT_EQ(seenWithFeatures("0xffffffffffffffff"), "n8|vorm Wren (n8)" + rest);
    for (const char* mask : {"0", "0x10", "0x20", "0xffffffffffffffcf"})
        EXPECT_EQ(seenWithFeatures(mask), "u8|vorm SSSE3 (u8)" + rest) << mask;
}

TEST(Dispatch, OneRecord)
{
    EXPECT_EQ(vormGetLibVersion(), vormGetLibVersion());
    EXPECT_EQ(std::memcmp(vormGetLibVersion()->targetCode, "n8\0", 4), 0);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--probe") == 0) return std::fputs(seenHere().c_str(), stdout) < 0;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
