// The arguments of a call, told apart by what a public layer tests of them and a driver changes. The views of
// operands.hpp are made of some; sizes, the count and tables that go with the objects are parts of a call by
// themselves. Every part of a call knows its arguments in the order of the prototype, itself from a chunk's first
// object on, itself for a single object, and itself with adjacent elements.
#pragma once

#include <climits>
#include <cstddef>

#include "frame/memory.hpp"
#include "frame/pin.hpp"
#include "frame/wrapping.hpp"

namespace vorm {

// What is to be done at once under a driver.
struct Chunk {
    int first, objects;  // its objects
    int thread;          // its number among the chunks: which stretch of a caller's buffer is its own
    char* scratch;       // the work space of the worker that does it, null where there is none
};

// What the public layers see of an argument that is none of a kind: the number that passes, given by the test.
struct Untested {
    static constexpr bool isNull() { return false; }
    static constexpr int countOr(int passing) { return passing; }
    static constexpr int sizeOr(int passing) { return passing; }
    static constexpr int strideOr(int passing) { return passing; }
    static constexpr int shiftOr(int passing) { return passing; }
    static constexpr int misfit() { return 0; }  // between sizes
    static constexpr int gap(int) { return 0; }  // what keeps elements of a size from being adjacent
};

template <class T>
struct Pointer : Untested {  // to an operand, or to a table of pointers
    T* value;
    constexpr explicit Pointer(T* p) : value(p) {}
    constexpr bool isNull() const { return value == nullptr; }
};
struct Stride : Untested {  // from object to object, from row to row
    int value;
    constexpr explicit Stride(int stride) : value(stride) {}
    constexpr int strideOr(int) const { return value; }
};
// Opaque: compilers that learn the strides of a contiguous call write constants in their place.
struct ElementStride : Stride {
    using Stride::Stride;
    int gap(int elementSize) const { return opaque(value) ^ elementSize; }
};
struct Shift : Untested {
    int value;
    constexpr explicit Shift(int shift) : value(shift) {}
    constexpr int shiftOr(int) const { return value; }
};
template <class T>
struct Value : Untested {
    T value;
    constexpr explicit Value(T v) : value(v) {}
};

struct Size : Untested {
    int value;
    constexpr explicit Size(int size) : value(size) {}
    constexpr int sizeOr(int) const { return value; }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(*this);
    }
    VORM_INLINE constexpr Size chunk(const Chunk&) const { return *this; }
    VORM_INLINE constexpr Size single(int) const { return *this; }
    VORM_INLINE constexpr Size withAdjacent() const { return *this; }
};

// No argument, but the test whether two sizes of a call are the same. Opaque: a compiler that knows two sizes to be
// equal passes one for the other, where the transfer to the kernel was a jump.
struct Fit : Untested {
    int first, second;
    constexpr Fit(int one, int other) : first(one), second(other) {}
    VORM_INLINE int misfit() const { return opaque(first ^ second); }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body();
    }
    VORM_INLINE constexpr Fit chunk(const Chunk&) const { return *this; }
    VORM_INLINE constexpr Fit single(int) const { return *this; }
    VORM_INLINE constexpr Fit withAdjacent() const { return *this; }
};

// A driver may set the sign bit of a kernel's count, to be told which object failed (driver.hpp).
struct Count : Untested {
    int value;
    constexpr explicit Count(int count) : value(count) {}
    constexpr int objects() const { return value & INT_MAX; }
    constexpr bool asks() const { return value < 0; }
    constexpr Count asking() const { return Count{value | INT_MIN}; }
    constexpr int countOr(int) const { return value; }
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(*this);
    }
    VORM_INLINE constexpr Count chunk(const Chunk& chunk) const { return Count{chunk.objects}; }
    VORM_INLINE constexpr Fit single(int) const { return {0, 0}; }  // a single object has no count
    VORM_INLINE constexpr Count withAdjacent() const { return *this; }
};

// A table with some entries for each object, as the row numbers of a pivoted matrix: the entries of objects
// follow each other in every layout.
template <class T>
struct ObjectTable {
    T* p;
    int entries;
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T>{p});
    }
    VORM_INLINE constexpr ObjectTable chunk(const Chunk& chunk) const
    {
        return {p + wrapMul(chunk.first, entries), entries};
    }
    VORM_INLINE constexpr ObjectTable single(int n) const { return {object(n), entries}; }
    VORM_INLINE constexpr ObjectTable withAdjacent() const { return *this; }
    VORM_INLINE constexpr T* object(int n) const { return p + std::ptrdiff_t{n} * entries; }
};
template <class T>
ObjectTable(T*, int) -> ObjectTable<T>;

// A caller's work space, used by one object after the other: every chunk has a stretch of its own.
template <class T>
struct Buffer {
    T* p;
    int elements;  // of a stretch
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T>{p});
    }
    VORM_INLINE constexpr Buffer chunk(const Chunk& chunk) const
    {
        return {p + std::ptrdiff_t{chunk.thread} * elements, elements};
    }
    VORM_INLINE constexpr Buffer single(int) const { return *this; }
    VORM_INLINE constexpr Buffer withAdjacent() const { return *this; }
};
template <class T>
Buffer(T*, int) -> Buffer<T>;

// A caller's work space of which a forked call uses nothing: each of its workers has one of its own for the time of
// the call.
template <class T>
struct WorkSpace {
    T* p;
    std::size_t elements;
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return body(Pointer<T>{p});
    }
    VORM_INLINE WorkSpace chunk(const Chunk& chunk) const
    {
        return {chunk.scratch ? static_cast<T*>(static_cast<void*>(chunk.scratch)) : p, elements};
    }
    VORM_INLINE constexpr WorkSpace single(int) const { return *this; }
    VORM_INLINE constexpr WorkSpace withAdjacent() const { return *this; }
};
template <class T>
WorkSpace(T*, std::size_t) -> WorkSpace<T>;

// Two operands that are tested as one, where operands are tested one by one.
template <class First, class Second>
struct Together {
    First first;
    Second second;
    template <class Body>
    VORM_INLINE constexpr auto arguments(const Body& body) const
    {
        return first.arguments([&](auto... own) VORM_INLINE_LAMBDA {
            return second.arguments([&](auto... others) VORM_INLINE_LAMBDA { return body(own..., others...); });
        });
    }
    VORM_INLINE constexpr Together chunk(const Chunk& chunk) const { return {first.chunk(chunk), second.chunk(chunk)}; }
    VORM_INLINE constexpr auto single(int n) const { return vorm::Together{first.single(n), second.single(n)}; }
    VORM_INLINE constexpr auto withAdjacent() const
    {
        return vorm::Together{first.withAdjacent(), second.withAdjacent()};
    }
};
template <class First, class Second>
Together(First, Second) -> Together<First, Second>;

}  // namespace vorm
