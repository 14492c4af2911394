// Transposes in all layouts and types.

#include "movement/transpose.hpp"

#include "frame/minmax.hpp"
#include "movement/lines.hpp"
#include "movement/move.hpp"
#include "vorcore/vorcore.h"

namespace vorm::movement {

namespace {

// Matrices from this size on are moved in squares, of which source and destination together take half of the largest
// cache: the lines that two rows of blocks share are then still there when the second row comes.
constexpr std::int64_t inSquaresFrom = 1 << 20;  // bytes
constexpr int defaultCache = 1 << 20;            // where the core library cannot tell

int squareEdge(std::int64_t elementSize)
{
    int cache = 0;
    if (vorGetMaxCacheSizeB(&cache) != VorCoreOk || cache < 1) cache = defaultCache;
    std::int64_t edge = 64;
    while (2 * elementSize * (2 * edge) * (2 * edge) <= cache / 2) edge *= 2;
    return static_cast<int>(edge);
}

}  // namespace

template <class S, class D>
VormStatus transposeObjects(const S& src, const D& dst, int rows, int columns, int count)
{
    constexpr std::int64_t elementSize = sizeof(ElementIn<D>);
    if (isTable<S> || rows * std::int64_t{columns} * elementSize < inSquaresFrom)
        return moveObjects(src, dst, rows, columns, count);
    const int edge = squareEdge(elementSize);
    for (int n = 0; n < count; ++n)
        for (std::int64_t r = 0; r < rows; r += edge)
            for (std::int64_t c = 0; c < columns; c += edge)
                moveObjects(partOf(src, n, r, c), partOf(dst, n, r, c),
                            static_cast<int>(min<std::int64_t>(rows - r, edge)),
                            static_cast<int>(min<std::int64_t>(columns - c, edge)), 1);
    return StatusOk;
}

#define VORM_TRANSPOSE(Elements)                                                                               \
    template VormStatus transposeObjects(const Elements<const float>&, const Elements<float>&, int, int, int); \
    template VormStatus transposeObjects(const Elements<const double>&, const Elements<double>&, int, int, int);
VORM_TRANSPOSE(StridedElements)
VORM_TRANSPOSE(ListedElements)
VORM_TRANSPOSE(TabledElements)
#undef VORM_TRANSPOSE

}  // namespace vorm::movement
