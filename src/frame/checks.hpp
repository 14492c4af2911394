// What the public layers test of single arguments, as functions over the arguments of one part of a call. All of it
// folds into plain integer comparisons.
#pragma once

#include "frame/arguments.hpp"
#include "vorm/status.h"

namespace vorm {

struct AnyNull {
    template <class T>
    static constexpr bool of(Pointer<T> pointer)
    {
        return pointer.value == nullptr;
    }
    template <class Other>
    static constexpr bool of(Other)
    {
        return false;
    }
    template <class... Argument>
    VORM_INLINE constexpr bool operator()(Argument... argument) const
    {
        return (... || of(argument));
    }
};

struct AnyBadCount {
    static constexpr bool of(Count count) { return count.value < 1; }
    template <class Other>
    static constexpr bool of(Other)
    {
        return false;
    }
    template <class... Argument>
    VORM_INLINE constexpr bool operator()(Argument... argument) const
    {
        return (... || of(argument));
    }
};

struct AnyBadSize {
    static constexpr bool of(Size size) { return size.value < 1; }
    template <class Other>
    static constexpr bool of(Other)
    {
        return false;
    }
    template <class... Argument>
    VORM_INLINE constexpr bool operator()(Argument... argument) const
    {
        return (... || of(argument));
    }
};
