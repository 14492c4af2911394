// Lines copied as they are, for all types.

#include <cstring>

#include "frame/registers.hpp"
#include "frame/unrolled.hpp"
#include "movement/lines.hpp"

namespace vorm::movement {

namespace {

template <class Lines>
constexpr bool isSpaced = false;
template <class T>
constexpr bool isSpaced<SpacedLines<T>> = true;

struct Bytes16 {
    static constexpr int size = 16;
    VORM_INLINE static void copy(const char* from, char* to)
    {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), v);
    }
};
template <class T>
struct BytesOf {
    static constexpr int size = sizeof(T);
    VORM_INLINE static void copy(const char* from, char* to)
    {
        T v;
        std::memcpy(&v, from, sizeof(T));
        std::memcpy(to, &v, sizeof(T));
    }
};
using Bytes8 = BytesOf<std::uint64_t>;
using Bytes4 = BytesOf<std::uint32_t>;

// Parts are stored in the order of their addresses, each as soon as it is loaded: compilers keep to that, and stores
// in another order take longer to leave the processor.
template <class Part, int parts>
VORM_INLINE void copyParts(const char* from, char* to)
{
    unrolled<parts>([&](auto k) VORM_INLINE_LAMBDA { Part::copy(from + k * Part::size, to + k * Part::size); });
}
// So many parts, then a last one, which ends where the bytes do and may overlap the one before it.
template <class Part, int parts, class Last>
VORM_INLINE void copyPartsAndLast(const char* from, char* to, std::ptrdiff_t bytes)
{
    copyParts<Part, parts>(from, to);
    Last::copy(from + bytes - Last::size, to + bytes - Last::size);
}
// So many bytes, a multiple of 4.
template <int bytes>
VORM_INLINE void copyBytes(const char* from, char* to)
{
    constexpr int whole = bytes / 16 * 16;
    copyParts<Bytes16, whole / 16>(from, to);
    if constexpr (bytes & 8) Bytes8::copy(from + whole, to + whole);
    if constexpr (bytes & 4) Bytes4::copy(from + bytes - 4, to + bytes - 4);
}

// So many at a time.
template <int together = 1, class S, class D, class CopyLine>
VORM_INLINE void eachLine(const S& src, const D& dst, std::ptrdiff_t lines, const CopyLine& copyLine)
{
    std::ptrdiff_t j = 0;
    if constexpr (together > 1)
        for (; j + together <= lines; j += together)
            unrolled<together>([&](auto k) VORM_INLINE_LAMBDA { copyLine(src.at(j + k), dst.at(j + k)); });
    for (; j < lines; ++j) copyLine(src.at(j), dst.at(j));
}

VORM_INLINE __m128i load16(const char* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
VORM_INLINE __m128i load8(const char* p) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)); }
VORM_INLINE __m128i load4(const char* p)
{
    std::int32_t v;
    std::memcpy(&v, p, sizeof v);
    return _mm_cvtsi32_si128(v);
}

// 16 bytes of rows that are to lie without gaps, from the i-th on: of one row, or of two, of which nothing but
// themselves is read.
template <int bytes, int i>
VORM_INLINE __m128i packedPart(const char* rows, std::ptrdiff_t step)
{
    constexpr int before = i % bytes, ofFirst = bytes - before;
    const char* const first = rows + i / bytes * step;
    const char* const second = first + step;
    if constexpr (ofFirst >= 16)
        return load16(first + before);
    else if constexpr (ofFirst == 8)
        return _mm_unpacklo_epi64(load8(first + before), load8(second));
    else if constexpr (bytes > 16)
        return _mm_alignr_epi8(load16(second), load16(first + bytes - 16), 16 - ofFirst);
    else if constexpr (ofFirst == 12)
        return _mm_unpacklo_epi64(load8(first), _mm_unpacklo_epi32(load4(first + 8), load4(second)));
    else
        return _mm_unpacklo_epi64(_mm_unpacklo_epi32(load4(first + 8), load4(second)), load8(second + 4));
}
// Rows that do not fill registers, to where they lie without gaps: what is stored fills them.
template <int count, int bytes>
VORM_INLINE void packRows(const char* from, std::ptrdiff_t step, char* to)
{
    constexpr int all = count * bytes, rest = all % 16;
    unrolled<all / 16>([&](auto k) VORM_INLINE_LAMBDA {
        const __m128i part = packedPart<bytes, 16 * decltype(k)::value>(from, step);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + 16 * k), part);
    });
    if constexpr (rest > 0) copyBytes<rest>(from + (count - 1) * step + bytes - rest, to + all - rest);
}

