// Solving with the factors of a QR decomposition, Q R x = b: the reflections of b, then substitution with R. One
// object, a register of objects or several.
#pragma once

#include "factor/qr/qr_object.hpp"
#include "factor/right_sides.hpp"
#include "factor/sums.hpp"
#include "frame/blocks.hpp"
#include "frame/object_rows.hpp"
#include "frame/pin.hpp"

namespace vorm::factor {

// -2 / v'v of the reflector of column k: a(i, k) are the factors.
template <class Number, class A>
VORM_INLINE Number scaleOf(const A& a, int k, int height)
{
    PairedSums<Number, 1> squares{{Number(1)}};
    squares.add(k + 1, height, [&](int i, Number(&term)[1]) VORM_INLINE_LAMBDA {
        const Number component = a(i, k);
        term[0] = component * component;
    });
    return Number(-2) / squares.start[0];
}

// Instead of the scales: they are to be formed along with the sums.
struct Unknown {};

template <class Number, class A, class X, class K, class H, class Scale>
VORM_INLINE void reflectVector(const A& a, const X& x, K k, H height, const Scale& scale)
{
    using T = Element<Number>;
    Number w;
    if constexpr (std::is_same_v<Scale, Unknown>) {
        PairedSums<Number, 2> sums{{Number(x(k)), Number(RegisterIn<Number>(T(1)))}};
        sums.add(behind<1>(k), height, [&](auto i, Number(&term)[2]) VORM_INLINE_LAMBDA {
            const Number component = a(i, k);
            term[0] = component * Number(x(i)), term[1] = component * component;
        });
        w = Number(RegisterIn<Number>(T(-2))) / sums.start[1] * sums.start[0];
    } else {
        PairedSums<Number, 1> sums{{Number(x(k))}};
        sums.add(behind<1>(k), height,
                 [&](auto i, Number(&term)[1]) VORM_INLINE_LAMBDA { term[0] = Number(a(i, k)) * Number(x(i)); });
        w = Number(scale(k)) * sums.start[0];
    }
    x(k) = Number(x(k)) + w;
    eachFrom(behind<1>(k), height, [&](auto i) VORM_INLINE_LAMBDA { x(i) = Number(x(i)) + Number(a(i, k)) * w; });
}

// Square orders 3 to 6: an unknown is subtracted everywhere as soon as it is found.
template <int n, class Number, class A, class Scale>
VORM_INLINE void qrSolveSmall(const A& a, Number* x, const Scale& scale)
{
    const auto element = [&](int i) VORM_INLINE_LAMBDA -> Number& { return x[i]; };
    unrolled<n - 1>([&](auto k) VORM_INLINE_LAMBDA { reflectVector<Number>(a, element, k, constant<n>, scale); });
    unrolled<n>([&](auto above) VORM_INLINE_LAMBDA {
        constexpr int j = n - 1 - above;
        x[j] = x[j] / a(j, j);
        unrolled<j>([&](auto i) VORM_INLINE_LAMBDA { x[i] = x[i] - a(i, j) * x[j]; });
    });
}

// The same for arrays in memory, and other shapes that fit a block: compiled once, in qr_blocks.cpp. Scales are null
// where they are to be formed.
template <int n, class Number>
VORM_HIDDEN void qrSolve(const Number* a, Number* x);
template <int n, class Factor, class Number>
VORM_HIDDEN void qrSolve(const Factor* a, const Factor* scales, Number* x);
// Several registers of the orders 3 to 6 are not among the shapes of this one.
template <class Factor, class Number>
VORM_HIDDEN void qrSolve(const Factor* a, const Factor* scales, Number* x, int width, int height);

// One object of any shape.
template <class T, class M, class B, class X>
VORM_SHARED void qrSolveOne(const M matrix, const B b, const X dst, int object, int width, int height, T* buffer)
{
    const auto small = [&](auto n) VORM_INLINE_LAMBDA {
        T a[n * n], x[n];
        gatherObjects(matrix, object, 1, n, n, a);
        for (int i = 0; i < n; ++i) x[i] = b(object, i);
        qrSolve<n>(a, x);
        for (int i = 0; i < n; ++i) dst(object, i) = x[i];
    };
    if (width == height) switch (width) {
        case 3: return small(constant<3>);
        case 4: return small(constant<4>);
        case 5: return small(constant<5>);
        case 6: return small(constant<6>);
        default: break;
        }

    const auto a = [&](int i, int k) VORM_INLINE_LAMBDA { return T(matrix(object, i, k)); };
    const auto y = [&](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return entry(buffer, i); };
    for (int i = 0; i < height; ++i) y(i) = T(b(object, i));
    for (int k = 0; k < reflectors(width, height); ++k) reflectVector<T>(a, y, k, height, Unknown{});
    const auto x = [&]() VORM_INLINE_LAMBDA {
        if constexpr (adjacentRows<M> && isAdjacent<X>)
            return AdjacentRow<T>{dst.object(object)};
        else
            return [&dst, object](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return dst(object, i); };
    }();
    const auto row = [&](int i) VORM_INLINE_LAMBDA {
        if constexpr (adjacentRows<M> && isAdjacent<X>)
            return AdjacentRow<const T>{rowAt(matrix, object, i)};
        else
            return [&a, i](int c) VORM_INLINE_LAMBDA { return a(i, c); };
    };
    for (int i = width - 1; i >= 0; --i) x(i) = (T(y(i)) - sumOfProducts<T>(row(i), x, i + 1, width)) / a(i, i);
}
// Objects of arrays and single ones share the code.
template <class T, class M, class B, class X>
VORM_INLINE void qrSolveSingle(const M& matrix, const B& b, const X& dst, int object, int width, int height, T* buffer)
{
    if constexpr (requires { dst.single(0); })
        qrSolveOne<T>(matrix.single(object), b.single(object), dst.single(object), 0, width, height, buffer);
    else
        qrSolveOne<T>(plain(matrix), plain(b), plain(dst), object, width, height, buffer);
}

// Vectors with their own matrices. A function for each order, as qrArray is. ----------------------------------------

template <int n, class T, class M, class B, class X>
VORM_SHARED void qrSolvePairs(const M matrix, const B b, const X dst, T* buffer, int count)
{
    inBlocks<Wide<T>>(dst, 1, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number>) {
            Number a[n * n], x[n];
            loadObjects(matrix, first, a, constant<n>, constant<n>);
            loadVectors(b, first, x, constant<n>);
            if constexpr (n <= 4 || isInPlanes<M>)
                qrSolveSmall<n>([&](int i, int j) VORM_INLINE_LAMBDA { return a[i * n + j]; }, x, Unknown{});
            else
                qrSolve<n>(a, x);
            storeVectors(dst, first, x, constant<n>);
        } else {
            qrSolveSingle<T>(matrix, b, dst, first, n, n, buffer);
        }
        return StatusOk;
    });
}

