// The rest of a number's vocabulary for a few registers as one (Several): roots, comparisons and what follows from
// them.
#pragma once

#include "frame/lanes.hpp"

namespace vorm {

template <class L, int registers>
struct SeveralMask {
    typename L::Mask part[registers];

    template <class Each>
    VORM_INLINE static SeveralMask each(const Each& register_)
    {
        SeveralMask mask;
        unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA { mask.part[k] = register_(k); });
        return mask;
    }
    VORM_INLINE friend SeveralMask operator&(const SeveralMask& a, const SeveralMask& b)
    {
        return each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] & b.part[k]; });
    }
    VORM_INLINE friend SeveralMask operator|(const SeveralMask& a, const SeveralMask& b)
    {
        return each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] | b.part[k]; });
    }
    VORM_INLINE friend SeveralMask without(const SeveralMask& a, const SeveralMask& b)
    {
        return each([&](auto k) VORM_INLINE_LAMBDA { return without(a.part[k], b.part[k]); });
    }
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
VORM_INLINE Several<L, registers> abs(const Several<L, registers>& a)
{
    return Several<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return abs(a.part[k]); });
}
template <class L, int registers>
VORM_INLINE Several<L, registers> larger(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return Several<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return larger(a.part[k], b.part[k]); });
}
template <class L, int registers>
VORM_INLINE Several<L, registers> timesSignOf(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return Several<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return timesSignOf(a.part[k], b.part[k]); });
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator<(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return SeveralMask<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] < b.part[k]; });
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator<=(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return SeveralMask<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] <= b.part[k]; });
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator>=(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return b <= a;
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator==(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return SeveralMask<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] == b.part[k]; });
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

template <class L, int registers>
VORM_INLINE Several<L, registers> where(const SeveralMask<L, registers>& mask, const Several<L, registers>& a)
{
    return Several<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return where(mask.part[k], a.part[k]); });
}
template <class L, int registers>
VORM_INLINE bool all(const SeveralMask<L, registers>& mask)
{
    auto common = mask.part[0];
    unrolled<registers, 1>([&](auto k) VORM_INLINE_LAMBDA { common = common & mask.part[k]; });
    return all(common);
}
// A bit for each lane.
template <class L, int registers>
VORM_INLINE unsigned laneBits(const SeveralMask<L, registers>& mask)
{
    unsigned bits = 0;
    unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA { bits |= laneBits(mask.part[k]) << (k * L::width); });
    return bits;
}

}  // namespace vorm
