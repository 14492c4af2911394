// What the bodies for matrices ask of an operand: how it lies, and its rows object by object. A constant fits every
// way.
#pragma once

#include "elementwise/matrix_tiles.hpp"
#include "frame/pin.hpp"

namespace vorm::elementwise {

template <class T>
constexpr std::ptrdiff_t sizeOf = sizeof(T);

template <class T, class Elements>
VORM_INLINE bool hasAdjacentRows(const Elements& x)
{
    return x.column == sizeOf<T>;
}
template <class T>
VORM_INLINE bool hasAdjacentRows(const Constant<T>&)
{
    return true;
}
template <class T, class Elements>
VORM_INLINE bool hasAdjacentColumns(const Elements& x)
{
    return x.row == sizeOf<T>;
}
template <class T>
VORM_INLINE bool hasAdjacentColumns(const Constant<T>&)
{
    return true;
}
template <class T, class Elements>
VORM_INLINE bool hasRowsOf(const Elements& x, std::ptrdiff_t bytes)
{
    return x.row == bytes;
}
template <class T>
VORM_INLINE bool hasRowsOf(const Constant<T>&, std::ptrdiff_t)
{
    return true;
}
template <class T>
VORM_INLINE const Constant<T>& transposed(const Constant<T>& constant)
{
    return constant;
}
template <class X>
constexpr bool isStrided = requires(X x)
{
    x.object, x.p;
};

// Opaque, or a compiler keeps a pointer for each row of each operand, in memory.
template <class Elements>
VORM_INLINE auto opaqueRowsOf(const Elements& elements, int n)
{
    auto rows = rowsOf(elements, n);
    rows.p = opaque(rows.p);
    return rows;
}
template <class T>
VORM_INLINE auto opaqueRowsOf(const Constant<T>& constant, int n)
{
    return rowsOf(constant, n);
}

}  // namespace vorm::elementwise