// Lines of 12 or 24 bytes, to where they lie without gaps.
template <int bytes, class S, class D>
VORM_INLINE void packLines(const S& src, const D& dst, std::ptrdiff_t lines)
{
    constexpr int together = 48 / bytes;
    std::ptrdiff_t j = 0;
    for (; j + together <= lines; j += together) packRows<together, bytes>(src.at(j), src.step, dst.at(j));
    for (; j < lines; ++j) copyBytes<bytes>(src.at(j), dst.at(j));
}

// Lines of more than so many parts of 16 bytes, and of one more at most.
template <int parts, class S, class D>
VORM_INLINE void copyInParts(const S& src, const D& dst, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    constexpr int together = parts == 0 ? 2 : 1;  // a loop turns around once a cycle at most
    const auto exactly = [&](auto rest) VORM_INLINE_LAMBDA {
        constexpr int all = parts * 16 + decltype(rest)::value;
        if constexpr (isSpaced<S> && isSpaced<D> && (all == 12 || all == 24))
            if (dst.step == all) return packLines<all>(src, dst, lines);
        eachLine<together>(src, dst, lines, copyBytes<all>);
    };
    const std::ptrdiff_t rest = bytes - parts * 16;
    if (rest == 4) return exactly(constant<4>);
    if (rest == 8) return exactly(constant<8>);
    if constexpr (parts == 0)
        if (rest == 12) return exactly(constant<12>);
    eachLine<together>(src, dst, lines, [bytes](const char* from, char* to) VORM_INLINE_LAMBDA {
        copyPartsAndLast<Bytes16, parts, Bytes16>(from, to, bytes);
    });
}

// Lines of more than 64 bytes: blocks of 64, the last of which overlaps the one before it.
template <class S, class D>
VORM_INLINE void copyInBlocks(const S& src, const D& dst, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    constexpr int block = 64;
    eachLine(src, dst, lines, [bytes](const char* from, char* to) VORM_INLINE_LAMBDA {
        for (std::ptrdiff_t i = 0; i < bytes - block; i += block) copyBytes<block>(from + i, to + i);
        copyBytes<block>(from + bytes - block, to + bytes - block);
    });
}

template <class S, class D, class CopyRow>
VORM_INLINE void eachRow(const S& src, const D& dst, const ShortRows& rows, std::ptrdiff_t objects,
                         const CopyRow& copyRow)
{
    eachLine(src, dst, objects, [&](const char* from, char* to) VORM_INLINE_LAMBDA {
#pragma GCC unroll 1
        for (std::ptrdiff_t r = 0; r < rows.count; ++r, from += rows.src, to += rows.dst) copyRow(from, to);
    });
}
// Rows of several parts, the last of which may overlap the one before it.
template <class Part, int parts, class S, class D>
VORM_INLINE void copyRowsInParts(const S& src, const D& dst, const ShortRows& rows, std::ptrdiff_t objects)
{
    eachRow(src, dst, rows, objects, [bytes = rows.bytes](const char* from, char* to) VORM_INLINE_LAMBDA {
        copyPartsAndLast<Part, parts - 1, Part>(from, to, bytes);
    });
}

// Squares of elements of so many bytes, written out. Says whether that is what the rows are.
template <int order, int element, class S, class D>
VORM_INLINE bool copySquares(const S& src, const D& dst, const ShortRows& rows, std::ptrdiff_t objects)
{
    constexpr int bytes = order * element;
    if (rows.count != order || rows.bytes != bytes) return false;
    if constexpr (bytes % 16 > 0)
        if (rows.dst == bytes) {
            eachLine(src, dst, objects, [step = rows.src](const char* from, char* to) VORM_INLINE_LAMBDA {
                packRows<order, bytes>(from, step, to);
            });
            return true;
        }
    eachLine(src, dst, objects, [&](const char* from, char* to) VORM_INLINE_LAMBDA {
        unrolled<order>([&](auto) VORM_INLINE_LAMBDA {
            copyBytes<bytes>(from, to);
            from += rows.src, to += rows.dst;
        });
    });
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
    if (rows.bytes == 4) return eachRow(src, dst, rows, objects, copyBytes<4>);
    if (rows.bytes == 8) return eachRow(src, dst, rows, objects, copyBytes<8>);
    if (rows.bytes < 16) return copyRowsInParts<Bytes8, 2>(src, dst, rows, objects);
    if (rows.bytes == 16) return eachRow(src, dst, rows, objects, copyBytes<16>);
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
