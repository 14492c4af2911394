// The memory all contestants of a row share. Its regions begin at different multiples of 64 bytes
// after a page, so that no two operands meet in the low 12 bits of their addresses, which would make
// loads wait for unrelated stores.
#pragma once

#include <sys/mman.h>

#include <algorithm>
#include <cstddef>
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

// One block for all rows, taken from its beginning again for each: operands that lie close together
// do not meet in the processor's hashes of the higher address bits either. Pages come into being when
// they are first written.
class Memory {
public:
    static void startRow() { memory().used_ = 0, memory().regions_ = 0; }

    template <class T>
    static T* region(std::ptrdiff_t elements)
    {
        Memory& m = memory();
        const std::size_t start = (m.used_ + page - 1) / page * page + m.regions_ * 7 * 64 % page;
        m.used_ = start + static_cast<std::size_t>(elements) * sizeof(T);
        ++m.regions_;
        if (m.used_ > m.size_) std::abort();
        return reinterpret_cast<T*>(m.base_ + start);
    }

private:
    static constexpr std::size_t page = 4096, hugePage = 2u << 20;

    Memory() : size_(8 * streamingBytes())
    {
        void* const p =
            mmap(nullptr, size_ + hugePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (p == MAP_FAILED) std::abort();
        madvise(p, size_ + hugePage, MADV_HUGEPAGE);
        base_ = static_cast<std::byte*>(p) + (hugePage - reinterpret_cast<std::uintptr_t>(p) % hugePage);
    }
    static Memory& memory()
    {
        static Memory instance;
        return instance;
    }

    std::size_t size_, used_ = 0, regions_ = 0;
    std::byte* base_;
};

// Values from 0.5 up to 2, no two near each other alike.
template <class T>
void fill(T* p, std::ptrdiff_t elements)
{
    std::uint32_t state = 2463534242u;
    for (std::ptrdiff_t i = 0; i < elements; ++i) {
        state = state * 1664525u + 1013904223u;
        p[i] = static_cast<T>(0.5) + static_cast<T>(state >> 9) * static_cast<T>(1.5 / (1 << 23));
    }
}

}  // namespace bench
