// When the drivers run and what their teams give: thresholds seen from outside by the number of times
// a stand-in core library is asked for its threads, and results against the naive loop.

#include <omp.h>

#include <thread>

#include "elementwise_cases.hpp"
#include "standin_core.hpp"

namespace {

// The measure that decides, and the largest value of it that stays serial.
std::int32_t vectorSumMeasure(const std::string& shape, std::uint32_t len, std::uint32_t count)
{
    std::uint32_t measure = (2 * count + 1) * len;  // vav, vac, vva
    if (shape == "vava") measure = 3 * count * len;
    if (shape == "vaca" || shape == "cava") measure = count * (2 * len + 1);
    if (shape == "vca" || shape == "cav") measure = len * count + len + count;
    if (shape == "cva") measure = 2 * count;
    return static_cast<std::int32_t>(measure);
}
int vectorSumLimit(const Function& f)
{
    const int limit = f.layout == "P" ? 1500 : f.layout == "L" ? 2500 : f.type == "32f" ? 4800 : 1400;
    return f.shape == "cva" ? limit - 1 : limit;
}

class Teams : public testing::Test {
protected:
    Random random{20120924};

    // The number of times a call asked for the threads, which also checks its result.
    int askedBy(const Function& f, int threads, const Case& c)
    {
        return askedDuring(threads, [&] { checkCaseOfType(f, c, random); });
    }
};

TEST_F(Teams, VectorSumsAtTheLimitAndAbove)
{
    for (const Function& f : catalogue()) {
        if (!isVectorSum(f) || !f.isArray()) continue;
        for (int len : {1, 3, 40}) {
            int count = 1;  // the first one above the limit
            while (vectorSumMeasure(f.shape, std::uint32_t(len), std::uint32_t(count)) <= vectorSumLimit(f)) ++count;
            for (int gap2 : {1, 2}) {
                Case c{.len = len, .count = count - 1};
                c.src1.gap2 = c.src2.gap2 = c.dst.gap2 = gap2;
                EXPECT_EQ(askedBy(f, 2, c), 0) << f.name << ", len " << len;
                c.count = count;
                EXPECT_EQ(askedBy(f, 1, c), 1) << f.name << ", one thread";
                EXPECT_EQ(askedBy(f, count + 1, c), 1) << f.name << ", fewer objects than threads";
                EXPECT_EQ(askedBy(f, std::min(count, 8), c), 2) << f.name;
            }
            if (HasFatalFailure()) return;
        }
    }
}

// With as many objects as threads there is a fork; the objects are large here.
TEST_F(Teams, ObjectsAsManyAsThreads)
{
    const Function& f = functionNamed("vormSub_vava_64f");
    for (int threads : {2, 3, 8})
        for (int extra : {-1, 0, 1})
            EXPECT_EQ(askedBy(f, threads, {.len = 2000, .count = threads + extra}),
                      threads + extra < threads || threads + extra == 1 ? 1 : 2);
}

TEST_F(Teams, SameResultsWithAnyNumberOfThreads)
{
    for (const Function& f : catalogue()) {
        if (!isVectorSum(f) || !f.isArray()) continue;
        for (int threads : {2, 3, 8}) {
            Case c{.len = pick(random, 1, 9), .count = pick(random, 2500, 2600)};
            c.src1 = someLie(random, "", 1, 1, 1), c.src2 = someLie(random, "", 1, 1, 1);
            c.dst = someLie(random, "", 1, 1, 1);
            EXPECT_EQ(askedBy(f, threads, c), 2) << f.name;
            if (HasFatalFailure()) return;
        }
    }
}

// A measure that wraps to a negative number stays serial. The objects lie over each other.
TEST_F(Teams, WrappedMeasureIsSerial)
{
    const int len = 1 << 15, count = 1 << 15;
    ASSERT_LT(vectorSumMeasure("vac", len, count), 0);
    std::vector<float> src(len + count, 1.0f), dst(len + count);
    const auto call = [&] {
        EXPECT_EQ(vormAdd_vac_32f(src.data(), 4, 4, 2.0f, dst.data(), 4, 4, len, count), StatusOk);
    };
    EXPECT_EQ(askedDuring(2, call), 0);
    EXPECT_EQ(dst[len + count - 2], 3.0f);
}

TEST_F(Teams, NestedAndSeveralCallers)
{
    standinThreads = 3;
    const int len = 5, count = 3000, callers = 4;
    const std::vector<double> a(len * count, 1.5), b(len, 2.25);
    std::vector<std::vector<double>> dst(callers, std::vector<double>(a.size()));
    const auto call = [&](int caller) {
        for (int again = 0; again < 5; ++again)
            vormAdd_vav_64f(a.data(), 40, 8, b.data(), 8, dst[std::size_t(caller)].data(), 40, 8, len, count);
    };
    const auto check = [&] {
        for (auto& d : dst) {
            EXPECT_EQ(std::count(d.begin(), d.end(), 3.75), len * count);
            std::fill(d.begin(), d.end(), 0);
        }
    };
    for (int levels : {1, 2}) {  // nesting off and on
        omp_set_max_active_levels(levels);
#pragma omp parallel for num_threads(callers)
        for (int caller = 0; caller < callers; ++caller) call(caller);
        check();
    }
    std::vector<std::thread> threads;
    for (int caller = 0; caller < callers; ++caller) threads.emplace_back(call, caller);
    for (auto& thread : threads) thread.join();
    check();
}

}  // namespace
