// Asks for the number of threads, cuts a call into chunks and works through them. Nothing else in the library
// forks.

#include "frame/team.hpp"

#include <omp.h>
#include <unistd.h>

#include <algorithm>

#include "frame/scratch.hpp"
#include "vorcore/vorcore.h"

namespace vorm {

namespace {

// Tests of drivers have a library that forks for every call, with a thread for each chunk.
#ifdef VORM_FORK_ALWAYS
constexpr bool forksAlways = true;
#else
constexpr bool forksAlways = false;
#endif

// How count objects are cut: the first extra ones of the chunks take an object more. There may be more chunks
// than objects.
struct Cut {
    Cut(int count, int chunks) : base(count / chunks), extra(count % chunks) {}

    int firstOf(int chunk) const { return chunk * base + std::min(chunk, extra); }
    int chunkOf(int object) const
    {
        const int inLarger = extra * (base + 1);
        return object < inLarger ? object / (base + 1) : extra + (object - inLarger) / base;
    }

    int base, extra;
};

// LLVM's runtime (14, for one) ends the process where it begins and may not write to /dev/shm, as in some
// sandboxes. There everything runs on one thread.
bool runtimeWorks()
{
#ifdef VORM_HAVE_KMPC_MALLOC
    return access("/dev/shm", W_OK | X_OK) == 0;
#else
    return true;
#endif
}

// The size of a team that the runtime would open now for so many threads.
int allowed(int threads)
{
    if (omp_get_active_level() >= omp_get_max_active_levels()) return 1;
    return std::min(threads, omp_get_thread_limit());
}

// The chunks from begin up to end in order; the first failure.
VormStatus runChunks(const TeamCall& call, const Cut& cut, int begin, int end, char* scratch)
{
    VormStatus first = StatusOk;
    for (int n = begin; n < end; ++n) {
        const int behind = call.tellsWhere ? end : n + 1;
        const Chunk chunk{cut.firstOf(n), cut.firstOf(behind) - cut.firstOf(n), n, scratch};
        if (chunk.objects == 0) break;
        int failed = 0;
        const VormStatus status = call.work(call.state, chunk, failed);
        if (first == StatusOk) first = status;
        n = call.tellsWhere && status != StatusOk ? cut.chunkOf(failed) : behind - 1;
    }
    return first;
}

VormStatus runWhole(const TeamCall& call, char* scratch)
{
    int failed;
    return call.work(call.state, {0, call.count, 0, scratch}, failed);
}

// A call that nobody else works for. The runtime is not asked unless an object fails: then the cut tells where to go
// on.
VormStatus runAlone(const TeamCall& call, int asked)
{
    int failed = 0;
    const VormStatus status = call.work(call.state, {0, call.count, 0, nullptr}, failed);
    if (status != StatusOk && runtimeWorks()) {
        const int chunks = allowed(asked);
        const Cut cut(call.count, chunks);
        runChunks(call, cut, cut.chunkOf(failed) + 1, chunks, nullptr);
    }
    return status;
}

}  // namespace

VormStatus runInTeam(const TeamCall& call)
{
    const int threads = ownGetNumThreads();
    if (threads <= 1 || call.count < threads) return runWhole(call, nullptr);

    // How the objects are cut can be seen where one fails: so it depends on the number of threads, which may
    // have changed meanwhile, and not on who then works. Where nothing can fail each worker has one chunk.
    const int asked = std::max(1, static_cast<int>(ownGetNumThreads()));
    const bool canFail = call.kernels == Kernels::canFail;
    const bool pays = forksAlways || call.picoseconds >= 2 * leastPicosecondsPerWorker;
    if (!pays && call.scratchPerWorker == 0 && (call.tellsWhere || !canFail)) return runAlone(call, asked);
    if (!runtimeWorks()) return runWhole(call, nullptr);

    const int most = pays || canFail ? allowed(asked) : 1;
    const int processors = forksAlways ? most : pays ? omp_get_num_procs() : 1;
    const int workers = workersFor(forksAlways ? INT64_MAX : call.picoseconds, most, processors);
    const int chunks = canFail ? most : workers;

    const Scratch scratch(call.scratchPerWorker * static_cast<std::size_t>(workers));
    if (chunks == 1) return runWhole(call, scratch.bytes());
    const Cut cut(call.count, chunks);
    if (workers == 1) return runChunks(call, cut, 0, chunks, scratch.bytes());

    VormStatus sharedStatus = StatusOk;
#pragma omp parallel num_threads(workers)
    {
        // The runtime may give fewer threads than it was asked for.
        const int worker = omp_get_thread_num();
        const auto begin = [&](std::int64_t w) { return static_cast<int>(w * chunks / omp_get_num_threads()); };
        const VormStatus status = runChunks(call, cut, begin(worker), begin(worker + 1),
                                            scratch.bytes() + static_cast<std::size_t>(worker) * call.scratchPerWorker);
        if (status != StatusOk) {
#pragma omp critical
            if (sharedStatus == StatusOk) sharedStatus = status;
        }
    }
    return sharedStatus;
}

}  // namespace vorm