// Shapes without a straight-line body run so many registers of objects at once, as every sum waits for its last
// unknown.
template <class T>
using QrOwnMatrices = Several<Wide<T>, 2>;
template <class L>
using QrOneMatrix = Several<L, 4>;

template <class T, class M, class B, class X>
VORM_SHARED void qrSolvePairs(const M& matrix, const B& b, const X& dst, T* buffer, int width, int height, int count)
{
    const bool fits = fitsBlock(width, height), isSmall = isSmallSquare(width, height);
    const auto buffered = [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return fits && !(registersIn < Number >> 1 && isSmall) && registersApart<Number>(dst, first, 1, width);
    };
    inBlocks<QrOwnMatrices<T>>(count, buffered, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number>) {
            Number a[blockElements], x[blockElements];
            loadObjects(matrix, first, a, height, width);
            loadLongVectors(b, first, x, height);
            qrSolve(a, static_cast<const Number*>(nullptr), x, width, height);
            storeLongVectors(dst, first, x, width);
        } else {
            qrSolveSingle<T>(matrix, b, dst, first, width, height, buffer);
        }
        return StatusOk;
    });
}

// All vectors with one matrix, whose elements and scales are loaded and formed once per call. ------------------------

// a[i] = from[i] in every lane, and the scales of all columns; compiled once, in qr_blocks.cpp.
template <class L>
VORM_HIDDEN void qrSpread(const Element<L>* from, L* a, L* scales, int width, int height);

