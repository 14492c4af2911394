// The eigenvectors while they are accumulated: not wanted, in rows of work space, or in the destination itself.
#pragma once

#include "eigen/sym/reduction.hpp"
#include "frame/elements.hpp"

namespace vorm::eigen::sym {

struct NoVectors {
    static constexpr bool areWanted = false;
    template <class Reflection>
    VORM_INLINE void reflect(const Reflection&) const
    {
    }
    template <class Mask>
    VORM_INLINE void mirror(const Mask&) const
    {
    }
    template <class Number, class Mask>
    VORM_INLINE void rotate(int, const Number&, const Number&, const Mask&) const
    {
    }
    VORM_INLINE void unmirror() const {}
    template <class Mask>
    VORM_INLINE void exchange(int, int, const Mask&) const
    {
    }
};

// x and y become c x - s y and c y + s x.
template <class Some>
VORM_INLINE void rotate(Some& x, Some& y, const Some& c, const Some& s)
{
    const Some before = x;
    x = c * x - s * y;
    y = c * y + s * before;
}

// Element (r, j) of the matrix of vectors at v[j * n + r]: a vector is a row.
template <class Number>
struct VectorsInRows {
    static constexpr bool areWanted = true;
    Number* v;
    int n;
    MaskOf<Number> isUpward = {};

    VORM_INLINE Number* row(int j) const { return v + j * std::ptrdiff_t{n}; }
    VORM_INLINE void makeIdentity() const
    {
        using T = Element<Number>;
        for (int j = 0; j < n; ++j)
            for (int r = 0; r < n; ++r) at(row(j), r) = Number(T(r == j));
    }
    VORM_INLINE void reflect(const Reflection<Number>& reflection) const
    {
        if (reflection.k > 0) return reflection.ofColumns(v, 1);
        for (int i = 1; i < n; ++i) {
            const Number ofRow = where(reflection.taken, reflection.beta * Number(at(reflection.u, i)));
            at(row(i), i) = Number(Element<Number>(1)) - ofRow * Number(at(reflection.u, i));
            for (int j = i + 1; j < n; ++j) {
                const Number element = where(reflection.taken, -(ofRow * Number(at(reflection.u, j))));
                at(row(i), j) = element;
                at(row(j), i) = element;
            }
        }
    }
    // Registers of objects exchange their vectors where these are to be mirrored, a single object renumbers them.
    VORM_INLINE void mirror(const MaskOf<Number>& upward)
    {
        isUpward = upward;
        if constexpr (inLanes<Number>) unmirror();
    }
    VORM_INLINE void unmirror() const
    {
        if constexpr (inLanes<Number>)
            for (int j = 0; j < n / 2; ++j) exchange(j, n - 1 - j, isUpward);
    }
    VORM_INLINE void rotate(int i, const Number& c, const Number& s, const MaskOf<Number>& mask) const
    {
        if constexpr (inLanes<Number>) {
            Number *const x = row(i), *const y = row(i + 1);
            for (int r = 0; r < n; ++r) {
                Number newX = x[r], newY = y[r];
                sym::rotate(newX, newY, c, s);
                x[r] = select(mask, newX, x[r]);
                y[r] = select(mask, newY, y[r]);
            }
        } else {
            Number *const x = row(isUpward ? n - 1 - i : i), *const y = row(isUpward ? n - 2 - i : i + 1);
            along<Number>(0, n, [&]<class Some>(int r) VORM_INLINE_LAMBDA {
                Some newX = loadSome<Some>(x + r), newY = loadSome<Some>(y + r);
                sym::rotate(newX, newY, Some(c), Some(s));
                storeSome(x + r, newX);
                storeSome(y + r, newY);
            });
        }
    }
    VORM_INLINE void exchange(int i, int j, const MaskOf<Number>& mask) const
    {
        for (int r = 0; r < n; ++r) {
            const Number x = at(row(i), r), y = at(row(j), r);
            if constexpr (inLanes<Number>) {
                const Number both = difference(mask, x, y);
                at(row(i), r) = changed(x, both);
                at(row(j), r) = changed(y, both);
            } else {
                at(row(i), r) = y;
                at(row(j), r) = x;
            }
        }
    }
};

// In the destination, for an object that is too large for other work space.
template <class T, class Object>
struct VectorsInPlace {
    static constexpr bool areWanted = true;
    Object element;
    int n;
    bool isUpward = false;

    void makeIdentity() const
    {
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) element(r, c) = T(r == c);
    }
    void reflect(const Reflection<T>& reflection) const
    {
        const int first = reflection.k + 1;
        const auto u = [&](int j) { return T(at(reflection.u, j)); };
        for (int r = 1; r < n; ++r) {
            if (reflection.k == 0) {
                for (int c = r; c < n; ++c) {
                    const T product = reflection.beta * u(r) * u(c);
                    element(r, c) = element(c, r) = r == c ? 1 - product : -product;
                }
            } else {
                const T tau = reflection.beta * pairedSum<T>(first, n, [&](int j) { return T(element(r, j)) * u(j); });
                for (int j = first; j < n; ++j) element(r, j) = T(element(r, j)) - tau * u(j);
            }
        }
    }
    void mirror(bool upward) { isUpward = upward; }
    void unmirror() const {}
    void rotate(int i, T c, T s, bool) const
    {
        const int first = isUpward ? n - 1 - i : i, second = isUpward ? first - 1 : first + 1;
        for (int r = 0; r < n; ++r) {
            T x = element(r, first), y = element(r, second);
            sym::rotate(x, y, c, s);
            element(r, first) = x;
            element(r, second) = y;
        }
    }
    void exchange(int i, int j, bool) const
    {
        for (int r = 0; r < n; ++r) {
            const T x = element(r, i);
            element(r, i) = T(element(r, j));
            element(r, j) = x;
        }
    }
};

}  // namespace vorm::eigen::sym
