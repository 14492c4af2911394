// Packed vectors of two or three floats, no gap between them, as lanes of objects: v[i] holds element i of as many
// consecutive objects as a register has lanes.
#pragma once

#include "frame/shuffles.hpp"

namespace vorm {

// Blocks that follow one another from p on, one for each part of a register, of so many elements: from(i) has, in each
// part, what lies at element i of its block; and registers that fill such blocks.
template <class L, class T>
VORM_INLINE auto registersAt(const T* p, int part)
{
    return [p, part](int first) VORM_INLINE_LAMBDA {
        return joined<L>([&](int q) VORM_INLINE_LAMBDA { return Lanes<T>::load(p + part * q + first); });
    };
}

template <class T, int W, int Len>
VORM_INLINE void storeRegisters(T* p, const Lanes<T, W> (&out)[Len])
{
    constexpr int width = narrow<T>;
    for (int i = 0; i < Len; ++i)
        eachPart(out[i], [&](int q, Lanes<T> part) VORM_INLINE_LAMBDA { part.store(p + width * (q * Len + i)); });
}

template <int W>
VORM_INLINE void loadPacked(const float* p, Lanes<float, W> (&v)[2])
{
    const auto from = registersAt<Lanes<float, W>>(p, 8);
    const Lanes<float, W> a = from(0), b = from(4);  // x0 y0 x1 y1, x2 y2 x3 y3
    v[0] = shuffle<0, 2, 0, 2>(a, b);
    v[1] = shuffle<1, 3, 1, 3>(a, b);
}
template <int W>
VORM_INLINE void loadPacked(const float* p, Lanes<float, W> (&v)[3])
{
    // x0 y0 z0 x1, x2 y2 z2 x3, and so on: more loads than registers, but a shuffle for each only
    const auto from = registersAt<Lanes<float, W>>(p, 12);
    for (int i = 0; i < 3; ++i) v[i] = shuffle<0, 3, 0, 3>(from(i), from(i + 6));
}
template <int W>
VORM_INLINE void storePacked(float* p, const Lanes<float, W> (&v)[2])
{
    storeRegisters<float, W, 2>(p, {interleaveLow(v[0], v[1]), interleaveHigh(v[0], v[1])});
}
template <int W>
VORM_INLINE void storePacked(float* p, const Lanes<float, W> (&v)[3])
{
    const auto xy = shuffle<0, 2, 0, 2>(v[0], v[1]);  // x0 x2 y0 y2
    const auto yz = shuffle<1, 3, 1, 3>(v[1], v[2]);  // y1 y3 z1 z3
    const auto zx = shuffle<0, 2, 1, 3>(v[2], v[0]);  // z0 z2 x1 x3
    storeRegisters<float, W, 3>(
        p, {shuffle<0, 2, 0, 2>(xy, zx), shuffle<0, 2, 1, 3>(yz, xy), shuffle<1, 3, 1, 3>(zx, yz)});
}
}  // namespace vorm