template <int n, class L, class M, class B, class X>
VORM_SHARED void qrSolveVectorsIn(const M matrix, const B b, const X dst, int count)
{
    using T = Element<L>;
    T loaded[n * n];
    gatherObjects(matrix, 0, 1, n, n, loaded);
    L a[n * n], scales[n];
    qrSpread(loaded, a, scales, n, n);
    // In registers all coefficients would be too many, and the unknowns evicted for them: the compiler is to take
    // these for memory that a store might change.
    const L *const factors = opaque(a), *const betas = opaque(scales);
    inBlocks<Several<L, 2>>(dst, 1, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        constexpr bool isSingle = !inLanes<Number>;
        using Some = std::conditional_t<isSingle, Lanes<T>, Number>;
        Some x[n];
        if constexpr (isSingle)
            for (int i = 0; i < n; ++i) x[i] = T(b(first, i));
        else
            loadVectors(b, first, x, constant<n>);
        if constexpr (registersIn < Number >> 1)
            qrSolveSmall<n>([&](int i, int j) VORM_INLINE_LAMBDA { return narrowed<Some>(factors[i * n + j]); }, x,
                            [&](int k) VORM_INLINE_LAMBDA { return narrowed<Some>(betas[k]); });
        else
            qrSolve<n>(factors, betas, x);
        if constexpr (isSingle)
            for (int i = 0; i < n; ++i) dst(first, i) = firstLane(x[i]);
        else
            storeVectors(dst, first, x, constant<n>);
        return StatusOk;
    });
}

// Of any shape; of elements anywhere the orders 3 to 6 too.
template <class L, class M, class B, class X, class T>
VORM_SHARED void qrSolveVectorsIn(const M& matrix, const B& b, const X& dst, T* buffer, int width, int height,
                                  int count)
{
    const bool isSmall = isSmallSquare(width, height),
               fits = isSmall || (fitsBlock(width, height) && count >= narrow<T>);
    L a[blockElements], scales[blockElements];
    if (fits) {
        T loaded[blockElements];
        gatherObjects(matrix, 0, 1, height, width, loaded);
        qrSpread(loaded, a, scales, width, height);
    }
    const auto buffered = [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return fits && !(registersIn < Number >> 1 && isSmall) && registersApart<Number>(dst, first, 1, width);
    };
    inBlocks<QrOneMatrix<L>>(count, buffered, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number>) {
            Number x[blockElements];
            loadLongVectors(b, first, x, height);
            qrSolve(a, scales, x, width, height);
            storeLongVectors(dst, first, x, width);
        } else if (isSmall) {
            Lanes<T> x[6];
            for (int i = 0; i < height; ++i) x[i] = T(b(first, i));
            qrSolve(a, scales, x, width, height);
            for (int i = 0; i < width; ++i) dst(first, i) = firstLane(x[i]);
        } else {
            qrSolveSingle<T>(matrix, b, dst, first, width, height, buffer);
        }
        return StatusOk;
    });
}

template <int n, class T, class M, class B, class X>
VORM_INLINE void qrSolveVectors(const M& matrix, const B& b, const X& dst, int count)
{
    inRegistersThatPay<Wide<T>>(count,
                                [&]<class L>() VORM_INLINE_LAMBDA { qrSolveVectorsIn<n, L>(matrix, b, dst, count); });
}
template <class T, class M, class B, class X>
VORM_INLINE void qrSolveVectors(const M& matrix, const B& b, const X& dst, T* buffer, int width, int height, int count)
{
    inRegistersThatPay<Wide<T>>(count, [&]<class L>() VORM_INLINE_LAMBDA {
        qrSolveVectorsIn<L>(matrix, b, dst, buffer, width, height, count);
    });
}

}  // namespace vorm::factor
