// Operands as the kernels see them: object(n) is the address of the n-th object and element (n, i)
// or (n, r, c) one of its elements. This file has the standard and the list layout. Views exist inside kernels only;
// all of it is inlined away.
//
// A view of a const type reads elements by value, one of a plain type gives a reference to assign
// to. Single operands ignore n, so that a kernel need not know which of its operands are arrays;
// isCommon tells it where it matters. isAdjacent: the elements of a vector, or of each row, lie side by side.
//
// As parts of a call (call.hpp) views know the arguments they are made of, themselves from the first object of a
// chunk on (the offset has 32 bits), the view of their n-th object alone, and themselves with adjacent elements.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/arguments.hpp"
#include "frame/constant_operands.hpp"
#include "frame/pointer_operands.hpp"
#include "frame/transposed.hpp"

namespace vorm {

// stride2 of a contiguous operand: known to be the element size when the kernel is compiled.
struct Adjacent {};
constexpr Adjacent adjacent;

template <class T>
constexpr std::ptrdiff_t bytes(int stride)
{
    return stride;
}
template <class T>
constexpr std::ptrdiff_t bytes(Adjacent)
{
    return sizeof(T);
}

// The arguments of a view end with stride2, where it has one.
template <class Body, class... Argument>
VORM_INLINE constexpr auto withElementStride(const Body& body, int stride2, Argument... before)
{
    return body(before..., ElementStride{stride2});
}
template <class Body, class... Argument>
VORM_INLINE constexpr auto withElementStride(const Body& body, Adjacent, Argument... before)
{
    return body(before...);
}

// Standard layout. Step is int or Adjacent. ----------------------------------------------------

template <class T, class Step>
struct Vector {  // v
    static constexpr bool isCommon = true, isAdjacent = std::is_same_v<Step, Adjacent>;
    T* p;
    Step stride2;
    T* object(int) const { return p; }
    decltype(auto) operator()(int, int i) const { return elementAt(p, i * bytes<T>(stride2)); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return withElementStride(body, stride2, Pointer<T>{p});
    }
    VORM_INLINE constexpr Vector chunk(const Chunk&) const { return *this; }
    VORM_INLINE constexpr auto single(int) const { return *this; }
    VORM_INLINE constexpr auto withAdjacent() const { return Vector<T, Adjacent>{p, adjacent}; }
};

template <class T, class Step>
struct VectorArray {  // va
    static constexpr bool isCommon = false, isAdjacent = std::is_same_v<Step, Adjacent>;
    T* p;
    int stride0;
    Step stride2;
    T* object(int n) const { return advance(p, std::ptrdiff_t{n} * stride0); }
    decltype(auto) operator()(int n, int i) const { return elementAt(object(n), i * bytes<T>(stride2)); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return withElementStride(body, stride2, Pointer<T>{p}, Stride{stride0});
    }
    VORM_INLINE constexpr VectorArray chunk(const Chunk& chunk) const
    {
        return {advance(p, wrapMul(chunk.first, stride0)), stride0, stride2};
    }
    VORM_INLINE constexpr auto single(int n) const { return Vector<T, Step>{object(n), stride2}; }
    VORM_INLINE constexpr auto withAdjacent() const { return VectorArray<T, Adjacent>{p, stride0, adjacent}; }
};

template <class T, class Step>
struct Matrix {  // m
    static constexpr bool isCommon = true, isAdjacent = std::is_same_v<Step, Adjacent>;
    T* p;
    int stride1;
    Step stride2;
    T* object(int) const { return p; }
    decltype(auto) operator()(int, int r, int c) const
    {
        return elementAt(p, std::ptrdiff_t{r} * stride1 + c * bytes<T>(stride2));
    }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return withElementStride(body, stride2, Pointer<T>{p}, Stride{stride1});
    }
    VORM_INLINE constexpr Matrix chunk(const Chunk&) const { return *this; }
    VORM_INLINE constexpr auto single(int) const { return *this; }
    VORM_INLINE constexpr auto withAdjacent() const { return Matrix<T, Adjacent>{p, stride1, adjacent}; }
};

