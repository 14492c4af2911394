// Identities of any shape, for all layouts and types.

#include "movement/identity.hpp"

#include "frame/minmax.hpp"
#include "frame/shuffles.hpp"
#include "frame/unrolled.hpp"
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

// Small squares whose rows lie side by side, from registers that hold them: as many as fill whole registers.
template <int order, class T>
struct Identity {
    static constexpr int size = order * order, together = size % narrow<T> == 0 ? 1 : narrow<T>;
    T elements[together * size + narrow<T>] = {};  // a register may begin with any of them
    constexpr Identity()
    {
        for (int n = 0; n < together; ++n)
            for (int i = 0; i < order; ++i) elements[n * size + i * order + i] = 1;
    }
};
template <int order, class T>
constexpr Identity<order, T> identityOf;

template <int n, class T>
VORM_INLINE void storeElements(const T* from, T* to)
{
    constexpr int whole = n / narrow<T>, rest = n % narrow<T>;
    unrolled<whole>([&](auto k) VORM_INLINE_LAMBDA { Lanes<T>::load(from + k * narrow<T>).store(to + k * narrow<T>); });
    if constexpr (rest > 0) storeFirst(to + whole * narrow<T>, Lanes<T>::load(from + whole * narrow<T>), rest);
}
template <int order, class T, class D>
void loadSquares(const D dst, int count)
{
    using Squares = Identity<order, T>;
    constexpr const T* from = identityOf<order, T>.elements;
    int n = 0;
    if constexpr (Squares::together > 1 && std::is_same_v<D, StridedElements<T>>)
        if (dst.row == order * std::ptrdiff_t{sizeof(T)} && dst.object == Squares::size * std::ptrdiff_t{sizeof(T)})
            for (; n <= count - Squares::together; n += Squares::together)
                storeElements<Squares::together * Squares::size>(from, dst.at(n));
    if (dst.row == order * std::ptrdiff_t{sizeof(T)})
        for (; n < count; ++n) storeElements<Squares::size>(from, dst.at(n));
    else
        for (; n < count; ++n)
            unrolled<order>([&, to = dst.at(n)](auto r) VORM_INLINE_LAMBDA {
                storeElements<order>(from + r * order, advance(to, r * dst.row));
            });
}
template <class T, class D>
VORM_INLINE bool loadSmallSquares(const D& dst, int order, int count)
{
    switch (order) {
    case 3: return loadSquares<3, T>(dst, count), true;
    case 4: return loadSquares<4, T>(dst, count), true;
    case 5: return loadSquares<5, T>(dst, count), true;
    case 6: return loadSquares<6, T>(dst, count), true;
    default: return false;
    }
}

template <class T, class D>
VormStatus load(const D& dst, int rows, int columns, int count)
{
    constexpr std::ptrdiff_t one = sizeof(T);
    if constexpr (!isTable<D>)
        if (rows == columns && dst.column == one && loadSmallSquares<T>(dst, rows, count)) return StatusOk;
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

template <class D>
VormStatus loadIdentities(const D& dst, int rows, int columns, int count)
{
    return load<ElementIn<D>>(dst, rows, columns, count);
}

#define VORM_LOAD_IDENTITIES(Elements)                                         \
    template VormStatus loadIdentities(const Elements<float>&, int, int, int); \
    template VormStatus loadIdentities(const Elements<double>&, int, int, int);
VORM_LOAD_IDENTITIES(StridedElements)
VORM_LOAD_IDENTITIES(ListedElements)
VORM_LOAD_IDENTITIES(TabledElements)
#undef VORM_LOAD_IDENTITIES

}  // namespace vorm::movement
