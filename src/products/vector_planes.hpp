// Structure of arrays: pointer tables whose objects lie side by side, element by element, so that a
// register holds the same element of several objects.
#pragma once

#include <cstdlib>

#include "products/vector_fixed.hpp"

namespace vorm {

template <class View>
VORM_INLINE bool inPlanes(const View& view)
{
    if constexpr (View::isCommon)
        return true;
    else
        return view.stride0 == static_cast<int>(sizeof(*view.pp[0]));
}
template <class Stored>
VORM_INLINE bool inPlanes(const Transposed<Stored>& view)
{
    return inPlanes(view.stored);
}

// Whether the registers stored for the elements of y lie apart, or are the same: only then may an
// element of a later object be stored before one of an earlier object.
template <class T>
VORM_INLINE bool storesApart(const VectorArrayPointers<T>& y, int len)
{
    const auto apart = [&](int i, int j) VORM_INLINE_LAMBDA {
        return reinterpret_cast<const char*>(y.pp[i]) - reinterpret_cast<const char*>(y.pp[j]);
    };
    int ascending = 1;
    while (ascending < len && apart(ascending, ascending - 1) >= 16) ++ascending;
    for (int i = ascending; i < len; ++i)
        for (int j = 0; j < i; ++j)
            if (const auto distance = std::abs(apart(i, j)); distance != 0 && distance < 16) return false;
    return true;
}

// An element of the object, or of as many objects from it on as Number has lanes.
template <class Number, class View, class... Index>
VORM_INLINE Number loadPlane(const View& view, int object, Index... index)
{
    if constexpr (View::isCommon || std::is_floating_point_v<Number>)
        return view(object, index...);
    else
        return Number::load(view.element(index...) + object);
}
template <class Number, class Stored>
VORM_INLINE Number loadPlane(const Transposed<Stored>& view, int object, int r, int c)
{
    return loadPlane<Number>(view.stored, object, c, r);
}

// The addresses of all elements of object 0; what all objects share is loaded once.
template <class T, int n, class View>
struct VectorPlanes {
    const T* p[n];
    VORM_INLINE explicit VectorPlanes(const View& view)
    {
        for (int k = 0; k < n; ++k) p[k] = view.element(k);
    }
    VORM_INLINE Lanes<T> operator()(int object, int k) const { return Lanes<T>::load(p[k] + object); }
};
template <class T, int n, class View>
requires View::isCommon struct VectorPlanes<T, n, View> {
    Lanes<T> v[n];
    VORM_INLINE explicit VectorPlanes(const View& view)
    {
        for (int k = 0; k < n; ++k) v[k] = T(view(0, k));
    }
    VORM_INLINE Lanes<T> operator()(int, int k) const { return v[k]; }
};
template <class T, int n, class View>
struct MatrixPlanes {
    const T* p[n][n];
    VORM_INLINE explicit MatrixPlanes(const View& view) { take(view); }
    VORM_INLINE Lanes<T> operator()(int object, int i, int k) const { return Lanes<T>::load(p[i][k] + object); }

private:
    template <class Stored>
    VORM_INLINE void take(const Transposed<Stored>& view)
    {
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k) p[i][k] = view.stored.element(k, i);
    }
    template <class Stored>
    VORM_INLINE void take(const Stored& view)
    {
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k) p[i][k] = view.element(i, k);
    }
};
template <class T, int n, class View>
requires View::isCommon struct MatrixPlanes<T, n, View> {
    SpreadMatrix<T, n> matrix;
    VORM_INLINE explicit MatrixPlanes(const View& view) : matrix(view) {}
    VORM_INLINE Lanes<T> operator()(int, int i, int k) const { return matrix.v[i][k]; }
};

template <class T, int n, class A, class X, class D>
VORM_INLINE void productsInPlanes(const A& a, const X& x, const D& y, int end)
{
    const MatrixPlanes<T, n, A> matrix(a);
    const VectorPlanes<T, n, X> vectors(x);
    T* p[n];
    for (int i = 0; i < n; ++i) p[i] = y.element(i);
    for (int object = 0; object < end; object += Lanes<T>::width) {
        Lanes<T> vector[n];
        for (int k = 0; k < n; ++k) vector[k] = vectors(object, k);
        unrolled<n>([&](auto i) VORM_INLINE_LAMBDA {
            leftToRight<n, Start::firstProduct>([&](auto k) VORM_INLINE_LAMBDA {
                return matrix(object, i, k) * vector[k];
            }).store(p[i] + object);
        });
    }
}

}  // namespace vorm
