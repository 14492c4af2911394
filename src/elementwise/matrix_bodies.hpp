// The bodies behind matrices.hpp: which of them a call is for, and those for elements anywhere and for pointer layout.
#pragma once

#include "elementwise/matrices.hpp"
#include "elementwise/matrix_turned.hpp"
#include "frame/overlap.hpp"
#include "frame/planes.hpp"

namespace vorm::elementwise {

// Elements anywhere. ---------------------------------------------------------------------------------

template <class Elements>
VORM_INLINE auto objectOf(const Elements& elements, int n)
{
    return elements[n];
}
template <class T>
VORM_INLINE auto objectOf(const Constant<T>& constant, int)
{
    return [val = constant.val](int, int) VORM_INLINE_LAMBDA { return val; };
}

template <class T, class Op, class A, class B, class D, class Width>
[[gnu::noinline]] VormStatus rowsAnywhere(Op op, const A& refA, const B& refB, const D& refD, Width width, int height,
                                          int count)
{
    const A a = refA;
    const B b = refB;
    const D d = refD;
    for (int n = 0; n < count; ++n) {
        const auto ofA = objectOf(a, n);
        const auto ofB = objectOf(b, n);
        const auto ofD = d[n];
        for (int r = 0; r < height; ++r) {
            const auto one = [&](int c) VORM_INLINE_LAMBDA { ofD(r, c) = op.apply(T(ofA(r, c)), T(ofB(r, c))); };
            if constexpr (std::is_same_v<Width, int>) {
#pragma GCC unroll 4
                for (int c = 0; c < width; ++c) one(c);
            } else {
                unrolled<Width::value>(one);
            }
        }
    }
    return StatusOk;
}
template <class T, class Op, class A, class B, class D>
VORM_INLINE VormStatus anywhere(const Op& op, const A& a, const B& b, const D& d, int width, int height, int count)
{
    switch (width) {
    case 3: return rowsAnywhere<T>(op, a, b, d, constant<3>, height, count);
    case 4: return rowsAnywhere<T>(op, a, b, d, constant<4>, height, count);
    case 5: return rowsAnywhere<T>(op, a, b, d, constant<5>, height, count);
    case 6: return rowsAnywhere<T>(op, a, b, d, constant<6>, height, count);
    default: return rowsAnywhere<T>(op, a, b, d, width, height, count);
    }
}

// Standard and list layout, by what lies side by side. -----------------------------------------------

template <class T, class Op, class A, class B, class D>
VORM_INLINE VormStatus byRowsOrColumns(const Op& op, const A& a, const B& b, const D& d, int width, int height,
                                       int count)
{
    if (!hasAdjacentRows<T>(d)) return anywhere<T>(op, a, b, d, width, height, count);
    const bool rowsA = hasAdjacentRows<T>(a), rowsB = hasAdjacentRows<T>(b);
    if (rowsA && rowsB) return rowsOfAll(op, a, b, d, width, height, count);
    if (d.row < width * sizeOf<T>) return anywhere<T>(op, a, b, d, width, height, count);  // rows that share memory
    if (!(rowsA || hasAdjacentColumns<T>(a)) || !(rowsB || hasAdjacentColumns<T>(b)))
        return anywhere<T>(op, a, b, d, width, height, count);
    const bool straightens = count > 3 && std::int64_t{width} * height <= Straightened<T>::most;
    if (rowsB) {
        if constexpr (!isConstant<B>)
            if (straightens && a.isCommon()) return straightenedOnce<Turned::first>(op, a, b, d, width, height, count);
        return turnedOfAll<Turned::first>(op, transposed(a), b, d, width, height, count);
    }
    if constexpr (!isConstant<B>) {
        if (!rowsA) return turnedOfAll<Turned::result>(op, transposed(a), transposed(b), d, height, width, count);
        if (straightens && b.isCommon()) return straightenedOnce<Turned::second>(op, a, b, d, width, height, count);
        return turnedOfAll<Turned::second>(op, a, transposed(b), d, width, height, count);
    }
    return StatusOk;  // a constant has every kind of rows
}

// Pointer layout. ------------------------------------------------------------------------------------

// Element (r, c) of all objects as the source of a run.
template <class T>
VORM_INLINE auto planeOf(const TabledElements<const T>& x, int r, int c)
{
    return Along<T>{x.plane(r, c)};
}
template <class T>
VORM_INLINE auto planeOf(const Constant<T>& constant, int, int)
{
    return Everywhere<T>{constant.val};
}
template <class T>
VORM_INLINE auto sameInPlane(const TabledElements<const T>& x, int r, int c)
{
    return Everywhere<T>{T(elementAt(x.plane(r, c), 0))};
}
template <class T>
VORM_INLINE auto sameInPlane(const Constant<T>& constant, int, int)
{
    return Everywhere<T>{constant.val};
}

template <class T>
VORM_INLINE bool liesInPlanes(const TabledElements<T>& x)
{
    return x.isCommon() || x.object == sizeOf<T>;
}
template <class T>
VORM_INLINE bool liesInPlanes(const Constant<T>&)
{
    return true;
}
template <class Elements>
VORM_INLINE bool isTable(const Elements& x, int width)
{
    return x.row == width && x.column == 1;
}
template <class T>
VORM_INLINE bool isTable(const Constant<T>&, int)
{
    return true;
}

template <class Op, class T, class B>
VORM_INLINE VormStatus tabled(const Op& op, const TabledElements<const T>& a, const B& b, const TabledElements<T>& d,
                              int width, int height, int count)
{
    if (isTable(a, width) && isTable(b, width) && std::int64_t{width} * height <= INT_MAX) width *= height, height = 1;
    if (!(count >= Lanes<T>::width && liesInPlanes(a) && liesInPlanes(b) && liesInPlanes(d) &&
          planesApart(d.pp, height, width, count * sizeOf<T>, count)))
        return anywhere<T>(op, a, b, d, width, height, count);
    const auto eachPlane = [&](const auto& ofA, const auto& ofB) VORM_INLINE_LAMBDA {
        for (int r = 0; r < height; ++r)
            for (int c = 0; c < width; ++c) run(op, ofA(a, r, c), ofB(b, r, c), d.plane(r, c), count);
    };
    const auto own = [](const auto& x, int r, int c) VORM_INLINE_LAMBDA { return planeOf(x, r, c); };
    const auto same = [](const auto& x, int r, int c) VORM_INLINE_LAMBDA { return sameInPlane(x, r, c); };
    if (!a.isCommon()) {
        if constexpr (!isConstant<B>)
            if (b.isCommon()) return eachPlane(own, same), StatusOk;
        eachPlane(own, own);
    } else {
        if constexpr (!isConstant<B>) eachPlane(same, own);
    }
    return StatusOk;
}

// ----------------------------------------------------------------------------------------------------

template <class Op, class A, class B, class D>
VormStatus matrixObjects(const A& a, const B& b, const D& d, int width, int height, int count)
{
    if constexpr (requires { d.plane(0, 0); }) {
        return tabled(Op(), a, b, d, width, height, count);
    } else {
        using T = std::remove_pointer_t<decltype(d.at(0))>;
        // Where columns of the destination lie side by side, and share no memory, the same is done with all matrices
        // transposed.
        const bool byColumns = !hasAdjacentRows<T>(d) && hasAdjacentColumns<T>(d) && d.column >= height * sizeOf<T>;
        const A usedA = byColumns ? transposed(a) : a;
        const B usedB = byColumns ? transposed(b) : b;
        const D usedD = byColumns ? transposed(d) : d;
        return byRowsOrColumns<T>(Op(), usedA, usedB, usedD, byColumns ? height : width, byColumns ? width : height,
                                  count);
    }
}

}  // namespace vorm::elementwise
