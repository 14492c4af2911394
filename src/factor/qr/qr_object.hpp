// Objects of any shape: blocks of several, element (r, c) of each at a[r * width + c], and the decomposition of one in
// its destination.
#pragma once

#include <cstring>
#include <utility>

#include "factor/qr/qr_reflection.hpp"
#include "frame/object_lanes.hpp"
#include "frame/overlap.hpp"
#include "vorm/status.h"

namespace vorm::factor {

// Larger objects are done one by one.
constexpr int blockElements = 256;
constexpr bool fitsBlock(int width, int height) { return height <= blockElements && width * height <= blockElements; }

template <class H, class W>
constexpr auto elementsOf(H height, W width)
{
    if constexpr (isFixed<H> && isFixed<W>)
        return constant<H::value * W::value>;
    else
        return int(height) * int(width);
}

template <class T, class View>
[[gnu::noinline]] void gatherObjects(const View& view, int first, int objects, int height, int width, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < height; ++r)
            for (int c = 0; c < width; ++c) to[(r * width + c) * objects + l] = view(first + l, r, c);
}
template <class T, class View>
[[gnu::noinline]] void scatterObjects(const View& view, int first, int objects, int height, int width, const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < height; ++r)
            for (int c = 0; c < width; ++c) view(first + l, r, c) = from[(r * width + c) * objects + l];
}

// Layouts that fill whole registers, from adjacent elements or from objects side by side: of these small orders are
// written out with their loads and stores. All else shares the code for any shape.
template <class View>
constexpr bool inWhole = isAdjacent<View> || isInPlanes<View>;
constexpr bool isSmallSquare(int width, int height) { return width == height && width >= 3 && width <= 6; }

// n elements from an address for each lane to to[0], to[step], ...; and back. Compiled once, in qr_blocks.cpp.
template <int step, class L>
VORM_HIDDEN void loadRowsApart(const Element<L>* const (&from)[L::width], L* to, int n);
template <int step, class L>
VORM_HIDDEN void storeRowsApart(Element<L>* const (&to)[L::width], const L* from, int n);

// As many objects as a number holds. Objects without gaps are one long row each.
template <class Number, class View, class H, class W>
VORM_INLINE void loadObjects(const View& view, int first, Number* a, H height, W width)
{
    using T = Element<Number>;
    using One = RegisterIn<Number>;
    if constexpr (inLanes<Number> && (isAdjacent<View> || isInPlanes<View>))
        eachRegister<Number>(height, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            const auto element = [&](int e) VORM_INLINE_LAMBDA -> auto& { return registerOf(a[e], k); };
            [[maybe_unused]] const auto loadElements = [&](const auto& from, int e, auto n) VORM_INLINE_LAMBDA {
                if constexpr (isFixed<decltype(n)>)
                    loadRows(
                        from, [&](int c) VORM_INLINE_LAMBDA -> auto& { return element(e + c); }, n);
                else
                    loadRowsApart<registersIn<Number>>(from, &element(e), n);
            };
            if constexpr (isInPlanes<View>) {
                repeat(height, [&](auto r) VORM_INLINE_LAMBDA {
                    for (int c = 0; c < width; ++c) element(r * width + c) = One::load(view.element(r, c) + object);
                });
                return;
            } else if (view.stride1 == width * int{sizeof(T)}) {
                const T* from[One::width];
                objectsAt(view, object, from);
                loadElements(from, 0, elementsOf(height, width));
            } else {
                repeat(height, [&](auto r) VORM_INLINE_LAMBDA {
                    const T* from[One::width];
                    rowsAt(
                        view, object, [&](int) VORM_INLINE_LAMBDA { return int{r}; }, from);
                    loadElements(from, r * width, width);
                });
            }
        });
    else
        gatherObjects(view, first, objectsIn<Number>, height, width, reinterpret_cast<T*>(a));
}
template <class Number, class View, class H, class W>
VORM_INLINE void storeObjects(const View& view, int first, const Number* a, H height, W width)
{
    using T = Element<Number>;
    using One = RegisterIn<Number>;
    if constexpr (inLanes<Number> && (isAdjacent<View> || isInPlanes<View>))
        eachRegister<Number>(height, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            const auto element = [&](int e) VORM_INLINE_LAMBDA -> const auto& { return registerOf(a[e], k); };
            [[maybe_unused]] const auto storeElements = [&](const auto& to, int e, auto n) VORM_INLINE_LAMBDA {
                if constexpr (isFixed<decltype(n)>)
                    storeRows(
                        to, [&](int c) VORM_INLINE_LAMBDA { return element(e + c); }, n);
                else
                    storeRowsApart<registersIn<Number>>(to, &element(e), n);
            };
            if constexpr (isInPlanes<View>) {
                repeat(height, [&](auto r) VORM_INLINE_LAMBDA {
                    for (int c = 0; c < width; ++c) element(r * width + c).store(view.element(r, c) + object);
                });
                return;
            } else if (view.stride1 == width * int{sizeof(T)}) {
                T* to[One::width];
                objectsAt(view, object, to);
                storeElements(to, 0, elementsOf(height, width));
            } else {
                repeat(height, [&](auto r) VORM_INLINE_LAMBDA {
                    T* to[One::width];
                    rowsAt(
                        view, object, [&](int) VORM_INLINE_LAMBDA { return int{r}; }, to);
                    storeElements(to, r * width, width);
                });
            }
        });
    else
        scatterObjects(view, first, objectsIn<Number>, height, width, reinterpret_cast<const T*>(a));
}

