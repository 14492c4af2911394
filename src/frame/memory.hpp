// The caller's memory, which promises no alignment, as elements.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "frame/layers.hpp"

namespace vorm {

// One element wherever it lies.
template <class T>
struct [[gnu::packed, gnu::may_alias]] Loose
{
    T value;
    operator T() const { return value; }
    Loose& operator=(T v)
    {
        value = v;
        return *this;
    }
    Loose& operator=(const Loose& other) { return *this = other.value; }
};

template <class T>
constexpr T* advance(T* p, std::ptrdiff_t bytes)
{
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

template <class T>
VORM_INLINE decltype(auto) elementAt(T* p, std::ptrdiff_t bytes)
{
    using Value = std::remove_const_t<T>;
    if constexpr (std::is_const_v<T>)
        return Value(reinterpret_cast<const Loose<Value>*>(advance(p, bytes))->value);
    else
        return (*reinterpret_cast<Loose<Value>*>(advance(p, bytes)));
}

// Entry i of a table of the caller's.
template <class T>
VORM_INLINE decltype(auto) entry(T* table, std::ptrdiff_t i)
{
    return elementAt(table, i * std::ptrdiff_t{sizeof(T)});
}

}  // namespace vorm
