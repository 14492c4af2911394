// Transposes in all layouts and types.

#include "movement/transpose.hpp"

#include "frame/minmax.hpp"
#include "movement/move.hpp"
#include "vorcore/vorcore.h"

namespace vorm::movement {

namespace {

// Matrices from this size on are moved in squares of which source and destination fit into half of the largest cache:
// the cache lines that two blocks of a row share are then still there when the next row of blocks comes.
constexpr std::int64_t askedFrom = 1 << 20;  // bytes
constexpr int defaultCache = 1 << 20;        // where the core library cannot tell

std::ptrdiff_t squareEdge(std::ptrdiff_t elementSize)
{
    int cache = 0;
    if (vorGetMaxCacheSizeB(&cache) != VorCoreOk || cache < 1) cache = defaultCache;
    constexpr std::ptrdiff_t smallest = 64;
    std::ptrdiff_t edge = smallest;
    while (16 * edge * edge * elementSize <= cache) edge *= 2;  // four squares of twice the edge
    return edge;
}

template <class S, class D>
VormStatus transpose(const S& src, const D& dst, int rows, int columns, int count)
{
    return moveObjects(src, dst, rows, columns, count);
}
template <class T>
VormStatus transpose(const StridedElements<const T>& src, const StridedElements<T>& dst, int rows, int columns,
                     int count)
{
    return transposeInSquares(src, dst, rows, columns, count);
}

}  // namespace
