// A process that has worked in a team and then forks: its child must not wait for threads it does not have.

#include <gtest/gtest.h>
#include <omp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <set>

#include "frame/team.hpp"
#include "vorcore/vorcore.h"

using namespace vorm;

namespace {

// How many threads work through a call that pays on all of them; 0 if an object is missed.
int threadsOfCall()
{
    std::atomic<int> objects{0};
    std::atomic<unsigned> threads{0};
    inTeam<Kernels::canFail>(1000, INT64_MAX, [&](const Chunk& chunk) {
        objects += chunk.objects;
        threads |= 1u << omp_get_thread_num();
        return VormStatus{StatusOk};
    });
    return objects == 1000 ? __builtin_popcount(threads) : 0;
}

// What a child of fork answers; -1 where it does not within some seconds.
template <class Question>
int inChild(const Question& question)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(20);
        _exit(question());
    }
    int result = 0;
    return waitpid(child, &result, 0) == child && WIFEXITED(result) ? WEXITSTATUS(result) : -1;
}

TEST(Fork, ChildWorksOnOneThread)
{
    const int threads = std::min(2, omp_get_num_procs());
    vorSetNumThreads(2);
    ASSERT_EQ(threadsOfCall(), threads);
    EXPECT_EQ(inChild(threadsOfCall), 1);
    EXPECT_EQ(inChild([] { return inChild(threadsOfCall); }), 1);
    EXPECT_EQ(threadsOfCall(), threads);
    vorSetNumThreads(0);
}

#ifdef VORM_HAVE_KMPC_MALLOC  // LLVM's runtime begins anew in the child
TEST(Fork, ChildWorksInATeamWhereItSetsANumber)
{
    vorSetNumThreads(2);
    threadsOfCall();
    EXPECT_EQ(inChild([] { return vorSetNumThreads(2), threadsOfCall(); }), std::min(2, omp_get_num_procs()));
    vorSetNumThreads(0);
}
#endif

}  // namespace
