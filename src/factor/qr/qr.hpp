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

// As many objects of the square orders 3 to 6 as a register holds.
template <int n, class Number, class Src, class Dst>
VORM_INLINE VormStatus qrObjects(const Src& src, const Dst& dst, int first)
{
    Number a[n * n];
    loadObjects(src, first, a, constant<n>, constant<n>);
    constexpr bool here = n <= 4 && (isAdjacent<Src> || isInPlanes<Src>);
    if (!(here ? qrFactoriseHere(a, constant<n>, constant<n>) : qrFactorise<n>(a))) return StatusDivisionByZero;
    storeObjects(dst, first, a, constant<n>, constant<n>);
    return StatusOk;
}

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
using QrNumber = std::conditional_t<isAdjacent<Src> || isInPlanes<Src>, Wide<T>, Lanes<T>>;
// From order 5 on so many registers at once, as a step mostly waits for its root and divisions; smaller objects follow
// each other closely enough.
template <class T, class Src>
using QrNumbers = Several<QrNumber<T, Src>, 2>;

// Arrays. Each order in a function of its own, with views of its own: in one for all of them most of what the loops
// need would lie in memory.
template <int n, class T, class Src, class Dst>
VORM_SHARED VormStatus qrArray(const Src src, const Dst dst, T* buffer, int count)
{
    using Most = std::conditional_t<(n > 4), QrNumbers<T, Src>, QrNumber<T, Src>>;
    return inBlocks<Most>(dst, n, n, count, [&]<class Number>(int first) VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number>)
            return qrObjects<n, Number>(src, dst, first);
        else
            return qrSingle<T>(src, dst, first, n, n, buffer);
    });
}

template <class T, class Src, class Dst>
VORM_SHARED VormStatus qrArray(const Src src, const Dst dst, T* buffer, int width, int height, int count)
{
    const bool fits = fitsBlock(width, height);
    const auto buffered = [&]<class Number>(int first)
                              VORM_INLINE_LAMBDA { return fits && registersApart<Number>(dst, first, height, width); };
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
