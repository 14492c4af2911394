// Lines turned in registers, for both types.

#include "frame/object_lanes.hpp"
#include "movement/lines.hpp"

namespace vorm::movement {

namespace {

// As many elements as a cache line has, so that each line of the destination, or of the source, is touched once.
template <class T>
constexpr int cacheLine = 64 / int{sizeof(T)};
// Blocks of lines that are long both ways: so many elements each way, of both operands, stay in the first cache.
template <class T>
constexpr std::ptrdiff_t blockEdge = 256 / sizeof(T);

template <class L, class T>
struct StoredAt {
    T* p;
    VORM_INLINE void operator=(L a) const { a.store(p); }
};

// Up to some of the elements of as many source lines as L has lanes, from element x and line y on.
template <class L, class T, class S, class D, class N>
VORM_INLINE void turnIn(const S& src, const D& dst, std::ptrdiff_t x, std::ptrdiff_t y, N n)
{
    const T* from[L::width];
    for (int l = 0; l < L::width; ++l) from[l] = src.at(y + l) + x;
    loadRows(
        from, [&](int i) VORM_INLINE_LAMBDA { return StoredAt<L, T>{dst.at(x + i) + y}; }, n);
}
// Up to some source lines, and as many of their elements as L has lanes.
template <class L, class T, class S, class D, class N>
VORM_INLINE void turnOut(const S& src, const D& dst, std::ptrdiff_t x, std::ptrdiff_t y, N n)
{
    T* to[L::width];
    for (int l = 0; l < L::width; ++l) to[l] = dst.at(x + l) + y;
    storeRows(
        to, [&](int i) VORM_INLINE_LAMBDA { return L::load(src.at(y + i) + x); }, n);
}

// The same for any number of elements, or of lines, n: some at a time, and each time for some registers of the others.
template <class T, class Turn>
VORM_INLINE void someAtATime(std::ptrdiff_t n, const Turn& turn)
{
    constexpr int some = narrow<T>;
    std::ptrdiff_t i = 0;
    for (; i + some <= n; i += some) turn(i, constant<some>);
    if constexpr (some == 4)
        if (i + 2 <= n) turn(i, constant<2>), i += 2;
    if (i < n) turn(i, constant<1>);
}

// What is left over both ways.
template <class T, class S, class D>
VORM_INLINE void turnCorner(const S& src, const D& dst, std::ptrdiff_t x, std::ptrdiff_t length, std::ptrdiff_t y,
                            std::ptrdiff_t lines)
{
    for (std::ptrdiff_t j = y; j < lines; ++j)
        for (std::ptrdiff_t i = x; i < length; ++i) entry(dst.at(i), j) = T{entry(src.at(j), i)};
}

// Few elements in many lines: along the lines of the destination.
template <class T, class S, class D>
VORM_INLINE void turnManyLines(const S& src, const D& dst, std::ptrdiff_t length, std::ptrdiff_t lines)
{
    using L = Wide<T>;
    std::ptrdiff_t x = 0, y = 0;
    for (; y + cacheLine<T> <= lines; y += cacheLine<T>)
        someAtATime<T>(length, [&](std::ptrdiff_t i, auto n) VORM_INLINE_LAMBDA {
#pragma GCC unroll 1
            for (int k = 0; k < cacheLine<T>; k += L::width) turnIn<L, T>(src, dst, i, y + k, n);
        });
    for (; y + narrow<T> <= lines; y += narrow<T>)
        someAtATime<T>(length,
                       [&](std::ptrdiff_t i, auto n) VORM_INLINE_LAMBDA { turnIn<Lanes<T>, T>(src, dst, i, y, n); });
    if (y == lines) return;
    for (; x + narrow<T> <= length; x += narrow<T>) turnOut<Lanes<T>, T>(src, dst, x, y, static_cast<int>(lines - y));
    turnCorner<T>(src, dst, x, length, y, lines);
}
// Few lines of many elements: along the lines of the source.
template <class T, class S, class D>
VORM_INLINE void turnLongLines(const S& src, const D& dst, std::ptrdiff_t length, std::ptrdiff_t lines)
{
    using L = Wide<T>;
    std::ptrdiff_t x = 0, y = 0;
    for (; x + cacheLine<T> <= length; x += cacheLine<T>)
        someAtATime<T>(lines, [&](std::ptrdiff_t j, auto n) VORM_INLINE_LAMBDA {
#pragma GCC unroll 1
            for (int k = 0; k < cacheLine<T>; k += L::width) turnOut<L, T>(src, dst, x + k, j, n);
        });
    for (; x + narrow<T> <= length; x += narrow<T>)
        someAtATime<T>(lines,
                       [&](std::ptrdiff_t j, auto n) VORM_INLINE_LAMBDA { turnOut<Lanes<T>, T>(src, dst, x, j, n); });
    if (x == length) return;
    for (; y + narrow<T> <= lines; y += narrow<T>) turnIn<Lanes<T>, T>(src, dst, x, y, static_cast<int>(length - x));
    turnCorner<T>(src, dst, x, length, y, lines);
}

template <class T, class S, class D>
void turn(const S src, const D dst, std::ptrdiff_t length, std::ptrdiff_t lines)
{
    if (lines <= blockEdge<T> && lines < length) return turnLongLines<T>(src, dst, length, lines);
    for (std::ptrdiff_t y = 0; y < lines; y += blockEdge<T>)
        for (std::ptrdiff_t x = 0; x < length; x += blockEdge<T>)
            turnManyLines<T>(src.from(y).ahead(x), dst.from(x).ahead(y), min(length - x, blockEdge<T>),
                             min(lines - y, blockEdge<T>));
}

}  // namespace

template <class S, class D>
void turnLines(const S& src, const D& dst, std::ptrdiff_t length, std::ptrdiff_t lines)
{
    turn<std::remove_pointer_t<decltype(dst.at(0))>>(src, dst, length, lines);
}

#define VORM_TURN_LINES(T)                                                                                       \
    template void turnLines(const SpacedLines<const T>&, const SpacedLines<T>&, std::ptrdiff_t, std::ptrdiff_t); \
    template void turnLines(const SpacedLines<const T>&, const ListedLines<T>&, std::ptrdiff_t, std::ptrdiff_t); \
    template void turnLines(const ListedLines<const T>&, const SpacedLines<T>&, std::ptrdiff_t, std::ptrdiff_t); \
    template void turnLines(const ListedLines<const T>&, const ListedLines<T>&, std::ptrdiff_t, std::ptrdiff_t);
VORM_TURN_LINES(float)
VORM_TURN_LINES(double)
#undef VORM_TURN_LINES

}  // namespace vorm::movement
