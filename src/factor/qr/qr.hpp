// QR decomposition by Householder reflections: several objects at a time in a block of lanes, or one in the
// destination. One order of operations whatever the shape, the layout or the body.
#pragma once

#include "factor/qr/qr_object.hpp"
#include "frame/blocks.hpp"

namespace vorm::factor {

// A row-major block of one object or of a register of them, until a column is as good as zero in any of its objects.
// The square ones of order n of sizes known to the compiler.
template <class Number, class W, class H>
VORM_INLINE bool qrFactoriseHere(Number* a, W width, H height)
{
    const auto element = [&](int i, int j) VORM_INLINE_LAMBDA -> Number& { return a[i * width + j]; };
    const auto step = [&](auto k) VORM_INLINE_LAMBDA {
        const auto column = [&](int i) VORM_INLINE_LAMBDA -> Number& { return element(i, k); };
        Number beta;
        if (!makeReflector(column, column, k, height, beta)) return false;
        const auto columns = [&](auto some, int j) VORM_INLINE_LAMBDA {
            reflect<some>(
                column, [&](int i, int c) VORM_INLINE_LAMBDA -> Number& { return element(i, j + c); }, k, height, beta);
        };
        if constexpr (isFixed<W>) {
            eachFrom(behind<1>(k), width, [&](auto j) VORM_INLINE_LAMBDA { columns(constant<1>, j); });
        } else {
            int j = k + 1;
            // As many sums as there are registers for.
            constexpr int some = registersIn<Number> == 1 ? 4 : 2;
            for (; j + some <= width; j += some) columns(constant<some>, j);
            switch (width - j) {
            case 3: columns(constant<3>, j); break;
            case 2: columns(constant<2>, j); break;
            case 1: columns(constant<1>, j); break;
            default: break;
            }
        }
        return true;
    };
    if constexpr (isFixed<W>) {
        return [&]<int... k>(std::integer_sequence<int, k...>) VORM_INLINE_LAMBDA { return (... && step(constant<k>)); }
        (std::make_integer_sequence<int, reflectors(W{}, H{})>{});
    } else {
        for (int k = 0; k < reflectors(width, height); ++k)
            if (!step(k)) return false;
        return true;
    }
}

// The same, compiled once, in qr_blocks.cpp.
template <int n, class Number>
VORM_HIDDEN bool qrFactorise(Number* a);
template <class Number>
VORM_HIDDEN bool qrFactorise(Number* a, int width, int height);

// One object of the arrays' views; objects of arrays and single ones share the code.
template <class T, class Src, class Dst>
VORM_INLINE VormStatus qrSingle(const Src& src, const Dst& dst, int object, int width, int height, T* buffer)
{
    if constexpr (requires { dst.single(0); })
        return qrOne<T>(src.single(object), dst.single(object), 0, width, height, buffer);
    else
        return qrOne<T>(plain(src), plain(dst), object, width, height, buffer);
}

template <class T, class Src>
using QrNumber = std::conditional_t<inWhole<Src>, Wide<T>, Lanes<T>>;
// From order 5 on so many registers at once, as a step mostly waits for its root and divisions; smaller objects follow
// each other closely enough.
template <class T, class Src>
using QrNumbers = Several<QrNumber<T, Src>, 2>;

// Arrays of the orders 3 and 4, each in a function of its own, with views of its own: in one for both most of what the
// loops need would lie in memory.
template <int n, class T, class Src, class Dst>
VORM_SHARED VormStatus qrArray(const Src src, const Dst dst, T* buffer, int count)
{
    return inBlocks<QrNumber<T, Src>>(dst, n, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number>) {
            Number a[n * n];
            loadObjects(src, first, a, constant<n>, constant<n>);
            if (!qrFactoriseHere(a, constant<n>, constant<n>)) return StatusDivisionByZero;
            storeObjects(dst, first, a, constant<n>, constant<n>);
            return StatusOk;
        } else {
            return qrSingle<T>(src, dst, first, n, n, buffer);
        }
    });
}

// Of any shape.
template <class T, class Src, class Dst>
VORM_SHARED VormStatus qrArray(const Src src, const Dst dst, T* buffer, int width, int height, int count)
{
    const bool fits = fitsBlock(width, height), isSmallest = width == height && (width == 3 || width == 4);
    const auto buffered = [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        return fits && !(registersIn < Number >> 1 && isSmallest) && registersApart<Number>(dst, first, height, width);
    };
    return inBlocks<QrNumbers<T, Src>>(count, buffered, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number>) {
            Number a[blockElements];
            loadObjects(src, first, a, height, width);
            if (!qrFactorise(a, width, height)) return StatusDivisionByZero;
            storeObjects(dst, first, a, height, width);
            return StatusOk;
        } else {
            return qrSingle<T>(src, dst, first, width, height, buffer);
        }
    });
}

}  // namespace vorm::factor
