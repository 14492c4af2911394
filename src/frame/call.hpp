// The parts of a call in the order of its prototype: operands as views, sizes, the count. A shape names them once for
// each layout; what its public layers test and what its kernels see follows from the parts here, and what its drivers
// advance in driver.hpp.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/operands.hpp"
#include "frame/pin.hpp"
#include "vorm/status.h"

namespace vorm {

// A list of parts that hands itself on.
template <int index, class Part>
struct PartAt {
    Part part;
};
template <class Indices, class... Part>
struct PartList;
template <int... index, class... Part>
struct PartList<std::integer_sequence<int, index...>, Part...> : PartAt<index, Part>... {
    template <class Body>
    VORM_INLINE constexpr auto with(const Body& body) const
    {
        return body(PartAt<index, Part>::part...);
    }
};

// What a driver is chosen by: the measure, which is compared with the limit of the member, and about how long the call
// takes one thread where elements lie side by side, which decides how many work.
struct Work {
    int measure;
    double picoseconds;
};
// The time of so many steps, given by how many there are along each size of the call.
template <class... Int>
VORM_INLINE constexpr Work workOf(int measure, int picoseconds, Int... sizes)
{
    return {measure, (double(picoseconds) * ... * sizes)};
}
// A number for each element type.
template <class T>
constexpr int byType(int single, int twice)
{
    return sizeof(T) == sizeof(float) ? single : twice;
}

// The tests of a public layer. Each of them comes once, in an order; sizes that need not fit have no Fit among
// their parts, as single objects have no count.
enum class Test { null, count, size, fit, stride, shift };
template <Test... tests>
struct Tests {
};
// Some tests of the whole call, then others of its parts, one part after the other.
template <class OfTheCall, class OfEachPart>
struct PartByPart;
using UsualTests = Tests<Test::null, Test::count, Test::size, Test::fit, Test::stride, Test::shift>;

// The call of a function that works on a single object, and that of one that works on an array.
template <class T, class TheTests, class Parts>
struct Call {
    Parts parts;
};
template <class T, class TheTests, class Parts>
struct ArrayCall : Call<T, TheTests, Parts> {
    Work work;
    int count;
};

template <class... Part>
using PartsOf = PartList<std::make_integer_sequence<int, sizeof...(Part)>, Part...>;

template <class T, class TheTests = UsualTests, class... Part>
VORM_INLINE constexpr Call<T, TheTests, PartsOf<Part...>> callOf(Part... part)
{
    return {{{part}...}};
}
// The count is the last part of an array call, or one of the parts given.
template <class T, class TheTests = UsualTests, class... Part>
VORM_INLINE constexpr ArrayCall<T, TheTests, PartsOf<Part..., Count>> arrayCallOf(Work work, int count, Part... part)
{
    return {{{{part}..., {Count{count}}}}, work, count};
}
template <class T, class TheTests = UsualTests, class... Part>
requires(... || std::is_same_v<Part, Count>) VORM_INLINE
    constexpr ArrayCall<T, TheTests, PartsOf<Part...>> arrayCallOf(Work work, Part... part)
{
    const auto objects = [](const auto& one) VORM_INLINE_LAMBDA {
        if constexpr (std::is_same_v<decltype(one), const Count&>)
            return one.value;
        else
            return 0;
    };
    return {{{{part}...}}, work, (... + objects(part))};
}

// Public layers. -------------------------------------------------------------------------------------------------

// A comparison and a jump for each number.
template <class... Int>
VORM_INLINE bool anyBelowOne(Int... numbers)
{
    return (... || (testHere(), numbers < 1));
}
template <class T, class... Int>
VORM_INLINE bool anyBadStride(Int... strides)
{
    return ((... | strides) & int{sizeof(T) - 1}) != 0 || anyBelowOne(strides...);
}
template <class T, class... Int>
VORM_INLINE bool anyBadShift(Int... shifts)
{
    return ((... | shifts) & int{sizeof(T) - 1}) != 0 || (... | shifts) < 0;
}

// The status of one test over all arguments.
template <Test test, class T, class... Argument>
VORM_INLINE VormStatus outcome(Argument... argument)
{
    if constexpr (test == Test::null)
        if ((... || (testHere(), argument.isNull()))) return StatusNullPointer;
    if constexpr (test == Test::count)
        if ((... || (argument.countOr(1) < 1))) return StatusBadCount;
    if constexpr (test == Test::size)
        if (anyBelowOne(argument.sizeOr(1)...)) return StatusBadSize;
    if constexpr (test == Test::fit)
        if ((... | argument.misfit()) != 0) return StatusSizeMismatch;
    if constexpr (test == Test::stride)
        if (anyBadStride<T>(argument.strideOr(sizeof(T))...)) return StatusBadStride;
    if constexpr (test == Test::shift)
        if (anyBadShift<T>(argument.shiftOr(0)...)) return StatusBadShift;
    return StatusOk;
}

// Calls body with what is tested of all parts.
template <class Body>
VORM_INLINE auto withTested(const Body& body)
{
    return body();
}
template <class Body, class... Rest>
VORM_INLINE auto withTested(const Body& body, const Fit& fit, const Rest&... rest)
{
    return withTested([&](auto... others) VORM_INLINE_LAMBDA { return body(fit, others...); }, rest...);
}
template <class Body, class First, class... Rest>
VORM_INLINE auto withTested(const Body& body, const First& first, const Rest&... rest)
{
    return first.arguments([&](auto... own) VORM_INLINE_LAMBDA {
        return withTested([&](auto... others) VORM_INLINE_LAMBDA { return body(own..., others...); }, rest...);
    });
}

template <class T, Test... tests, class... Part>
VORM_INLINE VormStatus testedParts(Tests<tests...>, const Part&... part)
{
    return withTested(
        [](auto... argument) VORM_INLINE_LAMBDA {
            VormStatus status = StatusOk;
            static_cast<void>((... && ((status = outcome<tests, T>(argument...)) == StatusOk)));
            return status;
        },
        part...);
}
template <class T, Test... tests, class Parts>
VORM_INLINE VormStatus tested(const Call<T, Tests<tests...>, Parts>& call)
{
    return call.parts.with([](const auto&... part)
                               VORM_INLINE_LAMBDA { return testedParts<T>(Tests<tests...>{}, part...); });
}
template <class T, class OfTheCall, class OfEachPart, class Parts>
VORM_INLINE VormStatus tested(const Call<T, PartByPart<OfTheCall, OfEachPart>, Parts>& call)
{
    return call.parts.with([](const auto&... part) VORM_INLINE_LAMBDA {
        VormStatus status = testedParts<T>(OfTheCall{}, part...);
        static_cast<void>((... && (status == StatusOk && ((status = testedParts<T>(OfEachPart{}, part)) == StatusOk))));
        return status;
    });
}

// Whether all elements of the call lie side by side.
template <class T, class TheTests, class Parts>
VORM_INLINE bool isContiguous(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto&... part) VORM_INLINE_LAMBDA {
        return withTested([](auto... argument)
                              VORM_INLINE_LAMBDA { return (... && (testHere(), argument.gap(sizeof(T)) == 0)); },
                          part...);
    });
}

