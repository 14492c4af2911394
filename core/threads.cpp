// The number of threads a parallel call may use.

#include <sched.h>
#include <unistd.h>

#include <atomic>

#include "vorcore/vorcore.h"

namespace {

// The processors this process may run on; the mask grows until the kernel's fits, since machines
// may have more processors than a cpu_set_t has bits.
int32_t processors()
{
    for (int size = CPU_SETSIZE; size <= 1 << 20; size *= 2) {
        cpu_set_t* const mask = CPU_ALLOC(static_cast<size_t>(size));
        if (!mask) break;
        const size_t bytes = CPU_ALLOC_SIZE(static_cast<size_t>(size));
        const bool known = sched_getaffinity(0, bytes, mask) == 0;
        const int count = known ? CPU_COUNT_S(bytes, mask) : 0;
        CPU_FREE(mask);
        if (count > 0) return count;
    }
    const long online = sysconf(_SC_NPROCESSORS_ONLN);
    return online > 0 ? static_cast<int32_t>(online) : 1;
}

int32_t defaultThreads()
{
    static const int32_t threads = processors();
    return threads;
}

std::atomic<int32_t> chosenThreads{0};  // 0: the default

}  // namespace

extern "C" int32_t ownGetNumThreads(void)
{
    const int32_t chosen = chosenThreads.load(std::memory_order_relaxed);
    return chosen ? chosen : defaultThreads();
}

extern "C" int vorGetNumThreads(int32_t* threads)
{
    if (!threads) return VorCoreNullPointer;
    *threads = ownGetNumThreads();
    return VorCoreOk;
}

extern "C" int vorSetNumThreads(int32_t threads)
{
    if (threads < 0) return VorCoreBadArgument;
    chosenThreads.store(threads, std::memory_order_relaxed);
    return VorCoreOk;
}
