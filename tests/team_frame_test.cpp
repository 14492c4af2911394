// The driver's frame: how often it asks for threads, how it cuts a call, and how many threads then work.

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "frame/team.hpp"
#include "standin_core.hpp"

using namespace vorm;

namespace {

constexpr std::int64_t least = leastPicosecondsPerWorker, plenty = INT64_MAX;

struct Done {
    Chunk chunk;
    std::thread::id worker;
};

class Team : public testing::Test {
protected:
    ~Team() override { standinThreads = 1, standinLater = 0; }

    // Runs a call and records what it does, in the order of the chunks' numbers.
    template <Kernels kernels>
    std::vector<Done> chunksOf(int threads, int count, std::int64_t picoseconds, std::size_t scratch = 0)
    {
        std::vector<Done> done;
        std::mutex mutex;
        standinThreads = threads, standinAsked = 0;
        const auto work = [&](const Chunk& chunk) {
            if (chunk.scratch) std::memset(chunk.scratch, chunk.thread, scratch);
            const std::lock_guard lock(mutex);
            done.push_back({chunk, std::this_thread::get_id()});
            return VormStatus{StatusOk};
        };
        EXPECT_EQ(inTeam<kernels>(count, picoseconds, work, scratch), StatusOk);
        inOrder_ = std::is_sorted(done.begin(), done.end(), byNumber);
        std::sort(done.begin(), done.end(), byNumber);
        return done;
    }
    static bool byNumber(const Done& a, const Done& b) { return a.chunk.thread < b.chunk.thread; }

    static int workers(const std::vector<Done>& done)
    {
        std::set<std::thread::id> ids;
        for (const Done& d : done) ids.insert(d.worker);
        return static_cast<int>(ids.size());
    }

    // Whether the chunks are the parts of count in order, the first ones larger by one.
    static bool areParts(const std::vector<Done>& done, int count, int chunks)
    {
        int next = 0, n = 0;
        for (; n < static_cast<int>(done.size()); ++n) {
            const Chunk& c = done[std::size_t(n)].chunk;
            if (c.thread != n || c.first != next || c.objects != count / chunks + (n < count % chunks)) return false;
            next += c.objects;
        }
        return next == count && n == std::min(chunks, count);
    }

