// Matrices of any layout, solved one by one or as many at a time as a register holds.
#pragma once

#include "eigen/registers_of_objects.hpp"
#include "eigen/sym/order_two.hpp"
#include "eigen/sym/solve.hpp"
#include "frame/blocks.hpp"
#include "frame/several_masks.hpp"

namespace vorm::eigen::sym {

// Registers of objects have room for orders up to bufferedOrder, as have single ones. Larger ones work in the caller's
// buffer; their vectors are stored last, up to an order where they would take too much of the stack.
constexpr int stackOrder = bufferedOrder, vectorsOrder = 64;

// solve() of order 3 and above, compiled once, in symmetric_blocks.cpp. The vectors start as the identity.
template <class Number>
VORM_HIDDEN VormStatus solveValues(Number* w, Number* u, int n);
template <class Number>
VORM_HIDDEN VormStatus solveVectors(Number* w, Number* u, Number* v, int n, bool sortsFirst);
template <class T, class Object>  // large enough that time goes into its loops, wherever they are: kept small
[[gnu::cold]] VORM_HIDDEN VormStatus solveInPlace(T* w, T* u, const Object& vectors, int n, bool sortsFirst);

// Single objects. ------------------------------------------------------------------------------------------------

// Elements of work space have a distance: that of one where objects lie in lanes.
template <class T, class Src>
VORM_SHARED void copyObject(const Src& src, int object, int n, T* to, int distance = 1)
{
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c, to += distance) entry(to, 0) = T(src(object, r, c));
}
template <class T>
VORM_INLINE void copyValues(const T* from, int n, T* dstValues, int distance = 1)
{
    for (int i = 0; i < n; ++i, from += distance) entry(dstValues, i) = T(entry(from, 0));
}

template <class T, class Src>
VORM_SHARED VormStatus valuesOf(const Src src, int object, T* buffer, T* dstValues, int n)
{
    T w[stackOrder * stackOrder], u[stackOrder];
    const bool isSmall = n <= stackOrder;
    T* const matrix = isSmall ? w : buffer;
    copyObject(src, object, n, matrix);
    const VormStatus status = solveValues(matrix, isSmall ? u : dstValues, n);
    copyValues(matrix, n, dstValues);
    return status;
}

template <class T, class Dst>
VORM_INLINE auto objectOf(const Dst& dst, int object)
{
    if constexpr (requires { dst.width; }) {
        return elementsOf(dst)[object];
    } else {
        const auto [row, column] = distancesOf<T>(dst);
        return typename StridedElements<T>::Object{dst.object(object), row, column};
    }
}
template <class T, class Dst>
VORM_SHARED void storeEigenvectors(const Dst& dst, int object, int n, const T* v, int distance = 1)
{
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) dst(object, r, c) = v[(c * n + r) * distance];
}
template <class T, class Src, class Dst>
VORM_SHARED VormStatus vectorsOfSmall(const Src src, const Dst dst, int object, T* dstValues, int n, bool sortsFirst)
{
    T w[stackOrder * stackOrder], v[stackOrder * stackOrder], u[stackOrder];
    copyObject(src, object, n, w);
    const VormStatus status = solveVectors(w, u, v, n, sortsFirst);
    storeEigenvectors(dst, object, n, v);
    copyValues(w, n, dstValues);
    return status;
}
template <class T, class Src, class Dst>
VORM_SHARED VormStatus vectorsOfLarge(const Src src, const Dst dst, int object, T* buffer, T* dstValues, int n,
                                      bool sortsFirst)
{
    copyObject(src, object, n, buffer);
    VormStatus status;
    if (n <= vectorsOrder) {
        T v[vectorsOrder * vectorsOrder];
        status = solveVectors(buffer, dstValues, v, n, sortsFirst);
        storeEigenvectors(dst, object, n, v);
    } else {
        status = solveInPlace(buffer, dstValues, objectOf<T>(dst, object), n, sortsFirst);
    }
    copyValues(buffer, n, dstValues);
    return status;
}

// As many objects as a number holds. -----------------------------------------------------------------------------

