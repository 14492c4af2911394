// Which elements of two operands lie side by side decides how they are moved: along the same index in both, as lines
// that are copied; along different ones, as lines that are turned in registers; one by one otherwise.
#pragma once

#include <cstring>

#include "frame/minmax.hpp"
#include "movement/lines.hpp"
#include "movement/move.hpp"
#include "movement/turn_small.hpp"

namespace vorm::movement {

// What is to be moved. Counts of elements, which may be those of many rows, have 64 bits.
struct Extents {
    std::ptrdiff_t rows, columns, count;
};

// Along which index the elements of an operand lie side by side.
template <class T, class Elements>
VORM_INLINE bool byObjects(const Elements& e)
{
    if constexpr (isList<Elements>)
        return false;
    else
        return e.object == std::ptrdiff_t{sizeof(T)};
}
template <class T, class Elements>
VORM_INLINE bool byColumns(const Elements& e)
{
    return !isTable<Elements> && e.column == std::ptrdiff_t{sizeof(T)};
}
template <class T, class Elements>
VORM_INLINE bool byRows(const Elements& e)
{
    return byColumns<T>(transposed(e));
}

// So many objects at a time that what is read and written of them stays in the first cache, and each of their rows is
// done for all of them before the next one.
constexpr std::ptrdiff_t objectsAtOnce = 64;
template <class Body>
VORM_INLINE void objectByObject(const Extents& all, const Body& body)
{
    for (std::ptrdiff_t n = 0; n < all.count; n += objectsAtOnce) body(n, min(objectsAtOnce, all.count - n));
}

// Both along columns.
template <class T, class S, class D>
VORM_INLINE void moveRows(const S& src, const D& dst, const Extents& all)
{
    const std::ptrdiff_t bytes = all.columns * std::ptrdiff_t{sizeof(T)};
    if (all.rows > all.count) {
        for (int n = 0; n < all.count; ++n)
            copyLines(inBytes(alongRow(transposed(src), n, 0)), inBytes(alongRow(transposed(dst), n, 0)), bytes,
                      all.rows);
    } else if (all.rows == 1 && all.count == 1) {
        std::memcpy(dst.at(0), src.at(0), static_cast<std::size_t>(bytes));
    } else if (all.rows == 1) {
        copyLines(inBytes(alongObjects(src, 0, 0)), inBytes(alongObjects(dst, 0, 0)), bytes, all.count);
    } else if (all.rows <= 8 && bytes <= longestShortRow) {
        copyShortRows(inBytes(alongObjects(src, 0, 0)), inBytes(alongObjects(dst, 0, 0)),
                      {all.rows, bytes, src.row, dst.row}, all.count);
    } else {
        objectByObject(all, [&](std::ptrdiff_t n, std::ptrdiff_t some) VORM_INLINE_LAMBDA {
            for (std::ptrdiff_t r = 0; r < all.rows; ++r)
                copyLines(inBytes(alongObjects(src, r, 0).from(n)), inBytes(alongObjects(dst, r, 0).from(n)), bytes,
                          some);
        });
    }
}

// Both along objects.
template <class T, class S, class D>
VORM_INLINE void movePlanes(const S& src, const D& dst, const Extents& all)
{
    for (std::ptrdiff_t r = 0; r < all.rows; ++r)
        copyLines(inBytes(alongRow(src, 0, r)), inBytes(alongRow(dst, 0, r)), all.count * std::ptrdiff_t{sizeof(T)},
                  all.columns);
}

// The source along columns, the destination along objects; and the other way round.
template <class S, class D>
VORM_INLINE void moveToPlanes(const S& src, const D& dst, const Extents& all)
{
    if (all.rows == 1) return turnLines(alongObjects(src, 0, 0), alongRow(dst, 0, 0), all.columns, all.count);
    objectByObject(all, [&](std::ptrdiff_t n, std::ptrdiff_t some) VORM_INLINE_LAMBDA {
        for (std::ptrdiff_t r = 0; r < all.rows; ++r)
            turnLines(alongObjects(src, r, 0).from(n), alongRow(dst, 0, r).ahead(n), all.columns, some);
    });
}
template <class S, class D>
VORM_INLINE void moveFromPlanes(const S& src, const D& dst, const Extents& all)
{
    if (all.rows == 1) return turnLines(alongRow(src, 0, 0), alongObjects(dst, 0, 0), all.count, all.columns);
    objectByObject(all, [&](std::ptrdiff_t n, std::ptrdiff_t some) VORM_INLINE_LAMBDA {
        for (std::ptrdiff_t r = 0; r < all.rows; ++r)
            turnLines(alongRow(src, 0, r).ahead(n), alongObjects(dst, r, 0).from(n), some, all.columns);
    });
}

// The source along columns, the destination along rows.
template <class T, class S, class D>
VORM_INLINE void moveTurned(const S& src, const D& dst, const Extents& all)
{
    if (all.rows == all.columns && turnSmallSquares<T>(src, dst, all.rows, static_cast<int>(all.count))) return;
    for (int n = 0; n < all.count; ++n)
        turnLines(alongRow(transposed(src), n, 0), alongRow(dst, n, 0), all.columns, all.rows);
}

// Elements anywhere: along objects where there are several. What it is told comes by value, so that who calls it can
// hold that in registers.
template <class T, class S, class D>
[[gnu::noinline]] void moveElements(const S src, const D dst, const Extents all)
{
    const auto each = [](const auto& from, const auto& to, std::ptrdiff_t elements) VORM_INLINE_LAMBDA {
        for (std::ptrdiff_t i = 0; i < elements; ++i) elementAt(to.at(i), 0) = elementAt(from.at(i), 0);
    };
    if (all.count < 4) {
        for (int n = 0; n < all.count; ++n)
            for (std::ptrdiff_t r = 0; r < all.rows; ++r) each(alongRow(src, n, r), alongRow(dst, n, r), all.columns);
        return;
    }
    objectByObject(all, [&](std::ptrdiff_t n, std::ptrdiff_t some) VORM_INLINE_LAMBDA {
        for (std::ptrdiff_t r = 0; r < all.rows; ++r)
            for (std::ptrdiff_t c = 0; c < all.columns; ++c)
                each(alongObjects(src, r, c).from(n), alongObjects(dst, r, c).from(n), some);
    });
}

// Whether rows follow one another as their elements do, and objects as rows.
template <class S, class D>
VORM_INLINE bool rowsFollow(const S& src, const D& dst, std::ptrdiff_t columns)
{
    return src.row == columns * src.column && dst.row == columns * dst.column;
}
template <class S, class D>
VORM_INLINE bool objectsFollow(const S& src, const D& dst, std::ptrdiff_t columns)
{
    return src.object == columns * src.column && dst.object == columns * dst.column;
}

// Does what it can do, and says whether it could.
template <class T, class S, class D>
VORM_INLINE bool moveByKind(const S& src, const D& dst, const Extents& all)
{
    if constexpr (!isTable<S> && !isTable<D>)
        if (byColumns<T>(src) && byColumns<T>(dst)) return moveRows<T>(src, dst, all), true;
    if constexpr (!isList<S> && !isList<D>)
        if (byObjects<T>(src) && byObjects<T>(dst)) return movePlanes<T>(src, dst, all), true;
    if constexpr (!isTable<S> && !isList<D>)
        if (byColumns<T>(src) && byObjects<T>(dst)) return moveToPlanes(src, dst, all), true;
    if constexpr (!isList<S> && !isTable<D>)
        if (byObjects<T>(src) && byColumns<T>(dst)) return moveFromPlanes(src, dst, all), true;
    return false;
}

template <class T, class S, class D>
VORM_INLINE void moveAll(S src, D dst, Extents all)
{
    const auto exchange = [&]() VORM_INLINE_LAMBDA {
        src = transposed(src), dst = transposed(dst);
        std::swap(all.rows, all.columns);
    };
    if (all.columns == 1 || (all.rows > 1 && rowsFollow(transposed(src), transposed(dst), all.rows))) exchange();
    if (all.rows > 1 && rowsFollow(src, dst, all.columns)) all.columns *= all.rows, all.rows = 1;
    if constexpr (!isList<S> && !isTable<S> && !isList<D> && !isTable<D>)
        if (all.rows == 1) {
            if (all.columns == 1) src.column = src.object, dst.column = dst.object;
            if (objectsFollow(src, dst, all.columns)) all.columns *= all.count, all.count = 1;
        }
    if (moveByKind<T>(src, dst, all)) return;
    if constexpr (!isTable<S> && !isTable<D>) {
        if (byColumns<T>(src) && byRows<T>(dst)) return moveTurned<T>(src, dst, all);
        if (byRows<T>(src) && byColumns<T>(dst)) return exchange(), moveTurned<T>(src, dst, all);
    }
    if (all.rows > 1) {
        exchange();
        if (moveByKind<T>(src, dst, all)) return;
        exchange();
    }
    moveElements<T>(src, dst, all);
}

template <class S, class D>
VormStatus moveObjects(const S& src, const D& dst, int rows, int columns, int count)
{
    moveAll<ElementIn<D>>(src, dst, {rows, columns, count});
    return StatusOk;
}

// All pairs of layouts.
#define VORM_MOVE_OBJECTS(S, D, T) template VormStatus moveObjects(const S<const T>&, const D<T>&, int, int, int);
#define VORM_MOVE_ALL_OBJECTS(T)                           \
    VORM_MOVE_OBJECTS(StridedElements, StridedElements, T) \
    VORM_MOVE_OBJECTS(StridedElements, TabledElements, T)  \
    VORM_MOVE_OBJECTS(StridedElements, ListedElements, T)  \
    VORM_MOVE_OBJECTS(TabledElements, StridedElements, T)  \
    VORM_MOVE_OBJECTS(TabledElements, TabledElements, T)   \
    VORM_MOVE_OBJECTS(TabledElements, ListedElements, T)   \
    VORM_MOVE_OBJECTS(ListedElements, StridedElements, T)  \
    VORM_MOVE_OBJECTS(ListedElements, TabledElements, T)   \
    VORM_MOVE_OBJECTS(ListedElements, ListedElements, T)

}  // namespace vorm::movement
