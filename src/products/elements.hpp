// The elements of an operand by the distances between them, whatever its shape and however it is read: kernels
// over these are compiled once for all of them. A vector is a matrix of one column.
#pragma once

#include <utility>

#include "frame/operands.hpp"

namespace vorm::products {

// Standard layout. Distances are in bytes; that of the objects is 0 where they all share the operand.
template <class T>
struct StridedElements {
    T* p;
    std::ptrdiff_t object, row, column;

    bool isCommon() const { return object == 0; }

    struct Object {
        T* p;
        std::ptrdiff_t row, column;
        VORM_INLINE decltype(auto) operator()(int r, int c) const { return elementAt(advance(p, r * row), c * column); }
    };
    VORM_INLINE Object operator[](int n) const { return {advance(p, n * object), row, column}; }
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
        const std::ptrdiff_t stride2 = bytes<T>(view.stride2);
        if constexpr (requires { view.stride1; })
            return StridedElements<T>{view.p, object, view.stride1, stride2};
        else
            return StridedElements<T>{view.p, object, stride2, 0};
    }
}

}  // namespace vorm::products
