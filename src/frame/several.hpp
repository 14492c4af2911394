// The rest of a number's vocabulary for a few registers as one (Several): roots, comparisons and what follows from
// them.
#pragma once

#include "frame/lanes.hpp"

namespace vorm {

template <class L, int registers>
struct SeveralMask {
    typename L::Mask part[registers];
};

template <class L, int registers>
VORM_INLINE Several<L, registers> operator-(const Several<L, registers>& a)
{
    return Several<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return -a.part[k]; });
}
template <class L, int registers>
VORM_INLINE Several<L, registers> sqrt(const Several<L, registers>& a)
{
    return Several<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return sqrt(a.part[k]); });
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator<(const Several<L, registers>& a, const Several<L, registers>& b)
{
    SeveralMask<L, registers> mask;
    unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA { mask.part[k] = a.part[k] < b.part[k]; });
    return mask;
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator>(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return b < a;
}
template <class L, int registers>
VORM_INLINE bool any(const SeveralMask<L, registers>& mask)
{
    auto united = mask.part[0];
    unrolled<registers, 1>([&](auto k) VORM_INLINE_LAMBDA { united = united | mask.part[k]; });
    return any(united);
}
template <class L, int registers>
VORM_INLINE Several<L, registers> select(const SeveralMask<L, registers>& mask, const Several<L, registers>& a,
                                         const Several<L, registers>& b)
{
    return Several<L, registers>::each([&](auto k)
                                           VORM_INLINE_LAMBDA { return select(mask.part[k], a.part[k], b.part[k]); });
}

}  // namespace vorm
