// The kernels of data movement over the parts of a call: the source where there is one, the destination, the sizes, the
// count.
#pragma once

#include "frame/call.hpp"
#include "movement/identity.hpp"
#include "movement/move.hpp"
#include "movement/transpose.hpp"

namespace vorm::movement {

// The order of the tests of all families but the transposes.
using MovementTests = PartByPart<Tests<Test::null, Test::size, Test::count>, Tests<Test::shift, Test::stride>>;

// stride0 of a call that has none where there is but one object: then it is neither tested nor used.
template <class T>
VORM_INLINE constexpr int stride0Of(int stride0, int count)
{
    return count > 1 ? stride0 : int{sizeof(T)};
}

// Vectors are matrices of one column.
template <class TheCall>
VORM_INLINE VormStatus copyKernel(const TheCall& call)
{
    return call.parts.with([](const auto& src, const auto& dst, auto... size) VORM_INLINE_LAMBDA {
        if constexpr (sizeof...(size) == 2)
            return [&](Size len, Count count)
                       VORM_INLINE_LAMBDA { return move(src, dst, len.value, 1, count.value); }(size...);
        else
            return [&](Size width, Size height, Count count)
                       VORM_INLINE_LAMBDA { return move(src, dst, height.value, width.value, count.value); }(size...);
    });
}

template <class TheCall>
VORM_INLINE VormStatus identityKernel(const TheCall& call)
{
    return call.parts.with([](const auto& dst, Size width, Size height, Count count) VORM_INLINE_LAMBDA {
        return loadIdentities(movedElements(dst), height.value, width.value, count.value);
    });
}

// width and height are those of the source.
template <class TheCall>
VORM_INLINE VormStatus transposeKernel(const TheCall& call)
{
    return call.parts.with([](const auto& src, const auto& dst, Size width, Size height, auto... count)
                               VORM_INLINE_LAMBDA {
                                   return transposeObjects(movedElements(src), transposed(movedElements(dst)),
                                                           height.value, width.value, (1 * ... * count.value));
                               });
}

}  // namespace vorm::movement
