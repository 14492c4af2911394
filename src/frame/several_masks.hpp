// What masked work needs of a few registers as one number, beside several.hpp: their masks, joined and applied.
#pragma once

#include "frame/several.hpp"

namespace vorm {

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

template <class L, int registers, class Each>
VORM_INLINE SeveralMask<L, registers> eachMask(const Each& register_)
{
    SeveralMask<L, registers> mask;
    unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA { mask.part[k] = register_(k); });
    return mask;
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator<=(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return eachMask<L, registers>([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] <= b.part[k]; });
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator>=(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return b <= a;
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator==(const Several<L, registers>& a, const Several<L, registers>& b)
{
    return eachMask<L, registers>([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] == b.part[k]; });
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator&(const SeveralMask<L, registers>& a, const SeveralMask<L, registers>& b)
{
    return eachMask<L, registers>([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] & b.part[k]; });
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> operator|(const SeveralMask<L, registers>& a, const SeveralMask<L, registers>& b)
{
    return eachMask<L, registers>([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] | b.part[k]; });
}
template <class L, int registers>
VORM_INLINE bool all(const SeveralMask<L, registers>& mask)
{
    auto joint = mask.part[0];
    unrolled<registers, 1>([&](auto k) VORM_INLINE_LAMBDA { joint = joint & mask.part[k]; });
    return all(joint);
}
// A bit for each lane, those of the first register first.
template <class L, int registers>
VORM_INLINE unsigned laneBits(const SeveralMask<L, registers>& mask)
{
    unsigned bits = 0;
    unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA { bits |= laneBits(mask.part[k]) << (k * L::width); });
    return bits;
}
template <class L, int registers>
VORM_INLINE SeveralMask<L, registers> without(const SeveralMask<L, registers>& a, const SeveralMask<L, registers>& b)
{
    return eachMask<L, registers>([&](auto k) VORM_INLINE_LAMBDA { return without(a.part[k], b.part[k]); });
}
template <class L, int registers>
VORM_INLINE Several<L, registers> where(const SeveralMask<L, registers>& mask, const Several<L, registers>& a)
{
    return Several<L, registers>::each([&](auto k) VORM_INLINE_LAMBDA { return where(mask.part[k], a.part[k]); });
}
template <class L, int registers>
VORM_INLINE Several<L, registers> difference(const SeveralMask<L, registers>& mask, const Several<L, registers>& a,
                                             const Several<L, registers>& b)
{
    return Several<L, registers>::each(
        [&](auto k) VORM_INLINE_LAMBDA { return difference(mask.part[k], a.part[k], b.part[k]); });
}
template <class L, int registers>
VORM_INLINE Several<L, registers> changed(const Several<L, registers>& a, const Several<L, registers>& difference)
{
    return Several<L, registers>::each([&](auto k)
                                           VORM_INLINE_LAMBDA { return changed(a.part[k], difference.part[k]); });
}

}  // namespace vorm