// Vectors of a length that the program's run knows.
template <class Number, class View>
VORM_INLINE void loadLongVectors(const View& view, int first, Number* x, int n)
{
    using One = RegisterIn<Number>;
    if constexpr (isAdjacent<View>)
        for (int k = 0; k < registersIn<Number>; ++k) {
            const Element<Number>* from[One::width];
            objectsAt(view, first + k * One::width, from);
            loadRowsApart<registersIn<Number>>(from, &registerOf(x[0], k), n);
        }
    else
        loadVectors(view, first, x, n);
}
template <class Number, class View>
VORM_INLINE void storeLongVectors(const View& view, int first, const Number* x, int n)
{
    using One = RegisterIn<Number>;
    if constexpr (isAdjacent<View>)
        for (int k = 0; k < registersIn<Number>; ++k) {
            Element<Number>* to[One::width];
            objectsAt(view, first + k * One::width, to);
            storeRowsApart<registersIn<Number>>(to, &registerOf(x[0], k), n);
        }
    else
        storeVectors(view, first, x, n);
}

// Some adjacent elements of a row as one number, the last ones of a row where they are fewer than a register has.
template <class T>
struct RowPart {
    T* p;
    operator Lanes<T>() const { return Lanes<T>::load(p); }
    void operator=(Lanes<T> a) const { a.store(p); }
};
template <class T>
struct RowEnd {
    T* p;
    int elements;
    operator Lanes<T>() const { return loadFirst(p, elements); }
    void operator=(Lanes<T> a) const { storeFirst(p, a, elements); }
};

// A block of the square order n, compiled once, in qr_blocks.cpp.
template <int n, class Number>
VORM_HIDDEN bool qrFactorise(Number* a);

template <int n, class T, class View>
VORM_INLINE bool qrFactoriseSmall(const View& view, int object)
{
    T a[n * n];
    gatherObjects(view, object, 1, n, n, a);
    const bool passed = qrFactorise<n>(a);
    scatterObjects(view, object, 1, n, n, a);
    return passed;
}

// Of a column that fails nothing is changed, nor of those behind it. The reflector at work lies in the buffer.
template <class T, class Src, class Dst>
VORM_SHARED VormStatus qrOne(const Src src, const Dst dst, int object, int width, int height, T* buffer)
{
    for (int r = 0; r < height; ++r) {
        if constexpr (adjacentRows<Src> && adjacentRows<Dst>) {
            const T* const from = rowAt(src, object, r);
            T* const to = rowAt(dst, object, r);
            const auto bytes = std::ptrdiff_t{width} * int{sizeof(T)};
            if (width > 24 && apart(from, to, bytes)) {
                std::memcpy(static_cast<void*>(to), from, static_cast<std::size_t>(bytes));
                continue;
            }
        }
        for (int c = 0; c < width; ++c) dst(object, r, c) = src(object, r, c);
    }
    const auto status = [](bool passed) { return passed ? StatusOk : StatusDivisionByZero; };
    if (width == height) switch (width) {
        case 3: return status(qrFactoriseSmall<3, T>(dst, object));
        case 4: return status(qrFactoriseSmall<4, T>(dst, object));
        case 5: return status(qrFactoriseSmall<5, T>(dst, object));
        case 6: return status(qrFactoriseSmall<6, T>(dst, object));
        default: break;
        }

    const auto reflector = [&](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return entry(buffer, i); };
    for (int k = 0; k < reflectors(width, height); ++k) {
        const auto column = [&](int i) VORM_INLINE_LAMBDA -> decltype(auto) { return dst(object, i, k); };
        T beta;
        if (!makeReflector(column, reflector, k, height, beta)) return StatusDivisionByZero;
        int j = k + 1;
        if constexpr (adjacentRows<Dst>) {
            constexpr int some = Lanes<T>::width;
            const auto inLanes = [&](auto registers, const auto& part) VORM_INLINE_LAMBDA {
                reflect<registers>([&](int i) VORM_INLINE_LAMBDA { return Lanes<T>(T(reflector(i))); }, part, k, height,
                                   Lanes<T>(beta));
            };
            const auto part = [&](int i, int c)
                                  VORM_INLINE_LAMBDA { return RowPart<T>{rowAt(dst, object, i) + j + c * some}; };
            for (; j + 4 * some <= width; j += 4 * some) inLanes(constant<4>, part);
            for (; j + some <= width; j += some) inLanes(constant<1>, part);
            if (j < width)
                inLanes(constant<1>, [&](int i, int) VORM_INLINE_LAMBDA {
                    return RowEnd<T>{rowAt(dst, object, i) + j, width - j};
                });
        } else {
            const auto columns = [&](auto some) VORM_INLINE_LAMBDA {
                reflect<some>(
                    reflector, [&](int i, int c) VORM_INLINE_LAMBDA -> decltype(auto) { return dst(object, i, j + c); },
                    k, height, beta);
            };
            for (; j + 2 <= width; j += 2) columns(constant<2>);
            if (j < width) columns(constant<1>);
        }
        for (int i = k + 1; i < height; ++i) column(i) = T(reflector(i));
    }
    return StatusOk;
}

}  // namespace vorm::factor
