// Matrices read with their indices swapped, and how a shape says which of its operands are (operands.hpp).
#pragma once

#include "frame/arguments.hpp"

namespace vorm {

template <class Stored>
struct Transposed {  // t, ta
    static constexpr bool isCommon = Stored::isCommon, isAdjacent = false;
    Stored stored;
    decltype(auto) operator()(int n, int r, int c) const { return stored(n, c, r); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return stored.arguments(body);
    }
    VORM_INLINE constexpr Transposed chunk(const Chunk& chunk) const { return {stored.chunk(chunk)}; }
    VORM_INLINE constexpr auto single(int n) const { return transposed(stored.single(n)); }
    VORM_INLINE constexpr auto withAdjacent() const { return transposed(stored.withAdjacent()); }

private:
    template <class Other>
    static constexpr Transposed<Other> transposed(const Other& other)
    {
        return {other};
    }
};

template <class View>
constexpr bool isTransposed = false;
template <class Stored>
constexpr bool isTransposed<Transposed<Stored>> = true;

// How a matrix operand is read, m or t in the name of its shape: the view that shows it so, and its rows and columns
// then, out of the sizes it is stored with; the same two functions lead back.
struct AsStored {
    static constexpr bool isTransposed = false;
    template <class Stored>
    static Stored used(const Stored& stored)
    {
        return stored;
    }
    static constexpr int rows(int /*width*/, int height) { return height; }
    static constexpr int columns(int width, int /*height*/) { return width; }
};
struct AsTransposed {
    static constexpr bool isTransposed = true;
    template <class Stored>
    static Transposed<Stored> used(const Stored& stored)
    {
        return {stored};
    }
    static constexpr int rows(int width, int /*height*/) { return width; }
    static constexpr int columns(int /*width*/, int height) { return height; }
};

// clang 14 deduces no aggregates by itself.
template <class Stored>
Transposed(Stored) -> Transposed<Stored>;

}  // namespace vorm
