// The memory all contestants of a row share. Regions are page-aligned blocks that begin at different
// multiples of 64 bytes, so that no two operands meet in the low 12 bits of their addresses, which
// would make loads wait for unrelated stores.
#pragma once

#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

#include "vorcore/vorcore.h"

namespace bench {

constexpr int residentObjects = 1000;

// Bytes of one operand that no cache holds.
inline std::size_t streamingBytes()
{
    static const std::size_t bytes = [] {
        int cache = 0;
        vorGetMaxCacheSizeB(&cache);
        return std::clamp<std::size_t>(2 * static_cast<std::size_t>(cache), 32u << 20, 128u << 20);
    }();
    return bytes;
}

constexpr int regions = 12;

// Pages come into being when they are first written.
template <class T> T* region(int index)
{
    constexpr std::size_t hugePage = 2u << 20;
    static const std::size_t size = streamingBytes() + 2 * hugePage;
    static std::byte* const base = [] {
        const std::size_t all = regions * size + hugePage;
        void* const p = mmap(nullptr, all, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (p == MAP_FAILED) std::abort();
        madvise(p, all, MADV_HUGEPAGE);
        const auto rest = reinterpret_cast<std::uintptr_t>(p) % hugePage;
        return static_cast<std::byte*>(p) + (hugePage - rest);
    }();
    const auto k = static_cast<std::size_t>(index);
    return reinterpret_cast<T*>(base + k * size + k * 7 * 64);
}

// Values from 0.5 up to 2, no two near each other alike.
template <class T> void fill(T* p, std::ptrdiff_t elements)
{
    std::uint32_t state = 2463534242u;
    for (std::ptrdiff_t i = 0; i < elements; ++i) {
        state = state * 1664525u + 1013904223u;
        p[i] = static_cast<T>(0.5) + static_cast<T>(state >> 9) * static_cast<T>(1.5 / (1 << 23));
    }
}

}  // namespace bench
