// Views of constants: one by value, or one for each object of an array (operands.hpp).
#pragma once

#include "frame/arguments.hpp"

namespace vorm {

template <class T>
struct Constant {  // c
    static constexpr bool isCommon = true, isAdjacent = false, isConstant = true;
    T val;
    T operator()(int, int) const { return val; }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Value<T>{val});
    }
    VORM_INLINE constexpr Constant chunk(const Chunk&) const { return *this; }
    VORM_INLINE constexpr auto single(int) const { return *this; }
    VORM_INLINE constexpr auto withAdjacent() const { return *this; }
};

template <class T>
struct ConstantArray {  // ca, standard and pointer layout
    static constexpr bool isCommon = false, isAdjacent = false, isConstant = true;
    const T* p;
    int stride0;
    T operator()(int n, int) const { return elementAt(p, std::ptrdiff_t{n} * stride0); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<const T>{p}, Stride{stride0});
    }
    VORM_INLINE constexpr ConstantArray chunk(const Chunk& chunk) const
    {
        return {advance(p, wrapMul(chunk.first, stride0)), stride0};
    }
    VORM_INLINE constexpr auto single(int n) const { return Constant<T>{(*this)(n, 0)}; }
    VORM_INLINE constexpr auto withAdjacent() const { return *this; }
};

template <class T>
struct ConstantList {  // ca, list layout
    static constexpr bool isCommon = false, isAdjacent = false, isConstant = true;
    const T* const* pp;
    int shift;
    T operator()(int n, int) const { return elementAt(pp[n], shift); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<const T* const>{pp}, Shift{shift});
    }
    VORM_INLINE constexpr ConstantList chunk(const Chunk& chunk) const { return {pp + chunk.first, shift}; }
    VORM_INLINE constexpr auto single(int n) const { return Constant<T>{(*this)(n, 0)}; }
    VORM_INLINE constexpr auto withAdjacent() const { return *this; }
};

// clang 14 deduces no aggregates by itself.
template <class T>
Constant(T) -> Constant<T>;
template <class T>
ConstantArray(const T*, int) -> ConstantArray<T>;
template <class T>
ConstantList(const T* const*, int) -> ConstantList<T>;

}  // namespace vorm
