// Identities of any shape, for all layouts and types.

#include "movement/identity.hpp"
#include "frame/minmax.hpp"
#include "movement/lines.hpp"
#include "movement/move.hpp"

namespace vorm::movement {

namespace {

// A source that holds an identity, or a part of one, without being as large: all its rows are windows of one stretch
// of zeros with a single 1 in the middle, each of which begins an element before that of the row above.
constexpr int edge = 64;
template <class T>
struct Window {
    T elements[2 * edge] = {};
    constexpr Window() { elements[edge] = 1; }
};
template <class T>
constexpr Window<T> window;

template <class T, class D>
VormStatus load(const D& dst, int rows, int columns, int count)
{
    constexpr std::ptrdiff_t one = sizeof(T);
    constexpr int packed = 64;
    if (rows * std::int64_t{columns} <= packed) {
        T identity[packed];
        for (int i = 0; i < rows * columns; ++i) identity[i] = T(i / columns == i % columns);
        return moveObjects(StridedElements<const T>{identity, 0, columns * one, one}, dst, rows, columns, count);
    }
    const T* const middle = window<T>.elements + edge;
    for (int r = 0; r < rows; r += edge)
        for (int c = 0; c < columns; c += edge) {
            // Beside the diagonal all rows are the zeros before the 1.
            const bool onDiagonal = r == c;
            const StridedElements<const T> part{onDiagonal ? middle : middle - edge, 0, onDiagonal ? -one : 0, one};
            moveObjects(part, partOf(dst, 0, r, c), min(rows - r, edge), min(columns - c, edge), count);
        }
    return StatusOk;
}

}  // namespace

template <>
VormStatus loadIdentities(const StridedElements<float>& dst, int rows, int columns, int count)
{
    return load<float>(dst, rows, columns, count);
}
template <>
VormStatus loadIdentities(const StridedElements<double>& dst, int rows, int columns, int count)
{
    return load<double>(dst, rows, columns, count);
}
template <>
VormStatus loadIdentities(const ListedElements<float>& dst, int rows, int columns, int count)
{
    return load<float>(dst, rows, columns, count);
}
template <>
VormStatus loadIdentities(const ListedElements<double>& dst, int rows, int columns, int count)
{
    return load<double>(dst, rows, columns, count);
}
template <>
VormStatus loadIdentities(const TabledElements<float>& dst, int rows, int columns, int count)
{
    return load<float>(dst, rows, columns, count);
}
template <>
VormStatus loadIdentities(const TabledElements<double>& dst, int rows, int columns, int count)
{
    return load<double>(dst, rows, columns, count);
}

}  // namespace vorm::movement
