// Lines turned in registers, for both types.

#include "frame/object_lanes.hpp"
#include "frame/pin.hpp"
#include "movement/lines.hpp"

namespace vorm::movement {

namespace {

// As many elements as a cache line has, so that each line of the destination, or of the source, is touched once.
template <class T>
constexpr int cacheLine = 64 / int{sizeof(T)};
// Lines that are long both ways are turned in strips: two cache lines of each of so many, which stay in the first
// cache. What is stored then runs on for as long as it can.
constexpr std::ptrdiff_t stripLines = 512;
template <class T>
constexpr std::ptrdiff_t stripLength = 2 * cacheLine<T>;
// Few lines, as many as a small matrix has elements, are all read at once.
template <class T>
constexpr int fewLines = sizeof(T) == 4 ? 64 : 36;

// So many elements of lines, or lines, at a time: their addresses are found once for a cache line of the others.
constexpr int atOnce = 4;

template <class L, class T>
struct StoredAt {
    T* p;
    VORM_INLINE void operator=(L a) const { a.store(p); }
};

// g++ would load halves of two doubles again from memory instead of shuffling them.
template <class L, class T>
VORM_INLINE L loaded(const T* p)
{
    L a = L::load(p);
    if constexpr (sizeof(T) == sizeof(double) && L::parts == 1) pin(a);
    return a;
}

// A cache line of doubles of n lines, an even number: each is stored from its beginning to its end.
template <class S>
VORM_INLINE void turnPairsIn(const S& src, double* const* to, std::ptrdiff_t x, std::ptrdiff_t y, int n)
{
    using L = Lanes<double>;
    constexpr int registers = cacheLine<double> / 2;
    const double* from[2 * registers];
    for (int l = 0; l < 2 * registers; ++l) from[l] = src.at(y + l) + x;
    for (int i = 0; i < n; i += 2) {
        L lines[2][registers];
        for (int k = 0; k < registers; ++k) {
            L pair[] = {loaded<L>(from[2 * k] + i), loaded<L>(from[2 * k + 1] + i)};
            transpose(pair);
            lines[0][k] = pair[0], lines[1][k] = pair[1];
        }
        for (int line = 0; line < 2; ++line)
            for (int k = 0; k < registers; ++k) lines[line][k].store(to[i + line] + 2 * k);
    }
}

// n elements, at most as many as are done at once, of lines that fill some registers, from element x and line y on.
template <class L, class T, class S, class D, class N>
VORM_INLINE void turnIn(const S& src, const D& dst, std::ptrdiff_t x, std::ptrdiff_t y, int registers, N n)
{
    T* to[atOnce];
    for (int i = 0; i < n; ++i) to[i] = dst.at(x + i) + y;
    // The lines of the destination are too many for the processor to foresee what comes of each of them. Nothing is
    // read by this, wherever it leads.
    if (registers * L::width == cacheLine<T>)
        for (int i = 0; i < n; ++i) _mm_prefetch(reinterpret_cast<const char*>(to[i] + 2 * cacheLine<T>), _MM_HINT_T0);
    if constexpr (L::width == 2 && std::is_same_v<N, std::integral_constant<int, atOnce>>)
        if (registers == cacheLine<double> / 2) return turnPairsIn(src, to, x, y, atOnce);
#pragma GCC unroll 1
    for (int k = 0; k < registers; ++k, y += L::width) {
        const T* from[L::width];
        for (int l = 0; l < L::width; ++l) from[l] = src.at(y + l) + x;
        if constexpr (L::width == 2) {
            int i = 0;
            for (; i + 2 <= n; i += 2) {
                L pair[] = {loaded<L>(from[0] + i), loaded<L>(from[1] + i)};
                transpose(pair);
                pair[0].store(to[i] + k * 2), pair[1].store(to[i + 1] + k * 2);
            }
            if (i == n) continue;
        }
        loadRows(
            from, [&](int i) VORM_INLINE_LAMBDA { return StoredAt<L, T>{to[i] + k * L::width}; }, n);
    }
}
// n lines, and elements of them that fill some registers.
template <class L, class T, class S, class D, class N>
VORM_INLINE void turnOut(const S& src, const D& dst, std::ptrdiff_t x, std::ptrdiff_t y, int registers, N n)
{
    const T* from[atOnce];
    for (int i = 0; i < n; ++i) from[i] = src.at(y + i) + x;
#pragma GCC unroll 1
    for (int k = 0; k < registers; ++k, x += L::width) {
        T* to[L::width];
        for (int l = 0; l < L::width; ++l) to[l] = dst.at(x + l) + y;
        storeRows(
            to, [&](int i) VORM_INLINE_LAMBDA { return loaded<L>(from[i] + k * L::width); }, n);
    }
}

// All elements, or lines, some at a time.
template <class Turn>
VORM_INLINE void someAtATime(std::ptrdiff_t n, const Turn& turn)
{
    std::ptrdiff_t i = 0;
    for (; i + atOnce <= n; i += atOnce) turn(i, constant<atOnce>);
    if (i + 2 <= n) turn(i, constant<2>), i += 2;
    if (i < n) turn(i, constant<1>);
}

// Cache lines of elements, then single registers of 128 bits of them: body(first, a register, how many); returns the
// first of those that are left.
template <class T, class Body>
VORM_INLINE std::ptrdiff_t registerByRegister(std::ptrdiff_t n, const Body& body)
{
    std::ptrdiff_t i = 0;
    if constexpr (narrow<T> < widest<T>)
        for (; i + cacheLine<T> <= n; i += cacheLine<T>) body(i, Wide<T>(), cacheLine<T> / widest<T>);
    while (i + narrow<T> <= n) {
        const int registers = i + cacheLine<T> <= n ? cacheLine<T> / narrow<T> : 1;
        body(i, Lanes<T>(), registers);
        i += registers * narrow<T>;
    }
    return i;
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
    const std::ptrdiff_t y =
        registerByRegister<T>(lines, [&](std::ptrdiff_t j, auto some, int registers) VORM_INLINE_LAMBDA {
            someAtATime(length, [&](std::ptrdiff_t i, auto n)
                                    VORM_INLINE_LAMBDA { turnIn<decltype(some), T>(src, dst, i, j, registers, n); });
        });
    if (y == lines) return;
    std::ptrdiff_t x = 0;
    for (; x + narrow<T> <= length; x += narrow<T>)
        turnOut<Lanes<T>, T>(src, dst, x, y, 1, static_cast<int>(lines - y));
    turnCorner<T>(src, dst, x, length, y, lines);
}
// Hardly any lines of many elements: along the lines of the source.
template <class T, class S, class D>
VORM_INLINE void turnLongLines(const S& src, const D& dst, std::ptrdiff_t length, std::ptrdiff_t lines)
{
    const std::ptrdiff_t x =
        registerByRegister<T>(length, [&](std::ptrdiff_t i, auto some, int registers) VORM_INLINE_LAMBDA {
            someAtATime(lines, [&](std::ptrdiff_t j, auto n)
                                   VORM_INLINE_LAMBDA { turnOut<decltype(some), T>(src, dst, i, j, registers, n); });
        });
    if (x == length) return;
    std::ptrdiff_t y = 0;
    for (; y + narrow<T> <= lines; y += narrow<T>) turnIn<Lanes<T>, T>(src, dst, x, y, 1, static_cast<int>(length - x));
    turnCorner<T>(src, dst, x, length, y, lines);
}

// Few lines of many elements, eight lines at a time: what is stored runs on in each line of the destination. Returns
// the first of the elements that are left.
template <class T, class S, class D, class N>
VORM_INLINE std::ptrdiff_t turnFewLines(const S& src, const D& dst, std::ptrdiff_t length, N lines)
{
    using L = Lanes<T>;
    const T* from[fewLines<T>];
    for (int y = 0; y < lines; ++y) from[y] = src.at(y);
    std::ptrdiff_t x = 0;
    for (; x + L::width <= length; x += L::width) {
        T* to[L::width];
        for (int i = 0; i < L::width; ++i) to[i] = dst.at(x + i);
        const auto turnBlocks = [&](auto blocks, int y) VORM_INLINE_LAMBDA {
            L block[blocks][L::width];
            for (int k = 0; k < blocks; ++k) {
                for (int l = 0; l < L::width; ++l) block[k][l] = loaded<L>(from[y + k * L::width + l] + x);
                transpose(block[k]);
            }
            for (int i = 0; i < L::width; ++i)
                for (int k = 0; k < blocks; ++k) block[k][i].store(to[i] + y + k * L::width);
        };
        int y = 0;
        for (; y + 8 <= lines; y += 8) turnBlocks(constant<8 / L::width>, y);
        for (; y + L::width <= lines; y += L::width) turnBlocks(constant<1>, y);
        for (; y < lines; ++y)
            for (int i = 0; i < L::width; ++i) entry(to[i], y) = T{entry(from[y], x + i)};
    }
    return x;
}

template <class T, class S, class D>
void turn(const S src, const D dst, std::ptrdiff_t length, std::ptrdiff_t lines)
{
    if (lines <= 4 && lines < length) return turnLongLines<T>(src, dst, length, lines);
    if (lines <= fewLines<T> && lines < length) {
        const std::ptrdiff_t x = [&]() VORM_INLINE_LAMBDA {
            if (lines == 9) return turnFewLines<T>(src, dst, length, constant<9>);
            if constexpr (sizeof(T) == 8)
                if (lines == 16) return turnFewLines<T>(src, dst, length, constant<16>);
            return turnFewLines<T>(src, dst, length, static_cast<int>(lines));
        }();
        return turnCorner<T>(src, dst, x, length, 0, lines);
    }
    for (std::ptrdiff_t y = 0; y < lines; y += stripLines)
        for (std::ptrdiff_t x = 0; x < length; x += stripLength<T>)
            turnManyLines<T>(src.from(y).ahead(x), dst.from(x).ahead(y), min(length - x, stripLength<T>),
                             min(lines - y, stripLines));
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
