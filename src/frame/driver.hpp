// The drivers: a team that works through an array call in chunks, with the kernels of the serial call.
#pragma once

#include "frame/call.hpp"
#include "frame/team.hpp"

namespace vorm {

// Elements anywhere take about twice as long.
template <class T, class TheTests, class Parts>
VORM_INLINE std::int64_t picosecondsOf(const ArrayCall<T, TheTests, Parts>& call)
{
    const double picoseconds = isContiguous(call) ? call.work.picoseconds : 2 * call.work.picoseconds;
    return static_cast<std::int64_t>(picoseconds < 1e15 ? picoseconds : 1e15);
}

// The work space that each worker of a call needs.
template <class Part>
VORM_INLINE constexpr std::size_t workSpaceOf(const Part&)
{
    return 0;
}
template <class T>
VORM_INLINE constexpr std::size_t workSpaceOf(const WorkSpace<T>& space)
{
    return space.elements * sizeof(T);
}

template <Kernels kernels = Kernels::cannotFail, class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus team(const ArrayCall<T, TheTests, Parts>& call, VormStatus (*kernel)(Argument...))
{
    const std::size_t workSpace =
        call.parts.with([](const auto&... part) VORM_INLINE_LAMBDA { return (... + workSpaceOf(part)); });
    const auto work = [&call, kernel](const Chunk& chunk) {
        return call.parts.with([&](const auto&... part)
                                   VORM_INLINE_LAMBDA { return withArguments(kernel, part.chunk(chunk)...); });
    };
    return inTeam<kernels>(call.count, picosecondsOf(call), work, workSpace);
}
template <Kernels kernels = Kernels::cannotFail, class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus team(const ArrayCall<T, TheTests, Parts>& call, VormStatus (*kernel)(Argument...),
                            VormStatus (*kernelS2)(Argument...))
{
    return team<kernels>(call, isContiguous(call) ? kernel : kernelS2);
}

// Kernels that fail with one status only and tell where: small chunks then cost nothing (team.hpp).
template <VormStatus failure, class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus team(const ArrayCall<T, TheTests, Parts>& call, VormStatus (*kernel)(Argument...))
{
    return inTeam<Kernels::canFail>(call.count, picosecondsOf(call), [&call, kernel](const Chunk& chunk, int& failed) {
        const Chunk asking{chunk.first, Count{chunk.objects}.asking().value, chunk.thread, chunk.scratch};
        const int place = call.parts.with(
            [&](const auto&... part) VORM_INLINE_LAMBDA { return withArguments(kernel, part.chunk(asking)...); });
        failed = chunk.first + place - 1;
        return place ? failure : VormStatus{StatusOk};
    });
}
template <VormStatus failure, class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus team(const ArrayCall<T, TheTests, Parts>& call, VormStatus (*kernel)(Argument...),
                            VormStatus (*kernelS2)(Argument...))
{
    return team<failure>(call, isContiguous(call) ? kernel : kernelS2);
}

}  // namespace vorm
