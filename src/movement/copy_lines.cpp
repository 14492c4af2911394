// Lines copied as they are, for all types.

#include <cstring>

#include "frame/registers.hpp"
#include "frame/unrolled.hpp"
#include "movement/lines.hpp"

namespace vorm::movement {

namespace {

struct Bytes16 {
    static constexpr int size = 16;
    __m128i v;
    VORM_INLINE static Bytes16 load(const char* p) { return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))}; }
    VORM_INLINE void store(char* p) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
};
template <class T>
struct BytesOf {
    static constexpr int size = sizeof(T);
    T v;
    VORM_INLINE static BytesOf load(const char* p)
    {
        BytesOf b;
        std::memcpy(&b.v, p, sizeof(T));
        return b;
    }
    VORM_INLINE void store(char* p) const { std::memcpy(p, &v, sizeof(T)); }
};

// So many parts of 16 bytes, then a last part, which may overlap the one before it.
template <int parts, class Last, class S, class D>
VORM_INLINE void copyInParts(const S& src, const D& dst, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    const std::ptrdiff_t last = Last::size < 16 ? parts * 16 : bytes - Last::size;  // a smaller one fits
    for (std::ptrdiff_t j = 0; j < lines; ++j) {
        const char* const from = src.at(j);
        char* const to = dst.at(j);
        Bytes16 part[parts + 1];
        unrolled<parts>([&](auto k) VORM_INLINE_LAMBDA { part[k] = Bytes16::load(from + k * 16); });
        const Last lastPart = Last::load(from + last);
        unrolled<parts>([&](auto k) VORM_INLINE_LAMBDA { part[k].store(to + k * 16); });
        lastPart.store(to + last);
    }
}
template <class S, class D>
VORM_INLINE void copyTwelve(const S& src, const D& dst, std::ptrdiff_t lines)
{
    for (std::ptrdiff_t j = 0; j < lines; ++j) {
        const char* const from = src.at(j);
        char* const to = dst.at(j);
        const auto first = BytesOf<std::uint64_t>::load(from);
        const auto last = BytesOf<std::uint32_t>::load(from + 8);
        first.store(to), last.store(to + 8);
    }
}
template <int parts, class S, class D>
VORM_INLINE void copyInParts(const S& src, const D& dst, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    const std::ptrdiff_t rest = bytes - parts * 16;
    if (rest == 4) return copyInParts<parts, BytesOf<std::uint32_t>>(src, dst, bytes, lines);
    if (rest == 8) return copyInParts<parts, BytesOf<std::uint64_t>>(src, dst, bytes, lines);
    if constexpr (parts == 0)
        if (rest == 12) return copyTwelve(src, dst, lines);
    copyInParts<parts, Bytes16>(src, dst, bytes, lines);
}

// Lines of more than 64 bytes: blocks of 64, the last of which overlaps the one before it.
template <class S, class D>
VORM_INLINE void copyInBlocks(const S& src, const D& dst, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    constexpr int block = 64;
    const auto copyBlock = [](const char* from, char* to) VORM_INLINE_LAMBDA {
        Bytes16 part[4];
        unrolled<4>([&](auto k) VORM_INLINE_LAMBDA { part[k] = Bytes16::load(from + k * 16); });
        unrolled<4>([&](auto k) VORM_INLINE_LAMBDA { part[k].store(to + k * 16); });
    };
    for (std::ptrdiff_t j = 0; j < lines; ++j) {
        const char* const from = src.at(j);
        char* const to = dst.at(j);
        for (std::ptrdiff_t i = 0; i < bytes - block; i += block) copyBlock(from + i, to + i);
        copyBlock(from + bytes - block, to + bytes - block);
    }
}

// So many parts, the last of which may overlap the one before it.
template <class Part, int parts>
VORM_INLINE void copyParts(const char* from, char* to, std::ptrdiff_t bytes)
{
    const std::ptrdiff_t last = bytes - Part::size;
    Part part[parts];
    unrolled<parts - 1>([&](auto k) VORM_INLINE_LAMBDA { part[k] = Part::load(from + k * Part::size); });
    part[parts - 1] = Part::load(from + last);
    unrolled<parts - 1>([&](auto k) VORM_INLINE_LAMBDA { part[k].store(to + k * Part::size); });
    part[parts - 1].store(to + last);
}
template <class Part, int parts, class S, class D>
VORM_INLINE void copyRowsInParts(const S& src, const D& dst, const ShortRows& rows, std::ptrdiff_t objects)
{
    for (std::ptrdiff_t j = 0; j < objects; ++j) {
        const char* from = src.at(j);
        char* to = dst.at(j);
#pragma GCC unroll 1
        for (std::ptrdiff_t r = 0; r < rows.count; ++r, from += rows.src, to += rows.dst)
            copyParts<Part, parts>(from, to, rows.bytes);
    }
}

