// Sums of matrices whose rows have adjacent elements in all operands: as one run, as vectors, or row by row.
#pragma once

#include "elementwise/matrix_operands.hpp"
#include "frame/minmax.hpp"

namespace vorm::elementwise {

template <int length, class Op, class A, class B, class T>
VORM_INLINE void shortRun(const Op& op, const A& a, const B& b, T* dst)
{
    constexpr int width = Lanes<T>::width, full = length / width;
    unrolled<full>([&](auto k) VORM_INLINE_LAMBDA {
        op.apply(a.template lanes<Lanes<T>>(k * width), b.template lanes<Lanes<T>>(k * width)).store(dst + k * width);
    });
    runTail(op, a, b, dst, full * width, length);
}

// Objects of one row of so many elements.
template <int length, class Op, class A, class B, class D>
[[gnu::noinline]] VormStatus vectors(Op op, const A& refA, const B& refB, const D& refD, int count)
{
    const A a = refA;  // in registers, since for all a compiler knows a store might change what references lead to
    const B b = refB;
    const D d = refD;
    for (int n = 0; n < count; ++n) shortRun<length>(op, rowsOf(a, n)(0), rowsOf(b, n)(0), d.at(n));
    return StatusOk;
}

// The same with a row that all objects share, which stays in registers.
template <class T, int length>
struct HeldRow {
    static constexpr int width = Lanes<T>::width, full = length / width, rest = length % width;
    static_assert(rest < 2);
    Lanes<T> v[full + rest];

    VORM_INLINE explicit HeldRow(const T* p)
    {
        for (int k = 0; k < full; ++k) v[k] = Lanes<T>::load(p + k * width);
        if constexpr (rest != 0) v[full] = loadFirst<1>(p + full * width);
    }
    template <class L>
    VORM_INLINE L lanes(std::ptrdiff_t i) const
    {
        return v[i / width];
    }
    template <int Count>
    VORM_INLINE Lanes<T> lanes(std::ptrdiff_t i) const
    {
        return v[i / width];
    }
};
template <bool commonFirst, int length, class Op, class T, class X, class D>
[[gnu::noinline]] VormStatus heldVectors(Op op, const T* common, const X& refArray, const D& refD, int count)
{
    const HeldRow<T, length> held(common);
    const X array = refArray;
    const D d = refD;
    for (int n = 0; n < count; ++n) {
        const auto other = rowsOf(array, n)(0);
        if constexpr (commonFirst)
            shortRun<length>(op, held, other, d.at(n));
        else
            shortRun<length>(op, other, held, d.at(n));
    }
    return StatusOk;
}

template <int order, class Op, class A, class B, class T>
VORM_INLINE void squareRows(const Op& op, const A& a, const B& b, const RowsOfObject<T>& dst)
{
    if constexpr (order == 3 && sizeof(T) == sizeof(float))
        oneTile<Tile<T, 3, 3>, Tile<T, 3, 3>, Turned::none>(op, a, b, dst, 0, 0);
    else
        unrolled<order>([&](auto r) VORM_INLINE_LAMBDA { shortRun<order>(op, a(r), b(r), dst.from(r)); });
}

// Objects whose rows are not one vector.
template <int order, class Op, class A, class B, class D>
[[gnu::noinline]] VormStatus squares(Op op, const A& refA, const B& refB, const D& refD, int count)
{
    const A a = refA;
    const B b = refB;
    const D d = refD;
    for (int n = 0; n < count; ++n) squareRows<order>(op, opaqueRowsOf(a, n), opaqueRowsOf(b, n), opaqueRowsOf(d, n));
    return StatusOk;
}

// Rows of any length; width says how many elements, a constant or a number.
template <class Op, class A, class B, class T, class Width>
[[gnu::noinline]] void rowByRow(Op op, A a, B b, RowsOfObject<T> dst, Width width, int height)
{
    for (int r = 0; r < height; ++r) {
        if constexpr (std::is_same_v<Width, std::ptrdiff_t>)
            run(op, a(r), b(r), dst.from(r), width);
        else
            shortRun<Width::value>(op, a(r), b(r), dst.from(r));
    }
}

// Packed arrays and one matrix for all their objects, which repeats. As many of it as fill registers evenly make one
// vector, and what is done for some hundred elements is one run.
template <class T>
struct Repeated {
    static constexpr int longest = 64, most = 4 * RunRegister<T>::width;
    alignas(64) T elements[longest * most];
    int objects = 1;

