// The vectors of 3 to 6 elements the library exists for, each held in registers as a whole.
#pragma once

#include "frame/operands.hpp"
#include "frame/shuffles.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// Len contiguous elements: as many full registers as fit, then a partial one. Exactly Len elements
// of memory are read or written.
template <class T, int Len>
struct SmallVector {
    static constexpr int width = Lanes<T>::width, full = Len / width, rest = Len % width, parts = full + (rest != 0);
    Lanes<T> v[parts];

    template <class View>
    VORM_INLINE static SmallVector load(const View& view, int n)
    {
        const T* const p = view.object(n);
        SmallVector r;
        unrolled<parts>([&](auto k) VORM_INLINE_LAMBDA { r.v[k] = part<k>(p); });
        return r;
    }
    VORM_INLINE static SmallVector broadcast(T value)
    {
        SmallVector r;
        for (Lanes<T>& part : r.v) part = value;
        return r;
    }
    template <class View>
    VORM_INLINE void store(const View& view, int n) const
    {
        T* const p = view.object(n);
        unrolled<parts>([&](auto k) VORM_INLINE_LAMBDA { putPart<k>(p, v[k]); });
    }
    // Register k of a vector by itself.
    template <int k>
    VORM_INLINE static Lanes<T> part(const T* p)
    {
        return loadFirst<(k < full ? width : rest)>(p + k * width);
    }
    template <int k>
    VORM_INLINE static void putPart(T* p, Lanes<T> a)
    {
        storeFirst<(k < full ? width : rest)>(p + k * width, a);
    }
};

// Three floats in a slot of 16 bytes or more: one load takes the gap along, which the caller has to
// know to be readable; the store leaves it alone.
struct SlotVector {
    Lanes<float> v[1];

    template <class View>
    VORM_INLINE static SlotVector load(const View& view, int n)
    {
        if constexpr (View::isCommon)
            return {{_mm_setr_ps(view(0, 0), view(0, 1), view(0, 2), 0.0f)}};
        else
            return {{Lanes<float>::load(view.object(n))}};
    }
    VORM_INLINE static SlotVector broadcast(float value) { return {{value}}; }
    template <class View>
    VORM_INLINE void store(const View& view, int n) const
    {
        storeThree(view.object(n), v[0]);
    }
};

// Len elements anywhere, one number each.
template <class T, int Len>
struct ScatteredVector {
    T v[Len];

    template <class View>
    VORM_INLINE static ScatteredVector load(const View& view, int n)
    {
        ScatteredVector r;
        for (int i = 0; i < Len; ++i) r.v[i] = view(n, i);
        return r;
    }
    VORM_INLINE static ScatteredVector broadcast(T value)
    {
        ScatteredVector r;
        for (T& element : r.v) element = value;
        return r;
    }
    template <class View>
    VORM_INLINE void store(const View& view, int n) const
    {
        for (int i = 0; i < Len; ++i) view(n, i) = v[i];
    }
};

// The same operation on all parts.
template <class Op, class V>
VORM_INLINE V combine(const Op& op, V a, const V& b)
{
    for (unsigned k = 0; k < sizeof a.v / sizeof a.v[0]; ++k) a.v[k] = op.apply(a.v[k], b.v[k]);
    return a;
}

}  // namespace vorm