template <class T, class View>
[[gnu::noinline]] void scatterEigenvectors(const View& view, int first, int objects, int n, const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) view(first + l, r, c) = from[(c * n + r) * objects + l];
}
// Element (r, c) of each matrix is at v[c * n + r].
template <class Number, class View>
VORM_INLINE void storeEigenvectorsInLanes(const View& view, int first, int n, const Number* v)
{
    using T = Element<Number>;
    if constexpr (isAdjacent<View> || isInPlanes<View>)
        eachRegister<Number>(n, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            for (int r = 0; r < n; ++r) {
                const auto element = [&](int c) VORM_INLINE_LAMBDA { return registerOf(v[c * n + r], k); };
                if constexpr (isAdjacent<View>) {
                    T* to[RegisterIn<Number>::width];
                    rowsAt(
                        view, object, [r](int) VORM_INLINE_LAMBDA { return r; }, to);
                    storeRows(to, element, n);
                } else {
                    for (int c = 0; c < n; ++c) element(c).store(view.element(r, c) + object);
                }
            }
        });
    else
        scatterEigenvectors(view, first, objectsIn<Number>, n, reinterpret_cast<const T*>(v));
}

template <class Number, class Src>
VORM_INLINE VormStatus valuesInLanes(const Src& src, int first, Element<Number>* dstValues, int n)
{
    Number w[stackOrder * stackOrder], u[stackOrder];
    loadObjects(src, first, n, w);
    const VormStatus status = solveValues(w, u, n);
    if (status == StatusOk) storeValues(w, first, n, dstValues);
    return status;
}
template <class Number, class Src, class Dst>
VORM_INLINE VormStatus vectorsInLanes(const Src& src, const Dst& dst, int first, Element<Number>* dstValues, int n)
{
    Number w[stackOrder * stackOrder], v[stackOrder * stackOrder], u[stackOrder];
    loadObjects(src, first, n, w);
    const VormStatus status = solveVectors(w, u, v, n, false);
    if (status == StatusOk) {
        storeEigenvectorsInLanes(dst, first, n, v);
        storeValues(w, first, n, dstValues);
    }
    return status;
}

// Fewer objects than a number holds: copies of the last fill its lanes.
template <class Number, class Src>
VORM_INLINE void loadRest(const Src& src, int first, int objects, int n, Number* w)
{
    for (int l = 0; l < objectsIn<Number>; ++l)
        copyObject(src, first + min(l, objects - 1), n, reinterpret_cast<Element<Number>*>(w) + l, objectsIn<Number>);
}
template <class Number>
VORM_INLINE void storeValuesOfRest(const Number* values, int objects, int n, Element<Number>* dstValues)
{
    using T = Element<Number>;
    for (int l = 0; l < objects; ++l)
        copyValues(reinterpret_cast<const T*>(values) + l, n, dstValues + l * n, objectsIn<Number>);
}
template <class Number, class Src>
VORM_SHARED VormStatus valuesOfRest(const Src& src, int first, int objects, Element<Number>* dstValues, int n)
{
    Number w[stackOrder * stackOrder], u[stackOrder];
    loadRest(src, first, objects, n, w);
    const VormStatus status = solveValues(w, u, n);
    if (status == StatusOk) storeValuesOfRest(w, objects, n, dstValues + first * std::ptrdiff_t{n});
    return status;
}
template <class Number, class Src, class Dst>
VORM_SHARED VormStatus vectorsOfRest(const Src& src, const Dst& dst, int first, int objects, Element<Number>* dstValues,
                                     int n)
{
    Number w[stackOrder * stackOrder], v[stackOrder * stackOrder], u[stackOrder];
    loadRest(src, first, objects, n, w);
    const VormStatus status = solveVectors(w, u, v, n, false);
    if (status != StatusOk) return status;
    for (int l = 0; l < objects; ++l)
        storeEigenvectors(dst, first + l, n, reinterpret_cast<const Element<Number>*>(v) + l, objectsIn<Number>);
    storeValuesOfRest(w, objects, n, dstValues + first * std::ptrdiff_t{n});
    return status;
}

// Orders 1 and 2. ------------------------------------------------------------------------------------------------

template <class Number, class Src>
VORM_INLINE OrderTwo<Number> solveTwo(const Src& src, int first, Number (&m)[2][2])
{
    loadMatrices(src, first, m);
    return valuesOfTwo(m[0][0], m[0][1], m[1][1]);
}
template <class Number>
VORM_INLINE void storeTwo(const OrderTwo<Number>& of, int first, Element<Number>* dstValues)
{
    if constexpr (inLanes<Number>)
        storeValues(of.values, first, 2, dstValues);
    else
        copyValues(of.values, 2, dstValues + first * std::ptrdiff_t{2});
}
template <class Number, class Src>
VORM_INLINE VormStatus valuesOfTwos(const Src& src, int first, Element<Number>* dstValues)
{
    Number m[2][2];
    const OrderTwo<Number> of = solveTwo(src, first, m);
    if (any(of.isSingular)) return StatusSingular;
    storeTwo(of, first, dstValues);
    return StatusOk;
}
template <class Number, class Src, class Dst>
VORM_INLINE VormStatus vectorsOfTwos(const Src& src, const Dst& dst, int first, Element<Number>* dstValues)
{
    Number m[2][2], p, q;
    const OrderTwo<Number> of = solveTwo(src, first, m);
    if (any(of.isSingular)) return StatusSingular;
    vectorsOfTwo(m[0][0], m[0][1], m[1][1], of, p, q);
    const Number vectors[2][2] = {{p, -q}, {q, p}};
    storeMatrices(dst, first, vectors);
    storeTwo(of, first, dstValues);
    return StatusOk;
}