    VORM_INLINE static bool pays(std::ptrdiff_t length, int count) { return length <= longest && count >= 2 * most; }
    Repeated(const T* object, int length)
    {
        const auto put = [&](int i) VORM_INLINE_LAMBDA { elements[i] = elementAt(object, i * sizeOf<T>); };
        for (int i = 0; i < length; ++i) put(i);
        for (; objects < most && (objects * length % most != 0 || objects * length < 128); objects *= 2)
            __builtin_memcpy(elements + objects * length, elements, std::size_t(objects * length) * sizeof(T));
    }
};

template <bool commonFirst, class Op, class T>
[[gnu::noinline]] VormStatus repeatedRuns(Op op, const T* common, const T* array, T* dst, int length, int count)
{
    const Repeated<T> repeated(common, length);
    const Along<T> same{repeated.elements};
    int n = 0;
    if (length == 9) {  // nine registers, which stay where they are
        constexpr int atOnce = Lanes<T>::width, row = 9 * atOnce;
        constexpr std::ptrdiff_t bytes = row * sizeOf<T>;
        n = count / atOnce * atOnce;
        heldVectors<commonFirst, row>(op, repeated.elements, StridedElements<const T>{array, bytes, bytes, sizeOf<T>},
                                      StridedElements<T>{dst, bytes, bytes, sizeOf<T>}, count / atOnce);
    }
    for (; n < count; n += repeated.objects) {
        const std::ptrdiff_t at = std::ptrdiff_t{n} * length;
        const Along<T> other{array + at};
        run(op, commonFirst ? same : other, commonFirst ? other : same, dst + at,
            std::ptrdiff_t{min(repeated.objects, count - n)} * length);
    }
    return StatusOk;
}

// The lengths of rows that stay in registers beside what is computed with them.
template <class T>
constexpr bool isHeld(std::ptrdiff_t length)
{
    return length == 16 || (length == 36 && sizeof(T) == sizeof(float));
}

// Objects of one row each, beside a row that all of them share.
template <bool commonFirst, class Op, class T, class X, class D>
VORM_INLINE bool besideCommon(const Op& op, const T* common, const X& array, const D& d, std::ptrdiff_t length,
                              int count)
{
    if constexpr (isStrided<D>) {
        const std::ptrdiff_t packed = length * sizeOf<T>;
        if (array.object == packed && d.object == packed && !isHeld<T>(length) && Repeated<T>::pays(length, count))
            return repeatedRuns<commonFirst>(op, common, array.p, d.p, static_cast<int>(length), count), true;
    }
    switch (length) {
    case 9: heldVectors<commonFirst, 9>(op, common, array, d, count); return true;
    case 16: heldVectors<commonFirst, 16>(op, common, array, d, count); return true;
    case 36:
        if constexpr (isHeld<T>(36)) {
            heldVectors<commonFirst, 36>(op, common, array, d, count);
            return true;
        }
        return false;
    default: return false;
    }
}

// Objects of one row each.
template <class Op, class A, class B, class D>
VORM_INLINE VormStatus vectorsOf(const Op& op, const A& a, const B& b, const D& d, std::ptrdiff_t length, int count)
{
    using T = std::remove_pointer_t<decltype(d.at(0))>;
    if constexpr (isStrided<D>) {
        const std::ptrdiff_t packed = length * sizeOf<T>;
        if (count > 1 && d.object == packed && a.object == packed) {
            if constexpr (isConstant<B>)
                return run(op, rowsOf(a, 0)(0), rowsOf(b, 0)(0), d.p, length * count), StatusOk;
            else if (b.object == packed)
                return run(op, Along<T>{a.p}, Along<T>{b.p}, d.p, length * count), StatusOk;
        }
    }
    if constexpr (!isConstant<B>) {
        if (count > 2 && b.isCommon() && !a.isCommon()) {
            if (besideCommon<false>(op, b.at(0), a, d, length, count)) return StatusOk;
        } else if (count > 2 && a.isCommon() && !b.isCommon()) {
            if (besideCommon<true>(op, a.at(0), b, d, length, count)) return StatusOk;
        }
    }
    switch (length) {
    case 9: return vectors<9>(op, a, b, d, count);
    case 16: return vectors<16>(op, a, b, d, count);
    case 25: return vectors<25>(op, a, b, d, count);
    case 36: return vectors<36>(op, a, b, d, count);
    default:
        for (int n = 0; n < count; ++n) rowByRow(op, rowsOf(a, n), rowsOf(b, n), rowsOf(d, n), length, 1);
        return StatusOk;
    }
}

template <class Op, class A, class B, class D>
[[gnu::noinline]] VormStatus rowsOfAll(Op op, const A& a, const B& b, const D& d, int width, int height, int count)
{
    using T = std::remove_pointer_t<decltype(d.at(0))>;
    const std::ptrdiff_t row = width * sizeOf<T>;
    if (height == 1 || (d.row == row && hasRowsOf<T>(a, row) && hasRowsOf<T>(b, row)))
        return vectorsOf(op, a, b, d, std::ptrdiff_t{width} * height, count);
    if (width == height) {
        switch (width) {
        case 3: return squares<3>(op, a, b, d, count);
        case 4: return squares<4>(op, a, b, d, count);
        case 5: return squares<5>(op, a, b, d, count);
        case 6: return squares<6>(op, a, b, d, count);
        default: break;
        }
    }
    const auto each = [&](auto length) VORM_INLINE_LAMBDA {
        for (int n = 0; n < count; ++n) rowByRow(op, rowsOf(a, n), rowsOf(b, n), rowsOf(d, n), length, height);
    };
    switch (width) {
    case 2: each(constant<2>); break;
    case 3: each(constant<3>); break;
    case 4: each(constant<4>); break;
    case 6: each(constant<6>); break;
    default: each(std::ptrdiff_t{width});
    }
    return StatusOk;
}

}  // namespace vorm::elementwise
