// Lines of adjacent elements, told by where each of them begins: at a distance from the one before, or by a table.
// What copies and turns them knows neither shapes nor layouts, and is compiled once for each pair of these.
#pragma once

#include "frame/elements.hpp"

namespace vorm::movement {

template <class Elements>
constexpr bool isList = false;
template <class T>
constexpr bool isList<ListedElements<T>> = true;
template <class Elements>
constexpr bool isTable = false;
template <class T>
constexpr bool isTable<TabledElements<T>> = true;

template <class Elements>
struct ElementInside;
template <template <class> class Elements, class T>
struct ElementInside<Elements<T>> {
    using Type = T;
};
template <class Elements>
using ElementIn = typename ElementInside<Elements>::Type;

template <class T>
struct SpacedLines {
    T* p;
    std::ptrdiff_t step;
    VORM_INLINE T* at(std::ptrdiff_t j) const { return advance(p, j * step); }
    VORM_INLINE SpacedLines from(std::ptrdiff_t j) const { return {at(j), step}; }
    VORM_INLINE SpacedLines ahead(std::ptrdiff_t elements) const { return {p + elements, step}; }
};

template <class T>
struct ListedLines {
    T* const* pp;
    std::ptrdiff_t step, shift;  // from entry to entry, and of each of them
    VORM_INLINE T* at(std::ptrdiff_t j) const { return advance(pointer(entry(pp, j * step)), shift); }
    VORM_INLINE static T* pointer(T* p) { return p; }
    VORM_INLINE ListedLines from(std::ptrdiff_t j) const { return {pp + j * step, step, shift}; }
    VORM_INLINE ListedLines ahead(std::ptrdiff_t elements) const
    {
        return {pp, step, shift + elements * std::ptrdiff_t{sizeof(T)}};
    }
};

// Element (r, c) of all objects, and row r of object n, as lines or as elements one by one.
template <class T>
VORM_INLINE SpacedLines<T> alongObjects(const StridedElements<T>& e, std::ptrdiff_t r, std::ptrdiff_t c)
{
    return {advance(e.p, r * e.row + c * e.column), e.object};
}
template <class T>
VORM_INLINE ListedLines<T> alongObjects(const ListedElements<T>& e, std::ptrdiff_t r, std::ptrdiff_t c)
{
    return {e.pp, e.step, e.shift + r * e.row + c * e.column};
}
template <class T>
VORM_INLINE SpacedLines<T> alongObjects(const TabledElements<T>& e, std::ptrdiff_t r, std::ptrdiff_t c)
{
    return {advance(e.pp[r * e.row + c * e.column], e.shift), e.object};
}
template <class Elements>
VORM_INLINE auto alongRow(const Elements& e, int n, std::ptrdiff_t r)
    -> SpacedLines<std::remove_pointer_t<decltype(e.at(n))>>
{
    return {advance(e.at(n), r * e.row), e.column};
}
template <class T>
VORM_INLINE ListedLines<T> alongRow(const TabledElements<T>& e, int n, std::ptrdiff_t r)
{
    return {e.pp + r * e.row, e.column, e.shift + n * e.object};
}

// The part of an operand that begins with element (r, c) of object n.
template <class T>
VORM_INLINE StridedElements<T> partOf(StridedElements<T> e, int n, std::ptrdiff_t r, std::ptrdiff_t c)
{
    e.p = advance(e.at(n), r * e.row + c * e.column);
    return e;
}
template <class T>
VORM_INLINE ListedElements<T> partOf(ListedElements<T> e, int n, std::ptrdiff_t r, std::ptrdiff_t c)
{
    e.pp += n * e.step;
    e.shift += r * e.row + c * e.column;
    return e;
}
template <class T>
VORM_INLINE TabledElements<T> partOf(TabledElements<T> e, int n, std::ptrdiff_t r, std::ptrdiff_t c)
{
    e.pp += r * e.row + c * e.column;
    e.shift += n * e.object;
    return e;
}

// The same as lines of bytes.
template <class T>
using ByteOf = std::conditional_t<std::is_const_v<T>, const char, char>;
template <class T>
VORM_INLINE SpacedLines<ByteOf<T>> inBytes(const SpacedLines<T>& lines)
{
    return {reinterpret_cast<ByteOf<T>*>(lines.p), lines.step};
}
template <class T>
VORM_INLINE ListedLines<ByteOf<T>> inBytes(const ListedLines<T>& lines)
{
    return {reinterpret_cast<ByteOf<T>* const*>(lines.pp), lines.step, lines.shift};
}

// Copies lines of so many bytes, at least 4.
template <class S, class D>
VORM_HIDDEN void copyLines(const S& src, const D& dst, std::ptrdiff_t bytes, std::ptrdiff_t lines);

// Copies objects of a few rows, of 4 to 48 bytes each, the distances between which are src and dst, one object after
// the other: a line begins each of them.
struct ShortRows {
    std::ptrdiff_t count, bytes, src, dst;
};
constexpr std::ptrdiff_t longestShortRow = 48;
template <class S, class D>
VORM_HIDDEN void copyShortRows(const S& src, const D& dst, const ShortRows& rows, std::ptrdiff_t objects);

// Element x of each source line to line x of the destination: there lie side by side the elements x of all lines.
template <class S, class D>
VORM_HIDDEN void turnLines(const S& src, const D& dst, std::ptrdiff_t length, std::ptrdiff_t lines);

}  // namespace vorm::movement
