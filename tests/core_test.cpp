// The companion core library against what the system says of the machine, and against made-up machines.

#include <cpuid.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "default_threads.hpp"
#include "features.hpp"
#include "processors.hpp"
#include "vorcore/vorcore.h"

namespace {

cpu_set_t affinity()
{
    cpu_set_t mask;
    CPU_ZERO(&mask);
    EXPECT_EQ(sched_getaffinity(0, sizeof mask, &mask), 0);
    return mask;
}

// The calling thread on the processor it is on and no other, for the time of a test.
class OneProcessor {
public:
    OneProcessor()
    {
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(sched_getcpu(), &one);
        EXPECT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
    }
    ~OneProcessor() { sched_setaffinity(0, sizeof all_, &all_); }

private:
    cpu_set_t all_ = affinity();
};

std::string cpuFlags()
{
    std::ifstream cpuinfo("/proc/cpuinfo");
    for (std::string line; std::getline(cpuinfo, line);)
        if (line.starts_with("flags")) return line + " ";
    return {};
}

TEST(Core, FeaturesOfThisProcessor)
{
    const OneProcessor pinned;  // one of the registers says which processor answers
    uint64_t features = 0;
    uint32_t registers[4] = {}, expected[4] = {};
    EXPECT_EQ(vorGetCpuFeatures(&features, registers), VorCoreOk);
    EXPECT_EQ(vorGetCpuFeatures(nullptr, nullptr), VorCoreOk);
    EXPECT_EQ(vorGetEnabledCpuFeatures(), features);
    ASSERT_TRUE(__get_cpuid(1, &expected[0], &expected[1], &expected[2], &expected[3]));
    for (int k = 0; k < 4; ++k) EXPECT_EQ(registers[k], expected[k]) << "register " << k;

    const std::string flags = cpuFlags();
    if (flags.empty()) GTEST_SKIP() << "no flags in /proc/cpuinfo";
    const std::pair<const char*, uint64_t> names[] = {
        {"mmx", VorCpuMmx},     {"sse", VorCpuSse},      {"sse2", VorCpuSse2},    {"pni", VorCpuSse3},
        {"ssse3", VorCpuSsse3}, {"sse4_1", VorCpuSse41}, {"sse4_2", VorCpuSse42}, {"popcnt", VorCpuPopcnt},
        {"avx", VorCpuAvx},     {"fma", VorCpuFma},      {"avx2", VorCpuAvx2},
    };
    for (const auto& [name, bit] : names)
        EXPECT_EQ((features & bit) != 0, flags.find(std::string(" ") + name + " ") != std::string::npos) << name;
}

// By number, so that no bit can move together with its name.
TEST(Core, FeatureBitsOfGivenRegisters)
{
    using vorcore::featuresOf;
    const auto ecx = [](int bit) { return vorcore::Registers{0, 0, 1u << bit, 0}; };
    const auto edx = [](int bit) { return vorcore::Registers{0, 0, 0, 1u << bit}; };
    EXPECT_EQ(featuresOf(edx(23), {}, 0), 0x1u);
    EXPECT_EQ(featuresOf(edx(25), {}, 0), 0x2u);
    EXPECT_EQ(featuresOf(edx(26), {}, 0), 0x4u);
    EXPECT_EQ(featuresOf(ecx(0), {}, 0), 0x8u);
    EXPECT_EQ(featuresOf(ecx(9), {}, 0), 0x10u);
    EXPECT_EQ(featuresOf(ecx(19), {}, 0), 0x20u);
    EXPECT_EQ(featuresOf(ecx(20), {}, 0), 0x40u);
    EXPECT_EQ(featuresOf(ecx(23), {}, 0), 0x80u);
    EXPECT_EQ(featuresOf(ecx(28), {}, 6), 0x100u);
    EXPECT_EQ(featuresOf(ecx(12), {}, 6), 0x200u);
    EXPECT_EQ(featuresOf({}, {0, 1u << 5, 0, 0}, 6), 0x400u);
    const vorcore::Registers all{~0u, ~0u, ~0u, ~0u};
    EXPECT_EQ(featuresOf(all, all, 7), 0x7ffu);
    for (uint32_t xcr0 : {0u, 2u, 4u}) EXPECT_EQ(featuresOf(all, all, xcr0), 0xffu) << "half of the registers saved";
}

int32_t numberNow()
{
    int32_t threads = 0;
    EXPECT_EQ(vorGetNumThreads(&threads), VorCoreOk);
    EXPECT_EQ(ownGetNumThreads(), threads);
    return threads;
}

TEST(Threads, SetForTheProcessAndForOneThread)
{
    const int32_t byDefault = numberNow();
    EXPECT_GE(byDefault, 1);
    EXPECT_EQ(vorSetNumThreads(5), VorCoreOk);
    EXPECT_EQ(vorSetNumThreads(-1), VorCoreBadArgument);
    EXPECT_EQ(vorSetNumThreadsLocal(-1), VorCoreBadArgument);
    EXPECT_EQ(vorGetNumThreads(nullptr), VorCoreNullPointer);
    EXPECT_EQ(numberNow(), 5);
    std::thread([] {
        EXPECT_EQ(numberNow(), 5);
        vorSetNumThreadsLocal(3);
        EXPECT_EQ(numberNow(), 3);
        vorSetNumThreads(6);
        EXPECT_EQ(numberNow(), 3);
    }).join();
    EXPECT_EQ(numberNow(), 6);
    EXPECT_EQ(vorSetNumThreadsLocal(2), VorCoreOk);
    EXPECT_EQ(numberNow(), 2);
    EXPECT_EQ(vorSetNumThreadsLocal(0), VorCoreOk);
    EXPECT_EQ(numberNow(), 6);
    EXPECT_EQ(vorSetNumThreads(0), VorCoreOk);
    EXPECT_EQ(numberNow(), byDefault);
}

TEST(Threads, ChildrenHaveOneUntilTheySetANumber)
{
    vorSetNumThreads(5), vorSetNumThreadsLocal(4);
    const pid_t child = fork();
    if (child == 0) {
        bool good = ownGetNumThreads() == 1;
        std::thread([&] { good &= ownGetNumThreads() == 1; }).join();
        vorSetNumThreads(3), good &= ownGetNumThreads() == 3;
        vorSetNumThreads(0), good &= ownGetNumThreads() == 1;
        _exit(good ? 0 : 1);
    }
    int result = -1;
    ASSERT_EQ(waitpid(child, &result, 0), child);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(numberNow(), 4);
    vorSetNumThreads(0), vorSetNumThreadsLocal(0);
}

TEST(Threads, EnvironmentBeforeProcessors)
{
    using vorcore::defaultThreads;
    EXPECT_EQ(defaultThreads(nullptr, nullptr, 7), 7);
    EXPECT_EQ(defaultThreads("3", "2", 7), 3);
    EXPECT_EQ(defaultThreads(" 12 ", "2", 7), 12);
    EXPECT_EQ(defaultThreads("99999999999", "2", 7), INT32_MAX);
    for (const char* none : {"", " ", "0", "-3", "many", "4x", "4,2", "0x4", "+"}) {
        EXPECT_EQ(defaultThreads(none, nullptr, 7), 7) << none;
        EXPECT_EQ(defaultThreads(none, "2", 7), 2) << none;
    }
    EXPECT_EQ(defaultThreads(nullptr, "1", 7), 1);
    EXPECT_EQ(defaultThreads(nullptr, " 4 , 2,1", 7), 4);
    for (const char* none : {"", ",4", "0,4", "-1", "x,4", "4x"})
        EXPECT_EQ(defaultThreads(nullptr, none, 7), 7) << none;
}

// The default of a new process of this program with that environment: it is read but once.
int32_t numberOfNewProcess(const std::string& environment)
{
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    const std::string command =
        "env -u VORM_NUM_THREADS -u OMP_NUM_THREADS " + environment + " " + program + " --number";
    FILE* const answer = popen(command.c_str(), "r");
    int32_t number = 0;
    EXPECT_EQ(std::fscanf(answer, "%d", &number), 1);
    pclose(answer);
    return number;
}

TEST(Threads, DefaultOfAProcess)
{
    EXPECT_EQ(numberOfNewProcess("VORM_NUM_THREADS=11 OMP_NUM_THREADS=12"), 11);
    EXPECT_EQ(numberOfNewProcess("OMP_NUM_THREADS=12,13"), 12);
    const cpu_set_t mask = affinity();
    const int inMask = CPU_COUNT(&mask), inQuota = vorcore::processorsInQuota("");
    EXPECT_EQ(numberOfNewProcess(""), inQuota ? std::min(inMask, inQuota) : inMask);
    const OneProcessor narrowed;
    EXPECT_EQ(numberOfNewProcess(""), 1);
    EXPECT_EQ(numberOfNewProcess("VORM_NUM_THREADS=2"), 2);
}

// A made-up tree of control groups, below a folder of its own.
class Quota : public testing::Test {
protected:
    Quota()
    {
        char name[] = "/tmp/vorm-quota-XXXXXX";
        root_ = mkdtemp(name);
        write("proc/self/mountinfo",
              "21 1 254:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
              "22 21 0:20 / /sys/fs/group\\040two rw shared:2 master:1 - cgroup2 cgroup rw,nsdelegate\n"
              "23 21 0:21 / /sys/fs/memory rw - cgroup cgroup rw,memory\n"
              "24 21 0:22 /box /sys/fs/cpu,cpuacct rw - cgroup cgroup rw,cpuacct,cpu\n");
        groups("/a/b", "/box/c");
    }
    ~Quota() override { std::filesystem::remove_all(root_); }

