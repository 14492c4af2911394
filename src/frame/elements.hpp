// The elements of an operand by the distances between them, whatever its shape and however it is read: kernels
// over these are compiled once for all of them. A vector is a matrix of one column.
#pragma once

#include <utility>

#include "frame/operands.hpp"

namespace vorm {

// Standard layout. Distances are in bytes; that of the objects is 0 where they all share the operand.
template <class T>
struct StridedElements {
    T* p;
    std::ptrdiff_t object, row, column;

    bool isCommon() const { return object == 0; }
    VORM_INLINE T* at(int n) const { return advance(p, n * object); }

    struct Object {
        T* p;
        std::ptrdiff_t row, column;
        VORM_INLINE decltype(auto) operator()(int r, int c) const { return elementAt(advance(p, r * row), c * column); }
    };
    VORM_INLINE Object operator[](int n) const { return {advance(p, n * object), row, column}; }
};

// List layout. The objects that all share one are a list with the same entry for each: of step 0.
template <class T>
struct ListedElements {
    T* const* pp;
    std::ptrdiff_t step, shift, row, column;

    bool isCommon() const { return step == 0; }
    VORM_INLINE T* at(int n) const { return advance(pp[n * step], shift); }
    VORM_INLINE typename StridedElements<T>::Object operator[](int n) const { return {at(n), row, column}; }
};

// Pointer layout: rows and columns are distances in the table.
template <class T>
struct TabledElements {
    T* const* pp;
    std::ptrdiff_t shift, object, row, column;

    bool isCommon() const { return object == 0; }
    VORM_INLINE T* plane(int r, int c) const { return advance(pp[r * row + c * column], shift); }

    struct Object {
        T* const* pp;
        std::ptrdiff_t shift, row, column;
        VORM_INLINE decltype(auto) operator()(int r, int c) const
        {
            return elementAt((pp + r * row)[c * column], shift);
        }
    };
    VORM_INLINE Object operator[](int n) const { return {pp, shift + n * object, row, column}; }
};

template <class Elements>
VORM_INLINE Elements transposed(Elements elements)
{
    std::swap(elements.row, elements.column);
    return elements;
}

// Those of rows and columns in the strides of a view.
struct Distances {
    std::ptrdiff_t row, column;
};
template <class T, class View>
VORM_INLINE Distances distancesOf(const View& view)
{
    if constexpr (requires { view.stride1; })
        return {view.stride1, bytes<T>(view.stride2)};
    else
        return {bytes<T>(view.stride2), 0};
}

template <class View>
VORM_INLINE auto elementsOf(const View& view)
{
    std::ptrdiff_t object = 0;
    if constexpr (requires { view.stride0; }) object = view.stride0;
    if constexpr (isTransposed<View>) {
        return transposed(elementsOf(view.stored));
    } else if constexpr (requires { view.pp; }) {
        using T = std::remove_pointer_t<std::remove_cvref_t<decltype(*view.pp)>>;
        if constexpr (requires { view.width; })
            return TabledElements<T>{view.pp, view.shift, object, view.width, 1};
        else
            return TabledElements<T>{view.pp, view.shift, object, 1, 0};
    } else {
        using T = std::remove_pointer_t<decltype(view.p)>;
        const auto [row, column] = distancesOf<T>(view);
        return StridedElements<T>{view.p, object, row, column};
    }
}

// As a list: what all objects share is a list whose one entry is the view's own pointer, and lives as long.
template <class View>
VORM_INLINE auto listedElementsOf(const View& view)
{
    if constexpr (isTransposed<View>) {
        return transposed(listedElementsOf(view.stored));
    } else if constexpr (View::isCommon) {
        using T = std::remove_pointer_t<decltype(view.p)>;
        const auto [row, column] = distancesOf<T>(view);
        return ListedElements<T>{&view.p, 0, 0, row, column};
    } else {
        using T = std::remove_pointer_t<std::remove_cvref_t<decltype(*view.pp)>>;
        const auto [row, column] = distancesOf<T>(view);
        return ListedElements<T>{view.pp, 1, view.shift, row, column};
    }
}

}  // namespace vorm