// Arrays, and single matrices as arrays of one. ------------------------------------------------------------------

template <class T, class Src>
using WidestFor = std::conditional_t<isAdjacent<Src> || isInPlanes<Src>, Wide<T>, Lanes<T>>;
// Roots and divisions of a rotation wait for each other: four registers of objects share the time, and finished objects
// waiting for the others cost less than that.
template <class T, class Src>
using SeveralFor = Several<WidestFor<T, Src>, 4>;

template <class T, class Src>
VORM_SHARED VormStatus valuesOfArrayOfTwos(const Src src, T* dstValues, int count)
{
    return inBlocks<WidestFor<T, Src>>(
        count, []<class>(int) VORM_INLINE_LAMBDA { return true; },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA { return valuesOfTwos<Number>(src, first, dstValues); });
}
template <class T, class Src>
VORM_SHARED VormStatus valuesOfArray(const Src src, T* buffer, T* dstValues, int n, int count)
{
    if (n == 1) {
        for (int object = 0; object < count; ++object) entry(dstValues, object) = T(src(object, 0, 0));
        return StatusOk;
    }
    return inBlocks<SeveralFor<T, Src>>(
        count, [&]<class>(int) VORM_INLINE_LAMBDA { return n <= stackOrder; },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            if constexpr (inLanes<Number>)
                return valuesInLanes<Number>(src, first, dstValues, n);
            else
                return valuesOf<T>(src, first, buffer, dstValues + first * std::ptrdiff_t{n}, n);
        },
        [&]<class Number>(int first, int objects) VORM_INLINE_LAMBDA {
            if (n > stackOrder) return VormStatus{StatusNoConvergence};  // one by one
            return valuesOfRest<Number>(src, first, objects, dstValues, n);
        });
}

template <class T, class Src, class Dst>
VORM_SHARED VormStatus vectorsOfArrayOfTwos(const Src src, const Dst dst, T* dstValues, int count)
{
    return inBlocks<WidestFor<T, Src>>(dst, 2, 2, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return vectorsOfTwos<Number>(src, dst, first, dstValues);
    });
}
template <class T, class Src, class Dst>
VORM_SHARED VormStatus vectorsOfOne(const Src& src, const Dst& dst, int object, T* buffer, T* dstValues, int n,
                                    bool sortsFirst)
{
    if (n <= stackOrder) return vectorsOfSmall<T>(src, dst, object, dstValues, n, sortsFirst);
    return vectorsOfLarge<T>(src, dst, object, buffer, dstValues, n, sortsFirst);
}
template <class T, class Src, class Dst>
VORM_SHARED VormStatus vectorsOfArray(const Src src, const Dst dst, T* buffer, T* dstValues, int n, int count)
{
    if (n == 1) {
        for (int object = 0; object < count; ++object) {
            entry(dstValues, object) = T(src(object, 0, 0));
            dst(object, 0, 0) = T(1);
        }
        return StatusOk;
    }
    return inBlocks<SeveralFor<T, Src>>(
        count,
        [&]<class Number>(int first)
            VORM_INLINE_LAMBDA { return n <= stackOrder && registersApart<Number>(dst, first, n, n); },
        [&]<class Number>(int first) VORM_INLINE_LAMBDA {
            if constexpr (inLanes<Number>)
                return vectorsInLanes<Number>(src, dst, first, dstValues, n);
            else
                return vectorsOfOne<T>(src, dst, first, buffer, dstValues + first * std::ptrdiff_t{n}, n, false);
        },
        [&]<class Number>(int first, int objects) VORM_INLINE_LAMBDA {
            if (n > stackOrder) return VormStatus{StatusNoConvergence};  // one by one
            return vectorsOfRest<Number>(src, dst, first, objects, dstValues, n);
        });
}

}  // namespace vorm::eigen::sym