    void write(const std::string& file, const std::string& text)
    {
        std::filesystem::create_directories((root_ + "/" + file).substr(0, root_.size() + 1 + file.rfind('/')));
        std::ofstream(root_ + "/" + file) << text;
    }
    void groups(const std::string& second, const std::string& first)
    {
        write("proc/self/cgroup", "5:memory:/other\n4:cpu,cpuacct:" + first + "\n0::" + second + "\n");
    }
    void first(const std::string& group, const std::string& time, const std::string& period)
    {
        write("sys/fs/cpu,cpuacct" + group + "/cpu.cfs_quota_us", time + "\n");
        write("sys/fs/cpu,cpuacct" + group + "/cpu.cfs_period_us", period + "\n");
    }
    void second(const std::string& group, const std::string& text)
    {
        write("sys/fs/group two" + group + "/cpu.max", text + "\n");
    }
    int32_t processors() const { return vorcore::processorsInQuota(root_); }

    std::string root_;
};

TEST_F(Quota, OfOwnGroupRoundedUp)
{
    EXPECT_EQ(processors(), 0);
    second("/a/b", "max 100000");
    EXPECT_EQ(processors(), 0);
    second("/a/b", "400000 100000");
    EXPECT_EQ(processors(), 4);
    second("/a/b", "400001 100000");
    EXPECT_EQ(processors(), 5);
    second("/a/b", "1000 100000");
    EXPECT_EQ(processors(), 1);
    for (const char* broken : {"", "4", "0 0", "100000 0", "-1 100000"}) {
        second("/a/b", broken);
        EXPECT_EQ(processors(), 0) << broken;
    }
}

TEST_F(Quota, OfTheGroupsAbove)
{
    second("/a/b", "800000 100000"), second("/a", "150000 50000"), second("", "700000 100000");
    EXPECT_EQ(processors(), 3);
    second("", "200000 100000");
    EXPECT_EQ(processors(), 2);
    groups("/", "/box/c");
    EXPECT_EQ(processors(), 2);
    groups("/../..", "/box/c");
    EXPECT_EQ(processors(), 2);
    groups("/else", "/box/c");
    second("/a/b", "100000 100000"), second("", "max 100000");
    EXPECT_EQ(processors(), 0);
}

TEST_F(Quota, OfTheFirstVersion)
{
    first("/c", "-1", "100000");
    EXPECT_EQ(processors(), 0);
    first("/c", "250000", "100000");
    EXPECT_EQ(processors(), 3);
    first("", "200000", "100000");  // what is mounted here is the group /box
    EXPECT_EQ(processors(), 2);
    first("/d", "100000", "100000");
    groups("/a/b", "/box/d");
    EXPECT_EQ(processors(), 1);
    groups("/a/b", "/d");  // not within what is mounted: its top counts
    EXPECT_EQ(processors(), 2);
    second("/a", "50000 100000");
    EXPECT_EQ(processors(), 1);
    std::filesystem::remove_all(root_ + "/proc");
    EXPECT_EQ(processors(), 0);
}

TEST(Core, LargestCache)
{
    int bytes = 0;
    EXPECT_EQ(vorGetMaxCacheSizeB(nullptr), VorCoreNullPointer);
    ASSERT_EQ(vorGetMaxCacheSizeB(&bytes), VorCoreOk);
    EXPECT_GE(bytes, 16 * 1024);
    int again = 0;
    ASSERT_EQ(vorGetMaxCacheSizeB(&again), VorCoreOk);
    EXPECT_EQ(again, bytes);
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

int main(int argc, char** argv)
{
    if (argc == 2 && std::string(argv[1]) == "--number") {
        std::printf("%d\n", ownGetNumThreads());
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