template <class T, class Step>
struct MatrixArray {  // ma
    static constexpr bool isCommon = false, isAdjacent = std::is_same_v<Step, Adjacent>;
    T* p;
    int stride0, stride1;
    Step stride2;
    T* object(int n) const { return advance(p, std::ptrdiff_t{n} * stride0); }
    decltype(auto) operator()(int n, int r, int c) const
    {
        return elementAt(object(n), std::ptrdiff_t{r} * stride1 + c * bytes<T>(stride2));
    }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return withElementStride(body, stride2, Pointer<T>{p}, Stride{stride0}, Stride{stride1});
    }
    VORM_INLINE constexpr MatrixArray chunk(const Chunk& chunk) const
    {
        return {advance(p, wrapMul(chunk.first, stride0)), stride0, stride1, stride2};
    }
    VORM_INLINE constexpr auto single(int n) const { return Matrix<T, Step>{object(n), stride1, stride2}; }
    VORM_INLINE constexpr auto withAdjacent() const { return MatrixArray<T, Adjacent>{p, stride0, stride1, adjacent}; }
};

// List layout: one pointer per object. ---------------------------------------------------------

template <class T, class Step>
struct VectorList {  // va
    static constexpr bool isCommon = false, isAdjacent = std::is_same_v<Step, Adjacent>;
    T* const* pp;
    int shift;
    Step stride2;
    T* object(int n) const { return advance(pp[n], shift); }
    decltype(auto) operator()(int n, int i) const { return elementAt(object(n), i * bytes<T>(stride2)); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return withElementStride(body, stride2, Pointer<T* const>{pp}, Shift{shift});
    }
    VORM_INLINE constexpr VectorList chunk(const Chunk& chunk) const { return {pp + chunk.first, shift, stride2}; }
    VORM_INLINE constexpr auto single(int n) const { return Vector<T, Step>{object(n), stride2}; }
    VORM_INLINE constexpr auto withAdjacent() const { return VectorList<T, Adjacent>{pp, shift, adjacent}; }
};

template <class T, class Step>
struct MatrixList {  // ma
    static constexpr bool isCommon = false, isAdjacent = std::is_same_v<Step, Adjacent>;
    T* const* pp;
    int shift, stride1;
    Step stride2;
    T* object(int n) const { return advance(pp[n], shift); }
    decltype(auto) operator()(int n, int r, int c) const
    {
        return elementAt(object(n), std::ptrdiff_t{r} * stride1 + c * bytes<T>(stride2));
    }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return withElementStride(body, stride2, Pointer<T* const>{pp}, Shift{shift}, Stride{stride1});
    }
    VORM_INLINE constexpr MatrixList chunk(const Chunk& chunk) const
    {
        return {pp + chunk.first, shift, stride1, stride2};
    }
    VORM_INLINE constexpr auto single(int n) const { return Matrix<T, Step>{object(n), stride1, stride2}; }
    VORM_INLINE constexpr auto withAdjacent() const { return MatrixList<T, Adjacent>{pp, shift, stride1, adjacent}; }
};

template <class View>
constexpr bool isAdjacent = View::isAdjacent;
template <class View>
constexpr bool adjacentRows = View::isAdjacent&& requires(View view)
{
    view.stride1;
};
template <class View>
constexpr bool isConstant = requires
{
    View::isConstant;
};

// Whether the objects of an operand follow one another without a gap. What all objects share, and a constant for
// each, are in nobody's way. ---------------------------------------------------------------------

template <class View>
VORM_INLINE bool isPacked(const View& view, int len)
{
    if constexpr (View::isCommon || isConstant<View>)
        return true;
    else if constexpr (View::isAdjacent && requires { view.stride0; })
        return view.stride0 == len * std::ptrdiff_t{sizeof(*view.p)};
    else
        return false;
}
template <class View>
VORM_INLINE bool isPacked(const View& view, int width, int height)
{
    if constexpr (View::isCommon)
        return true;
    else if constexpr (View::isAdjacent && requires { view.stride0; })
        return view.stride1 == width * std::ptrdiff_t{sizeof(*view.p)} &&
               view.stride0 == height * std::ptrdiff_t{view.stride1};
    else
        return false;
}

// clang 14 deduces no aggregates by itself.
template <class T, class Step>
Vector(T*, Step) -> Vector<T, Step>;
template <class T, class Step>
VectorArray(T*, int, Step) -> VectorArray<T, Step>;
template <class T, class Step>
Matrix(T*, int, Step) -> Matrix<T, Step>;
template <class T, class Step>
MatrixArray(T*, int, int, Step) -> MatrixArray<T, Step>;
template <class T, class Step>
VectorList(T* const*, int, Step) -> VectorList<T, Step>;
template <class T, class Step>
MatrixList(T* const*, int, int, Step) -> MatrixList<T, Step>;

}  // namespace vorm
