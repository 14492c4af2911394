// The number of threads a parallel call may use.

#include <pthread.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>

#include "default_threads.hpp"
#include "processors.hpp"
#include "vorcore/vorcore.h"

namespace {

// Each 0 where there is none: the next one holds then.
thread_local int32_t threadsOfThread __attribute__((tls_model("initial-exec"))) = 0;  // never allocated late
std::atomic<int32_t> threadsOfProcess{0};
std::atomic<int32_t> threadsByDefault{0};

int32_t askMachine()
{
    const int32_t inMask = vorcore::processorsInMask(), inQuota = vorcore::processorsInQuota("");
    return vorcore::defaultThreads(std::getenv("VORM_NUM_THREADS"), std::getenv("OMP_NUM_THREADS"),
                                   inQuota ? std::min(inMask, inQuota) : inMask);
}

// Asked without a lock, which a fork could leave locked in the child. The first answer stands.
int32_t defaultNumber()
{
    int32_t known = threadsByDefault.load(std::memory_order_relaxed);
    if (known) return known;
    const int32_t answer = askMachine();
    return threadsByDefault.compare_exchange_strong(known, answer, std::memory_order_relaxed) ? answer : known;
}

// A child of fork has the parent's memory but none of its threads, and not every OpenMP runtime sees that.
void startOfChild()
{
    threadsByDefault.store(1, std::memory_order_relaxed);
    threadsOfProcess.store(0, std::memory_order_relaxed);
    threadsOfThread = 0;
}

__attribute__((constructor)) void watchForks() { pthread_atfork(nullptr, nullptr, startOfChild); }

}  // namespace

extern "C" int32_t ownGetNumThreads(void)
{
    if (threadsOfThread) return threadsOfThread;
    const int32_t ofProcess = threadsOfProcess.load(std::memory_order_relaxed);
    return ofProcess ? ofProcess : defaultNumber();
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
    threadsOfProcess.store(threads, std::memory_order_relaxed);
    return VorCoreOk;
}

extern "C" int vorSetNumThreadsLocal(int32_t threads)
{
    if (threads < 0) return VorCoreBadArgument;
    threadsOfThread = threads;
    return VorCoreOk;
}
