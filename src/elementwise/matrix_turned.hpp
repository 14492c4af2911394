// Sums of matrices of which one has adjacent columns where the others have adjacent rows.
#pragma once

#include "elementwise/matrix_rows.hpp"

namespace vorm::elementwise {

// The distance of the rows, where it is known when a body is compiled.
template <class Elements>
VORM_INLINE void setRows(Elements& elements, std::ptrdiff_t bytes)
{
    elements.row = bytes;
}
template <class T>
VORM_INLINE void setRows(Constant<T>&, std::ptrdiff_t)
{
}

template <Turned turned, class T, int order, bool packed, class Op, class A, class B, class D>
[[gnu::noinline]] VormStatus turnedSquares(Op op, const A& refA, const B& refB, const D& refD, int count)
{
    A a = refA;
    B b = refB;
    D d = refD;
    if constexpr (packed) {
        constexpr std::ptrdiff_t row = order * sizeOf<T>;
        setRows(a, row), setRows(b, row), setRows(d, row);
    }
    for (int n = 0; n < count; ++n)
        if constexpr (order == 3 && sizeof(T) == sizeof(float))
            oneTile<Tile<T, 3, 3>, Tile<T, 3, 3>, turned>(op, rowsOf(a, n), rowsOf(b, n), rowsOf(d, n), 0, 0);
        else
            tiles<turned>(op, opaqueRowsOf(a, n), opaqueRowsOf(b, n), opaqueRowsOf(d, n), order, order);
    return StatusOk;
}

// Packed arrays of three rows of three: some objects at once, or one by one from the first on.
template <Turned turned, class T, class Op, class A, class B>
[[gnu::noinline]] int turnedPackedThrees(Op op, const A& a, const B& b, T* dst, int count)
{
    constexpr int atOnce = PackedThrees<T>::objects, length = 9 * atOnce;
    T repeated[2][length];
    const auto source = [&](const auto& x, T* common) VORM_INLINE_LAMBDA {
        if constexpr (isConstant<std::remove_cvref_t<decltype(x)>>) {
            return x;
        } else {
            if (x.isCommon())
                for (int i = 0; i < length; ++i) common[i] = elementAt(x.p, i % 9 * sizeOf<T>);
            return StridedElements<const T>{x.isCommon() ? common : x.p, x.isCommon() ? 0 : length * sizeOf<T>, 0, 0};
        }
    };
    const auto ofA = source(a, repeated[0]);
    const auto ofB = source(b, repeated[1]);
    for (int n = 0; n < count / atOnce; ++n)
        oneTile<PackedThrees<T>, PackedThrees<T>, turned>(op, rowsOf(ofA, n), rowsOf(ofB, n),
                                                          RowsOfObject<T>{dst + n * std::ptrdiff_t{length}, 0}, 0, 0);
    return count / atOnce * atOnce;
}
template <class T, class Elements>
VORM_INLINE bool isPackedOrCommon(const Elements& x, std::ptrdiff_t bytes)
{
    return x.object == bytes || x.isCommon();
}
template <class T>
VORM_INLINE bool isPackedOrCommon(const Constant<T>&, std::ptrdiff_t)
{
    return true;
}
template <Turned turned, class T, class Op, class A, class B, class D>
[[gnu::noinline]] VormStatus turnedPackedThree(Op op, const A& refA, const B& refB, const D& refD, int count)
{
    const A a = refA;
    const B b = refB;
    const D d = refD;
    int first = 0;
    if constexpr (isStrided<D>) {
        constexpr std::ptrdiff_t object = 9 * sizeOf<T>;
        if (count >= 3 * Lanes<T>::width && d.object == object && isPackedOrCommon<T>(a, object) &&
            isPackedOrCommon<T>(b, object))
            first = turnedPackedThrees<turned>(op, a, b, d.p, count);
    }
    for (int n = first; n < count; ++n)
        oneTile<PackedThree<T>, PackedThree<T>, turned>(op, rowsOf(a, n), rowsOf(b, n), rowsOf(d, n), 0, 0);
    return StatusOk;
}
template <Turned turned, class Op, class A, class B, class T>
[[gnu::noinline]] void turnedObject(Op op, A a, B b, RowsOfObject<T> dst, int height, int width)
{
    tiles<turned>(op, a, b, dst, height, width);
}

// All operands have adjacent rows here, the odd one those of its transposed matrix; width and height are the others'.
template <Turned turned, class Op, class A, class B, class D>
VORM_INLINE VormStatus turnedOfAll(const Op& op, const A& a, const B& b, const D& d, int width, int height, int count)
{
    using T = std::remove_pointer_t<decltype(d.at(0))>;
    if (width == height) {
        const std::ptrdiff_t row = width * sizeOf<T>;
        if (d.row == row && hasRowsOf<T>(a, row) && hasRowsOf<T>(b, row)) {
            switch (width) {
            case 3: return turnedPackedThree<turned, T>(op, a, b, d, count);
            case 4: return turnedSquares<turned, T, 4, true>(op, a, b, d, count);
            case 5: return turnedSquares<turned, T, 5, true>(op, a, b, d, count);
            case 6: return turnedSquares<turned, T, 6, true>(op, a, b, d, count);
            default: break;
            }
        } else if (width == 3) {
            return turnedSquares<turned, T, 3, false>(op, a, b, d, count);
        } else if (width == 4) {
            return turnedSquares<turned, T, 4, false>(op, a, b, d, count);
        }
        if constexpr (isStrided<D>) {
            if (width == 5) return turnedSquares<turned, T, 5, false>(op, a, b, d, count);
            if (width == 6) return turnedSquares<turned, T, 6, false>(op, a, b, d, count);
        }
    }
    for (int n = 0; n < count; ++n) turnedObject<turned>(op, rowsOf(a, n), rowsOf(b, n), rowsOf(d, n), height, width);
    return StatusOk;
}

// A small matrix that all objects share and that alone is turned: turned once.
template <class T>
struct Straightened {
    static constexpr int most = 1024;
    T elements[most];
    const T* p = elements;

    template <class Elements>
    Straightened(const Elements& common, int width, int height)
    {
        const auto object = common[0];
        for (int r = 0; r < height; ++r)
            for (int c = 0; c < width; ++c) elements[r * width + c] = object(r, c);
    }
    StridedElements<const T> likeThat(const StridedElements<const T>&, int width) const
    {
        return {p, 0, width * sizeOf<T>, sizeOf<T>};
    }
    ListedElements<const T> likeThat(const ListedElements<const T>&, int width) const
    {
        return {&p, 0, 0, width * sizeOf<T>, sizeOf<T>};
    }
};
template <Turned turned, class Op, class A, class B, class D>
[[gnu::noinline]] VormStatus straightenedOnce(Op op, const A& a, const B& b, const D& d, int width, int height,
                                              int count)
{
    using T = std::remove_pointer_t<decltype(d.at(0))>;
    if constexpr (turned == Turned::first) {
        const Straightened<T> copy(a, width, height);
        return rowsOfAll(op, copy.likeThat(a, width), b, d, width, height, count);
    } else {
        const Straightened<T> copy(b, width, height);
        return rowsOfAll(op, a, copy.likeThat(b, width), d, width, height, count);
    }
}

}  // namespace vorm::elementwise
