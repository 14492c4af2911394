// Views of operands in pointer layout: one pointer per element of the stored object (operands.hpp).
#pragma once

#include "frame/arguments.hpp"

namespace vorm {

template <class T>
struct VectorPointers {  // v
    static constexpr bool isCommon = true, isAdjacent = false;
    T* const* pp;
    int shift;
    T* element(int i) const { return advance(pp[i], shift); }
    decltype(auto) operator()(int, int i) const { return elementAt(element(i), 0); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T* const>{pp}, Shift{shift});
    }
    VORM_INLINE constexpr VectorPointers chunk(const Chunk&) const { return *this; }
    VORM_INLINE constexpr auto withAdjacent() const { return *this; }
};

template <class T>
struct VectorArrayPointers {  // va
    static constexpr bool isCommon = false, isAdjacent = false;
    T* const* pp;
    int shift, stride0;
    T* element(int i) const { return advance(pp[i], shift); }  // of object 0
    decltype(auto) operator()(int n, int i) const { return elementAt(element(i), std::ptrdiff_t{n} * stride0); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T* const>{pp}, Shift{shift}, Stride{stride0});
    }
    VORM_INLINE constexpr VectorArrayPointers chunk(const Chunk& chunk) const
    {
        return {pp, wrapAdd(shift, wrapMul(chunk.first, stride0)), stride0};
    }
    VORM_INLINE constexpr auto withAdjacent() const { return *this; }
};

template <class T>
struct MatrixPointers {  // m; width is that of the stored matrix
    static constexpr bool isCommon = true, isAdjacent = false;
    T* const* pp;
    int shift, width;
    T* element(int r, int c) const { return advance(pp[std::ptrdiff_t{r} * width + c], shift); }
    decltype(auto) operator()(int, int r, int c) const { return elementAt(element(r, c), 0); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T* const>{pp}, Shift{shift});
    }
    VORM_INLINE constexpr MatrixPointers chunk(const Chunk&) const { return *this; }
    VORM_INLINE constexpr auto withAdjacent() const { return *this; }
};

template <class T>
struct MatrixArrayPointers {  // ma; width is that of the stored matrix
    static constexpr bool isCommon = false, isAdjacent = false;
    T* const* pp;
    int shift, stride0, width;
    T* element(int r, int c) const { return advance(pp[std::ptrdiff_t{r} * width + c], shift); }
    decltype(auto) operator()(int n, int r, int c) const
    {
        return elementAt(element(r, c), std::ptrdiff_t{n} * stride0);
    }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T* const>{pp}, Shift{shift}, Stride{stride0});
    }
    VORM_INLINE constexpr MatrixArrayPointers chunk(const Chunk& chunk) const
    {
        return {pp, wrapAdd(shift, wrapMul(chunk.first, stride0)), stride0, width};
    }
    VORM_INLINE constexpr auto withAdjacent() const { return *this; }
};

// clang 14 deduces no aggregates by itself.
template <class T>
VectorPointers(T* const*, int) -> VectorPointers<T>;
template <class T>
VectorArrayPointers(T* const*, int, int) -> VectorArrayPointers<T>;
template <class T>
MatrixPointers(T* const*, int, int) -> MatrixPointers<T>;
template <class T>
MatrixArrayPointers(T* const*, int, int, int) -> MatrixArrayPointers<T>;

}  // namespace vorm