    const int processors_ = omp_get_num_procs();
    bool inOrder_ = false;
};

TEST(Workers, AsManyAsTheWorkPays)
{
    EXPECT_EQ(workersFor(2 * least - 1, 8, 8), 1);
    EXPECT_EQ(workersFor(2 * least, 8, 8), 2);
    EXPECT_EQ(workersFor(4 * least - 1, 8, 8), 3);
    EXPECT_EQ(workersFor(plenty, 8, 64), 8);
    EXPECT_EQ(workersFor(plenty, 64, 2), 2);
    EXPECT_EQ(workersFor(plenty, 1, 8), 1);
    for (std::int64_t nothing : {std::int64_t{-5}, std::int64_t{0}, INT64_MIN}) EXPECT_EQ(workersFor(nothing, 8, 8), 1);
}

// Chunks follow the number of threads where a kernel can fail, and the workers where none can.
TEST_F(Team, ChunksAndWorkers)
{
    for (int threads : {2, 3, 4, 8, 64})
        for (int count : {threads, threads + 1, 10 * threads - 1, 1000})
            for (std::int64_t cost : {std::int64_t{0}, 2 * least - 1, 2 * least, 3 * least, plenty}) {
                const int expected = workersFor(cost, threads, processors_);
                const auto failing = chunksOf<Kernels::canFail>(threads, count, cost);
                EXPECT_EQ(standinAsked, 2);
                EXPECT_TRUE(areParts(failing, count, threads)) << threads << " " << count;
                EXPECT_EQ(workers(failing), expected) << threads << " " << cost;
                EXPECT_TRUE(inOrder_ || expected > 1);
                const auto plain = chunksOf<Kernels::cannotFail>(threads, count, cost);
                EXPECT_EQ(standinAsked, 2);
                EXPECT_TRUE(areParts(plain, count, expected)) << threads << " " << count << " " << cost;
                EXPECT_EQ(workers(plain), expected);
            }
}

TEST_F(Team, SerialWithFewerObjectsThanThreads)
{
    for (int threads : {-1, 0, 1, 8, INT_MAX}) {
        const auto done = chunksOf<Kernels::canFail>(threads, 7, plenty, 16);
        ASSERT_TRUE(areParts(done, 7, 1)) << threads;
        EXPECT_EQ(done[0].chunk.scratch, nullptr);
        EXPECT_EQ(standinAsked, 1);
    }
}

// The number may rise or fall between the two questions: no chunk without objects reaches a kernel.
TEST_F(Team, NumberThatChangesBetweenTheQuestions)
{
    for (int later : {-1, 1, 3, 7, 40})
        for (std::int64_t cost : {std::int64_t{0}, plenty}) {
            standinLater = later;
            EXPECT_TRUE(areParts(chunksOf<Kernels::canFail>(5, 7, cost, 64), 7, std::max(later, 1))) << later;
            standinLater = later;
            EXPECT_EQ(workers(chunksOf<Kernels::cannotFail>(5, 7, cost, 64)),
                      std::min(7, workersFor(cost, later, processors_)));
        }
}

TEST_F(Team, ScratchOfEachWorker)
{
    const std::size_t bytes = 4096;
    for (std::int64_t cost : {std::int64_t{0}, plenty}) {
        const auto done = chunksOf<Kernels::canFail>(16, 50, cost, bytes);
        std::set<std::pair<std::thread::id, char*>> stretches;
        for (const Done& d : done) stretches.insert({d.worker, d.chunk.scratch});
        EXPECT_EQ(int(stretches.size()), workers(done));
        char* const base = done[0].chunk.scratch;
        ASSERT_NE(base, nullptr);
        std::set<std::ptrdiff_t> places;
        for (const auto& [worker, stretch] : stretches) places.insert(stretch - base);
        std::ptrdiff_t next = 0;
        for (const std::ptrdiff_t place : places) EXPECT_EQ(place, std::exchange(next, next + std::ptrdiff_t(bytes)));
    }
}

// As many chunks as the runtime would open threads for, whoever then works.
TEST_F(Team, WithinAParallelRegion)
{
    const int levels = omp_get_max_active_levels();
    for (int active : {1, 2})
        for (std::int64_t cost : {std::int64_t{0}, plenty}) {
            omp_set_max_active_levels(active);
#pragma omp parallel num_threads(2)
            {
#pragma omp critical(test)
                {
                    int real = 0;
#pragma omp parallel num_threads(4)
#pragma omp single
                    real = omp_get_num_threads();
                    const auto done = chunksOf<Kernels::canFail>(4, 50, cost);
                    EXPECT_TRUE(areParts(done, 50, real)) << real;
                    EXPECT_EQ(workers(done), workersFor(cost, real, processors_));
                }
            }
        }
    omp_set_max_active_levels(levels);
}

TEST_F(Team, FailuresStopNoOtherChunk)
{
    standinThreads = 6;
    for (std::int64_t cost : {std::int64_t{0}, plenty}) {
        std::atomic<int> done{0};
        const auto failing = [&](std::set<int> chunks) {
            return inTeam<Kernels::canFail>(60, cost, [&](const Chunk& chunk) {
                ++done;
                return VormStatus{chunks.contains(chunk.thread) ? StatusSingular : StatusOk};
            });
        };
        EXPECT_EQ(failing({}), StatusOk);
        for (int n = 0; n < 6; ++n) EXPECT_EQ(failing({n}), StatusSingular) << n;
        EXPECT_EQ(failing({0, 1, 2, 3, 4, 5}), StatusSingular);
        EXPECT_EQ(done, 8 * 6);
    }
    // Who tells where it failed gets as much as possible at once, with the same objects left out.
    for (std::int64_t cost : {std::int64_t{0}, plenty})
        for (int threads : {4, 7, 64})
            for (std::set<int> bad : {std::set<int>{}, {0}, {9, 10, 11}, {5, 40, 63}, {63}}) {
                standinThreads = threads;
                const auto objects = [&](bool telling, int& calls) {
                    std::vector<char> done(64);
                    std::atomic<int> called{0};
                    const auto kernel = [&](const Chunk& chunk, int& failed) {
                        ++called;
                        for (failed = chunk.first; failed < chunk.first + chunk.objects; ++failed) {
                            if (bad.contains(failed)) return VormStatus{StatusSingular};
                            ++done[std::size_t(failed)];
                        }
                        return VormStatus{StatusOk};
                    };
                    const auto silent = [&](const Chunk& chunk) {
                        int ignored;
                        return kernel(chunk, ignored);
                    };
                    const VormStatus status = telling ? inTeam<Kernels::canFail>(64, cost, kernel)
                                                      : inTeam<Kernels::canFail>(64, cost, silent);
                    EXPECT_EQ(status, bad.empty() ? StatusOk : StatusSingular);
                    calls = called;
                    return done;
                };
                int inChunks = 0, atOnce = 0;
                EXPECT_EQ(objects(true, atOnce), objects(false, inChunks));
                EXPECT_EQ(inChunks, threads);
                EXPECT_LE(atOnce, workersFor(cost, threads, processors_) + int(bad.size()));
            }
    standinThreads = 6;
    const auto numbered = [](const Chunk& chunk) {
        return VormStatus{chunk.thread == 2 || chunk.thread == 5 ? -chunk.thread : 0};
    };
    EXPECT_EQ(inTeam<Kernels::canFail>(60, 0, numbered), -2);
    standinThreads = 1;
    EXPECT_EQ(inTeam<Kernels::canFail>(60, 0, [](const Chunk&) { return VormStatus{StatusSingular}; }), StatusSingular);
}

}  // namespace
