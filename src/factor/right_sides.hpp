// All vectors of a call with one matrix, whose factors are put into lanes once: what the substitutions of LU, Cholesky
// and QR share.
#pragma once

#include "frame/lanes.hpp"
#include "frame/operands.hpp"

namespace vorm::factor {

// solve.template operator()<L>() does them in registers L: wider ones than 128 bits for so many vectors only that it
// pays to set them up.
template <class Widest, class Solve>
VORM_INLINE void inRegistersThatPay(int count, const Solve& solve)
{
    using T = Element<Widest>;
    if constexpr (Widest::parts > 1)
        if (count >= 4 * Wide<T>::width) return solve.template operator()<Widest>();
    solve.template operator()<Lanes<T>>();
}

// For vectors B of n elements: those that are gathered one by one, and three floats, fill wide registers too slowly.
template <int n, class T, class B>
using WidestOfVectors = UpTo<T, isInPlanes<B> || (isAdjacent<B> && n * sizeof(T) > 3 * sizeof(float)) ? 4 : 1>;

}  // namespace vorm::factor
