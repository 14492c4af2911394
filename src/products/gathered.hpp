// Matrix products of orders 3 to 6 whose elements lie anywhere: gathered into whole registers,
// multiplied by a body that is compiled once, and scattered again.
#pragma once

#include "frame/lanes.hpp"
#include "frame/small_matrix.hpp"

namespace vorm {

template <class T, int n>
struct Gathered {
    static constexpr int width = Lanes<T>::width, pitch = (n + width - 1) / width * width;
    T rows[n][pitch];

    template <class View>
    VORM_INLINE void gather(const View& view, int object)
    {
        for (int r = 0; r < n; ++r)
            unrolled<pitch / width>([&](auto p) VORM_INLINE_LAMBDA {
                constexpr int c = p * width;
                lanes<T>([&](int l) VORM_INLINE_LAMBDA {
                    return c + l < n ? T(view(object, r, c + l)) : T(0);
                }).store(rows[r] + c);
            });
    }
    template <class View>
    VORM_INLINE void scatter(const View& view, int object) const
    {
        for (int r = 0; r < n; ++r) unrolled<n>([&](auto c) VORM_INLINE_LAMBDA { view(object, r, c) = rows[r][c]; });
    }
};

// Every sum goes from left to right, with the first product as its start value.
template <class T, int n>
VORM_HIDDEN void gatheredProduct(const Gathered<T, n>& a, const Gathered<T, n>& b, Gathered<T, n>& d);

#define VORM_GATHERED(T, n) \
    template void gatheredProduct<T, n>(const Gathered<T, n>&, const Gathered<T, n>&, Gathered<T, n>&)
#define VORM_EACH_GATHERED(prefix)   \
    prefix VORM_GATHERED(float, 3);  \
    prefix VORM_GATHERED(float, 4);  \
    prefix VORM_GATHERED(float, 5);  \
    prefix VORM_GATHERED(float, 6);  \
    prefix VORM_GATHERED(double, 3); \
    prefix VORM_GATHERED(double, 4); \
    prefix VORM_GATHERED(double, 5); \
    prefix VORM_GATHERED(double, 6)
VORM_EACH_GATHERED(extern);

template <class T, int n, class A, class B, class D>
VORM_INLINE void gatheredProducts(const A& a, const B& b, const D& dst, int first, int end)
{
    Gathered<T, n> ofA, ofB, ofD;
    if constexpr (A::isCommon) ofA.gather(a, 0);
    if constexpr (B::isCommon) ofB.gather(b, 0);
    for (int object = first; object < end; ++object) {
        if constexpr (!A::isCommon) ofA.gather(a, object);
        if constexpr (!B::isCommon) ofB.gather(b, object);
        gatheredProduct<T, n>(ofA, ofB, ofD);
        ofD.scatter(dst, object);
    }
}

}  // namespace vorm