// A member whose order of tests is not that of its shape.
template <class TheTests, class T, class Other, class Parts>
VORM_INLINE constexpr ArrayCall<T, TheTests, Parts> inOrder(const ArrayCall<T, Other, Parts>& call)
{
    return {{call.parts}, call.work, call.count};
}

// Tests the call and jumps to the kernel it is for with the plain arguments. The driver comes in where the measure is
// above the limit; some families have another limit for elements anywhere.
template <class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus checked(const Call<T, TheTests, Parts>& call, VormStatus (*kernel)(Argument...),
                               VormStatus (*kernelS2)(Argument...), std::type_identity_t<Argument>... arguments)
{
    if (const VormStatus status = tested(call); status != StatusOk) return status;
    if (isContiguous(call)) return kernel(arguments...);
    return kernelS2(arguments...);
}
template <class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus checked(const Call<T, TheTests, Parts>& call, VormStatus (*kernel)(Argument...),
                               std::type_identity_t<Argument>... arguments)
{
    if (const VormStatus status = tested(call); status != StatusOk) return status;
    return kernel(arguments...);
}
template <int limit, int limitAnyStride = limit, class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus checked(const ArrayCall<T, TheTests, Parts>& call, VormStatus (*driver)(Argument...),
                               VormStatus (*kernel)(Argument...), VormStatus (*kernelS2)(Argument...),
                               std::type_identity_t<Argument>... arguments)
{
    if (const VormStatus status = tested(call); status != StatusOk) return status;
    if constexpr (limit == limitAnyStride) {
        if (call.work.measure > limit) return driver(arguments...);
        if (isContiguous(call)) return kernel(arguments...);
    } else {
        const bool contiguous = isContiguous(call);
        if (call.work.measure > (contiguous ? limit : limitAnyStride)) return driver(arguments...);
        if (contiguous) return kernel(arguments...);
    }
    return kernelS2(arguments...);
}
template <int limit, class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus checked(const ArrayCall<T, TheTests, Parts>& call, VormStatus (*driver)(Argument...),
                               VormStatus (*kernel)(Argument...), std::type_identity_t<Argument>... arguments)
{
    if (const VormStatus status = tested(call); status != StatusOk) return status;
    if (call.work.measure > limit) return driver(arguments...);
    return kernel(arguments...);
}
// For limits from which on, not above which, the driver works.
constexpr int from(int measure) { return measure - 1; }

// Kernels. -------------------------------------------------------------------------------------------------------

// Calls body with the arguments of all parts in their order.
template <class Body>
VORM_INLINE VormStatus withArguments(const Body& body)
{
    return body();
}
template <class Body, class First, class... Rest>
VORM_INLINE VormStatus withArguments(const Body& body, const First& first, const Rest&... rest)
{
    return first.arguments([&](auto... own) VORM_INLINE_LAMBDA {
        return withArguments([&](auto... others) VORM_INLINE_LAMBDA { return body(own.value..., others...); }, rest...);
    });
}

// The same call with adjacent elements.
template <class T, class TheTests, class Parts>
VORM_INLINE constexpr auto withAdjacent(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto&... part)
                               VORM_INLINE_LAMBDA { return callOf<T, TheTests>(part.withAdjacent()...); });
}
template <class T, class TheTests, class Parts>
VORM_INLINE constexpr auto withAdjacent(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([&](const auto&... part) VORM_INLINE_LAMBDA {
        using Adjacents = PartsOf<decltype(part.withAdjacent())...>;
        return ArrayCall<T, TheTests, Adjacents>{{{{part.withAdjacent()}...}}, call.work, call.count};
    });
}

// Object by object through the kernel of the single shape, up to the first that fails.
template <class T, class TheTests, class Parts, class... Argument>
VORM_INLINE VormStatus eachSingle(const ArrayCall<T, TheTests, Parts>& call, VormStatus (*single)(Argument...))
{
    return call.parts.with([&](const auto&... part) VORM_INLINE_LAMBDA {
        for (int n = 0; n < call.count; ++n)
            if (const VormStatus status = withArguments(single, part.single(n)...); status != StatusOk) return status;
        return VormStatus{StatusOk};
    });
}

}  // namespace vorm
