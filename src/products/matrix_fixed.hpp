// The straight-line bodies: products of two square matrices of order 3 to 6. Every element is the
// sum of its n products, added left to right, the first one being the start value.
#pragma once

#include "frame/small_matrix.hpp"

namespace vorm {

// The elements of A, each in all lanes, from wherever they are best taken. -------------------------

// Element by element out of memory.
template <class T, int n, class View> struct FactorsInMemory {
    View view;
    int object;
    template <int i, int k>
    VORM_INLINE Lanes<T> get() const { return Lanes<T>(T(view(object, i, k))); }
};

// Out of registers that hold the matrix or its transpose.
template <class T, int n, bool isTransposed> struct FactorsInRegisters {
    SmallMatrix<T, n> stored;
    template <int i, int k>
    VORM_INLINE Lanes<T> get() const
    {
        constexpr int r = isTransposed ? k : i, c = isTransposed ? i : k, width = Lanes<T>::width;
        return splat<c % width>(stored.v[r][c / width]);
    }
};

// Prepared once for all objects.
template <class T, int n> struct FactorsPrepared {
    Lanes<T> all[n][n];
    template <int i, int k>
    VORM_INLINE Lanes<T> get() const { return all[i][k]; }
};

// Operands over the objects: what all objects share is loaded once. ----------------------------------

template <class T, int n, class View> class Factors {
public:
    VORM_INLINE explicit Factors(const View& view) : view_(view)
    {
        if constexpr (View::isCommon)
            for (int i = 0; i < n; ++i)
                for (int k = 0; k < n; ++k) prepared_.all[i][k] = T(view(0, i, k));
    }
    VORM_INLINE decltype(auto) operator()(int object) const
    {
        if constexpr (View::isCommon)
            return (prepared_);
        else if constexpr (sizeof(T) == sizeof(float) && AdjacentRows<View>)
            return FactorsInRegisters<T, n, false>{SmallMatrix<T, n>::load(view_, object)};
        else if constexpr (sizeof(T) == sizeof(float) && isTransposed<View> &&
                           requires { requires AdjacentRows<decltype(view_.stored)>; })
            return FactorsInRegisters<T, n, true>{SmallMatrix<T, n>::load(view_.stored, object)};
        else
            return FactorsInMemory<T, n, View>{view_, object};
    }

private:
    View view_;
    FactorsPrepared<T, n> prepared_;
};

template <class T, int n, class View> class Rows {
public:
    VORM_INLINE explicit Rows(const View& view) : view_(view)
    {
        if constexpr (View::isCommon) rows_ = SmallMatrix<T, n>::load(view, 0);
    }
    VORM_INLINE SmallMatrix<T, n> operator()(int object) const
    {
        if constexpr (View::isCommon)
            return rows_;
        else
            return SmallMatrix<T, n>::load(view_, object);
    }

private:
    View view_;
    SmallMatrix<T, n> rows_;
};

// One product, and the products of an array. --------------------------------------------------------

// Row i of D is the sum over k of A(i, k) times row k of B.
template <class T, int n, class A, class D>
VORM_INLINE void product(const A& a, const SmallMatrix<T, n>& b, const D& dst, int object)
{
    unrolled<n>([&](auto i) VORM_INLINE_LAMBDA {
        constexpr int parts = SmallMatrix<T, n>::parts;
        Lanes<T> row[parts];
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            const Lanes<T> factor = a.template get<i, k>();
            for (int p = 0; p < parts; ++p) {
                if constexpr (k == 0)
                    row[p] = factor * b.v[k][p];
                else
                    row[p] = row[p] + factor * b.v[k][p];
            }
        });
        SmallMatrix<T, n>::template storeRow<i>(dst, object, row);
    });
}

template <class T, int n, class A, class B, class D>
VORM_INLINE void products(const A& a, const B& b, const D& dst, int first, int end)
{
    const Factors<T, n, A> factors(a);
    const Rows<T, n, B> rows(b);
    for (int object = first; object < end; ++object) product(factors(object), rows(object), dst, object);
}

}  // namespace vorm
