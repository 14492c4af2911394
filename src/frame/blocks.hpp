// Arrays of independent objects, of which any may fail: side by side in registers wherever that cannot be seen, in
// ascending order, up to the first that fails.
//
// A method is a template over the number type: method.template operator()<Number>(first) does as many objects as a
// Number holds, from the first on, and returns their status. Of one object it stores what a failure is to leave; of
// several it stores nothing unless all of them pass, as they are then done again one by one. It loads everything
// before it stores, and may read objects behind a failing one, but stores nothing of them.
//
// Where one object takes nearly as long as a register of them, the last objects of an array can go as one number that
// they do not fill: rest.template operator()<Number>(first, objects) does fewer than a Number holds, copies of the last
// in the lanes left over, and stores their results in ascending order.
#pragma once

#include <type_traits>

#include "frame/arguments.hpp"
#include "frame/lanes.hpp"
#include "frame/minmax.hpp"
#include "frame/overlap.hpp"
#include "vorm/status.h"

namespace vorm {

// What a rest goes through that is too small for a number: single registers, those of 128 bits, single objects.
template <class Number>
struct NarrowerThan;
template <class L, int registers>
struct NarrowerThan<Several<L, registers>> {
    using Type = L;
};
template <class T, int W>
struct NarrowerThan<Lanes<T, W>> {
    using Type = std::conditional_t<W == narrow<T>, T, Lanes<T>>;
};

// Whether the objects of a number may be stored in any order, register by register.
template <class Number, class View>
VORM_INLINE bool registersApart(const View& view, int first, int rows, int len)
{
    constexpr int width = RegisterIn<Number>::width;
    for (int k = 0; k < registersIn<Number>; ++k)
        if (!objectsApart<width>(view, first + k * width, rows, len)) return false;
    return true;
}

// A rest goes through narrower numbers.
struct NarrowerRest {};

// Whether so few objects take less time as one number than as narrower ones.
template <class Number>
VORM_INLINE bool fillsEnough(int objects)
{
    return objects < objectsIn<Number> &&
           (2 * objects > objectsIn<Number> || (objects > 1 && !inLanes<typename NarrowerThan<Number>::Type>));
}

// Whole numbers of objects, from done on, as far as they go, and a rest.
template <class Number, class Apart, class Method, class Rest>
VORM_INLINE void wholeBlocks(int& done, int count, const Apart& apart, const Method& method, const Rest& rest)
{
    if constexpr (inLanes<Number>) {
        while (count - done >= objectsIn<Number> && apart.template operator()<Number>(done) &&
               method.template operator()<Number>(done) == StatusOk)
            done += objectsIn<Number>;
        if constexpr (!std::is_same_v<Rest, NarrowerRest>)
            if (fillsEnough<Number>(count - done) && rest.template operator()<Number>(done, count - done) == StatusOk)
                done = count;
        wholeBlocks<typename NarrowerThan<Number>::Type>(done, count, apart, method, rest);
    }
}

// Number is the widest that pays. A count that asks gets the number of the first object that fails, from 1, instead of
// its status. apart.template operator()<Number>(first) says whether the results of the objects from
// the first on may be stored in any order.
template <class Number, class Apart, class Method, class Rest = NarrowerRest>
VORM_INLINE VormStatus inBlocks(int countOrAsking, const Apart& apart, const Method& method, const Rest& rest = {})
{
    using T = Element<Number>;
    const int count = Count{countOrAsking}.objects();
    for (int done = 0; done < count;) {
        const int before = done;
        wholeBlocks<Number>(done, count, apart, method, rest);
        if (done > before) continue;
        for (const int end = done + min(narrow<T>, count - done); done < end; ++done)
            if (const VormStatus status = method.template operator()<T>(done); status != StatusOk)
                return Count{countOrAsking}.asks() ? done + 1 : status;
    }
    return StatusOk;
}

// The same where all results of an object are rows of len elements of one destination.
template <class Number, class View, class Method>
VORM_INLINE VormStatus inBlocks(const View& dst, int rows, int len, int count, const Method& method)
{
    return inBlocks<Number>(
        count, [&]<class Some>(int first) VORM_INLINE_LAMBDA { return registersApart<Some>(dst, first, rows, len); },
        method);
}

}  // namespace vorm
