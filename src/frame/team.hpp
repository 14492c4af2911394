// The one shape of driver: a fork-join team that splits count objects in contiguous chunks. Nothing
// else in the library forks.
#pragma once

#include <omp.h>

#include <algorithm>

#include "frame/arguments.hpp"
#include "frame/scratch.hpp"
#include "vorcore/vorcore.h"

namespace vorm {


enum class Kernels { cannotFail, canFail };

// Calls work(chunk) for the whole range, or once on every thread of a team for its part of it. A
// failing chunk stops no other one; the first failure to be reported is the status of the call.
// With scratchPerThread, each thread of a team gets that many bytes for the time of the call.
template <Kernels kernels, class Work>
VORM_INLINE VormStatus inTeam(int count, std::int64_t, const Work& work, std::size_t scratchPerThread)
{
    const int threads = ownGetNumThreads();
    if (threads <= 1 || count < threads) return work(Chunk{0, count, 0, nullptr});

    VormStatus sharedStatus = StatusOk;
    const Scratch scratch(scratchPerThread * static_cast<std::size_t>(threads));
    // The number may have changed meanwhile; there is scratch for the first answer only.
    const int asked = std::max(1, static_cast<int>(ownGetNumThreads()));
    const int wanted = scratchPerThread ? std::min(asked, threads) : asked;

    int chunkBase, chunkExtra;
#pragma omp parallel num_threads(wanted)
    {
#pragma omp master
        {
            const int teamSize = omp_get_num_threads();
            chunkBase = count / teamSize;
            chunkExtra = count % teamSize;
        }
#pragma omp barrier
        const int t = omp_get_thread_num();
        const bool larger = t < chunkExtra;  // the first chunkExtra threads take one object more
        const Chunk chunk{
            larger ? t * (chunkBase + 1) : chunkExtra * (chunkBase + 1) + (t - chunkExtra) * chunkBase,
            larger ? chunkBase + 1 : chunkBase, t,
            scratchPerThread ? scratch.bytes() + static_cast<std::size_t>(t) * scratchPerThread : nullptr};
        // A team may turn out larger than asked for by the count.
        const VormStatus status = chunk.objects > 0 ? work(chunk) : StatusOk;
        if constexpr (kernels == Kernels::canFail) {
#pragma omp critical
            if (sharedStatus == StatusOk) sharedStatus = status;
        }
    }
    return sharedStatus;
}

template <Kernels kernels, class Work>
VORM_INLINE VormStatus inTeam(int count, const Work& work, std::size_t scratchPerThread = 0)
{
    return inTeam<kernels>(count, 0, work, scratchPerThread);
}

}  // namespace vorm
