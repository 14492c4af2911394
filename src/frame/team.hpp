// The one shape of driver: a fork-join team that works through count objects in contiguous chunks.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/arguments.hpp"

namespace vorm {

enum class Kernels { cannotFail, canFail };

// A call as the team sees it. work(state, chunk, failed) runs the kernel on one chunk.
struct TeamCall {
    VormStatus (*work)(const void* state, const Chunk& chunk, int& failed);
    const void* state;
    int count;
    Kernels kernels;
    bool tellsWhere;
    std::int64_t picoseconds;
    std::size_t scratchPerWorker;
};

// One worker more has to save at least so much work; a fork and join costs a tenth of it where the threads are
// awake, about half of it where they have to be woken.
constexpr std::int64_t leastPicosecondsPerWorker = 20'000'000;

// How many threads work through the chunks of a call.
constexpr int workersFor(std::int64_t picoseconds, int chunks, int processors)
{
    const std::int64_t paid = picoseconds / leastPicosecondsPerWorker;
    const int most = chunks < processors ? chunks : processors;
    return paid <= 1 || most <= 1 ? 1 : paid < most ? static_cast<int>(paid) : most;
}

VORM_LAYER VormStatus runInTeam(const TeamCall& call);

// Calls work(chunk) for the whole range, or for its chunks on a team. A failing chunk stops no other one; the
// first failure to be reported is the status of the call. picoseconds is about what the whole call takes on one
// thread: it decides how many threads work, never what comes of it. With scratchPerThread, each of them gets
// that many bytes for the time of the call.
//
// work may also be work(chunk, failed) and set failed to the number of the object where it stopped, counted in
// the whole call. It then gets the chunks of a worker in one piece, and what is behind the chunk of a failing
// object in another one: many small chunks cost nothing as long as nothing fails.
template <Kernels kernels, class Work>
VORM_INLINE VormStatus inTeam(int count, std::int64_t picoseconds, const Work& work, std::size_t scratchPerThread = 0)
{
    constexpr bool tellsWhere = requires(const Chunk& chunk, int& failed) { work(chunk, failed); };
    const auto call = [](const void* state, const Chunk& chunk, [[maybe_unused]] int& failed) {
        if constexpr (tellsWhere)
            return (*static_cast<const Work*>(state))(chunk, failed);
        else
            return (*static_cast<const Work*>(state))(chunk);
    };
    return runInTeam({call, &work, count, kernels, tellsWhere, picoseconds, scratchPerThread});
}

}  // namespace vorm
