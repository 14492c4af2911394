// The bodies behind matrices.hpp.
#pragma once

#include "elementwise/matrices.hpp"
#include "elementwise/matrix_tiles.hpp"
#include "elementwise/runs.hpp"
#include "frame/minmax.hpp"
#include "frame/overlap.hpp"
#include "frame/pin.hpp"
#include "frame/planes.hpp"

namespace vorm::elementwise {

// How an operand lies. A constant fits every way.
template <class T>
constexpr std::ptrdiff_t sizeOf = sizeof(T);

template <class T, class Elements>
VORM_INLINE bool hasAdjacentRows(const Elements& x)
{
    return x.column == sizeOf<T>;
}
template <class T>
VORM_INLINE bool hasAdjacentRows(const Constant<T>&)
{
    return true;
}
template <class T, class Elements>
VORM_INLINE bool hasAdjacentColumns(const Elements& x)
{
    return x.row == sizeOf<T>;
}
template <class T>
VORM_INLINE bool hasAdjacentColumns(const Constant<T>&)
{
    return true;
}
template <class T, class Elements>
VORM_INLINE bool hasRowsOf(const Elements& x, std::ptrdiff_t bytes)
{
    return x.row == bytes;
}
template <class T>
VORM_INLINE bool hasRowsOf(const Constant<T>&, std::ptrdiff_t)
{
    return true;
}
template <class T>
VORM_INLINE const Constant<T>& transposed(const Constant<T>& constant)
{
    return constant;
}
template <class X>
constexpr bool isStrided = requires(X x)
{
    x.object, x.p;
};

// Rows of adjacent elements in all operands. --------------------------------------------------------

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

// Opaque, or a compiler keeps a pointer for each row of each operand, in memory.
template <class Elements>
VORM_INLINE auto opaqueRowsOf(const Elements& elements, int n)
{
    auto rows = rowsOf(elements, n);
    rows.p = opaque(rows.p);
    return rows;
}
template <class T>
VORM_INLINE auto opaqueRowsOf(const Constant<T>& constant, int n)
{
    return rowsOf(constant, n);
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

// Whether a row fits the registers beside what is computed with it.
template <class T>
constexpr bool isHeld(int length)
{
    return length <= 9 * Lanes<T>::width;
}

// Objects of one row each, beside a row that all of them share.
template <bool commonFirst, class Op, class T, class X, class D>
VORM_INLINE bool besideCommon(const Op& op, const T* common, const X& array, const D& d, std::ptrdiff_t length,
                              int count)
{
    if constexpr (isStrided<D>) {
        const std::ptrdiff_t packed = length * sizeOf<T>;
        const bool fills =
            length % Lanes<T>::width == 0 && isHeld<T>(static_cast<int>(min<std::ptrdiff_t>(length, 99)));
        if (array.object == packed && d.object == packed && !fills && Repeated<T>::pays(length, count))
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

// One operand turned. --------------------------------------------------------------------------------

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
        // Where columns of the destination lie side by side the same is done with all matrices transposed.
        const bool byColumns = !hasAdjacentRows<T>(d) && hasAdjacentColumns<T>(d);
        const A usedA = byColumns ? transposed(a) : a;
        const B usedB = byColumns ? transposed(b) : b;
        const D usedD = byColumns ? transposed(d) : d;
        return byRowsOrColumns<T>(Op(), usedA, usedB, usedD, byColumns ? height : width, byColumns ? width : height,
                                  count);
    }
}

}  // namespace vorm::elementwise
