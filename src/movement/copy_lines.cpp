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

// So many parts, the last of which may overlap the one before it.
template <class Part, int parts, class S, class D>
VORM_INLINE void copyInParts(const S& src, const D& dst, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    const std::ptrdiff_t last = bytes - Part::size;
    for (std::ptrdiff_t j = 0; j < lines; ++j) {
        const char* const from = src.at(j);
        char* const to = dst.at(j);
        Part part[parts];
        unrolled<parts - 1>([&](auto k) VORM_INLINE_LAMBDA { part[k] = Part::load(from + k * Part::size); });
        part[parts - 1] = Part::load(from + last);
        unrolled<parts - 1>([&](auto k) VORM_INLINE_LAMBDA { part[k].store(to + k * Part::size); });
        part[parts - 1].store(to + last);
    }
}

}  // namespace

template <class S, class D>
void copyLines(const S& source, const D& destination, std::ptrdiff_t bytes, std::ptrdiff_t lines)
{
    const S src = source;
    const D dst = destination;
    if (bytes <= 16) {
        if (bytes == 4) return copyInParts<BytesOf<std::uint32_t>, 1>(src, dst, bytes, lines);
        if (bytes == 16) return copyInParts<Bytes16, 1>(src, dst, bytes, lines);
        return copyInParts<BytesOf<std::uint64_t>, 2>(src, dst, bytes, lines);
    }
    switch ((bytes + 15) / 16) {
    case 2: return copyInParts<Bytes16, 2>(src, dst, bytes, lines);
    case 3: return copyInParts<Bytes16, 3>(src, dst, bytes, lines);
    case 4: return copyInParts<Bytes16, 4>(src, dst, bytes, lines);
    case 5: return copyInParts<Bytes16, 5>(src, dst, bytes, lines);
    case 6: return copyInParts<Bytes16, 6>(src, dst, bytes, lines);
    case 7: return copyInParts<Bytes16, 7>(src, dst, bytes, lines);
    case 8: return copyInParts<Bytes16, 8>(src, dst, bytes, lines);
    case 9: return copyInParts<Bytes16, 9>(src, dst, bytes, lines);
    default: break;
    }
    for (std::ptrdiff_t j = 0; j < lines; ++j) std::memcpy(dst.at(j), src.at(j), static_cast<std::size_t>(bytes));
}

template void copyLines(const SpacedLines<const char>&, const SpacedLines<char>&, std::ptrdiff_t, std::ptrdiff_t);
template void copyLines(const SpacedLines<const char>&, const ListedLines<char>&, std::ptrdiff_t, std::ptrdiff_t);
template void copyLines(const ListedLines<const char>&, const SpacedLines<char>&, std::ptrdiff_t, std::ptrdiff_t);
template void copyLines(const ListedLines<const char>&, const ListedLines<char>&, std::ptrdiff_t, std::ptrdiff_t);

}  // namespace vorm::movement