// Squares of elements of so many bytes, written out. Says whether that is what the rows are.
template <int order, int element, class S, class D>
VORM_INLINE bool copySquares(const S& src, const D& dst, const ShortRows& rows, std::ptrdiff_t objects)
{
    constexpr int bytes = order * element, whole = bytes / 16, rest = bytes % 16;
    if (rows.count != order || rows.bytes != bytes) return false;
    for (std::ptrdiff_t j = 0; j < objects; ++j) {
        const char* from = src.at(j);
        char* to = dst.at(j);
        unrolled<order>([&](auto) VORM_INLINE_LAMBDA {
            if constexpr (whole > 0) copyParts<Bytes16, whole>(from, to, 16 * whole);
            if constexpr (rest >= 8) copyParts<BytesOf<std::uint64_t>, 1>(from + 16 * whole, to + 16 * whole, 8);
            if constexpr (rest % 8 > 0) copyParts<BytesOf<std::uint32_t>, 1>(from + bytes - 4, to + bytes - 4, 4);
            from += rows.src, to += rows.dst;
        });
    }
    return true;
}

}  // namespace

template <class S, class D>
void copyLines(const S& source, const D& destination, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    const S src = source;
    const D dst = destination;
    constexpr std::ptrdiff_t mostInBlocks = 512;
    switch ((bytes - 1) / 16) {
    case 0: return copyInParts<0>(src, dst, bytes, lines);
    case 1: return copyInParts<1>(src, dst, bytes, lines);
    case 2: return copyInParts<2>(src, dst, bytes, lines);
    case 3: return copyInParts<3>(src, dst, bytes, lines);
    case 4: return copyInParts<4>(src, dst, bytes, lines);
    case 5: return copyInParts<5>(src, dst, bytes, lines);
    case 6: return copyInParts<6>(src, dst, bytes, lines);
    case 7: return copyInParts<7>(src, dst, bytes, lines);
    case 8: return copyInParts<8>(src, dst, bytes, lines);
    case 12: return copyInParts<12>(src, dst, bytes, lines);  // five rows of five doubles
    default: break;
    }
    if (bytes <= mostInBlocks) return copyInBlocks(src, dst, bytes, lines);
    for (std::ptrdiff_t j = 0; j < lines; ++j) std::memcpy(dst.at(j), src.at(j), static_cast<std::size_t>(bytes));
}

template <class S, class D>
void copyShortRows(const S& source, const D& destination, const ShortRows& shortRows, std::ptrdiff_t objects)
{
    const S src = source;
    const D dst = destination;
    const ShortRows rows = shortRows;
    if (copySquares<3, 4>(src, dst, rows, objects) || copySquares<4, 4>(src, dst, rows, objects) ||
        copySquares<5, 4>(src, dst, rows, objects) || copySquares<6, 4>(src, dst, rows, objects) ||
        copySquares<3, 8>(src, dst, rows, objects) || copySquares<4, 8>(src, dst, rows, objects) ||
        copySquares<5, 8>(src, dst, rows, objects) || copySquares<6, 8>(src, dst, rows, objects))
        return;
    if (rows.bytes == 4) return copyRowsInParts<BytesOf<std::uint32_t>, 1>(src, dst, rows, objects);
    if (rows.bytes == 8) return copyRowsInParts<BytesOf<std::uint64_t>, 1>(src, dst, rows, objects);
    if (rows.bytes < 16) return copyRowsInParts<BytesOf<std::uint64_t>, 2>(src, dst, rows, objects);
    if (rows.bytes == 16) return copyRowsInParts<Bytes16, 1>(src, dst, rows, objects);
    if (rows.bytes <= 32) return copyRowsInParts<Bytes16, 2>(src, dst, rows, objects);
    copyRowsInParts<Bytes16, 3>(src, dst, rows, objects);
}

#define VORM_COPY_LINES(S, D)                                                                      \
    template void copyLines(const S<const char>&, const D<char>&, std::ptrdiff_t, std::ptrdiff_t); \
    template void copyShortRows(const S<const char>&, const D<char>&, const ShortRows&, std::ptrdiff_t);
VORM_COPY_LINES(SpacedLines, SpacedLines)
VORM_COPY_LINES(SpacedLines, ListedLines)
VORM_COPY_LINES(ListedLines, SpacedLines)
VORM_COPY_LINES(ListedLines, ListedLines)
#undef VORM_COPY_LINES

}  // namespace vorm::movement
