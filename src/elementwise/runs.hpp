// Runs: the element-wise operations on one long vector, register by register.
#pragma once

#include "frame/lanes.hpp"
#include "frame/operands.hpp"
#include "frame/operations.hpp"

namespace vorm::elementwise {

// A source of a run: elements side by side, or one value everywhere.
template <class T>
struct Along {
    const T* p;
    template <int Count = Lanes<T>::width>
    VORM_INLINE Lanes<T> lanes(std::ptrdiff_t i) const
    {
        return loadFirst<Count>(p + i);
    }
};
template <class T>
struct Everywhere {
    Lanes<T> value;
    template <int Count = Lanes<T>::width>
    VORM_INLINE Lanes<T> lanes(std::ptrdiff_t) const
    {
        return value;
    }
};

// The last elements from i on, fewer than a register.
template <class Op, class A, class B, class T>
VORM_INLINE void runTail(A a, B b, T* dst, std::ptrdiff_t i, std::ptrdiff_t length)
{
    if constexpr (Lanes<T>::width == 4) {
        if (length - i >= 2) {
            storeFirst<2>(dst + i, Op::apply(a.template lanes<2>(i), b.template lanes<2>(i)));
            i += 2;
        }
    }
    if (i < length) storeFirst<1>(dst + i, Op::apply(a.template lanes<1>(i), b.template lanes<1>(i)));
}

template <class Op, class A, class B, class T>
VORM_INLINE void run(A a, B b, T* dst, std::ptrdiff_t length)
{
    constexpr int width = Lanes<T>::width;
    std::ptrdiff_t i = 0;
    // Each register is stored before the next is loaded: faster here than four loads, then four stores.
    for (; i + 4 * width <= length; i += 4 * width)
        for (int k = 0; k < 4; ++k)
            Op::apply(a.lanes(i + k * width), b.lanes(i + k * width)).store(dst + i + k * width);
    for (; i + width <= length; i += width) Op::apply(a.lanes(i), b.lanes(i)).store(dst + i);
    runTail<Op>(a, b, dst, i, length);
}

// Whether a run gives what a loop over ascending elements would: no element of the source may be
// stored after the run has loaded it but before the loop would have read it, which could only happen
// within a register.
template <class T>
VORM_INLINE bool runsAsLoop(const T* src, const T* dst)
{
    const auto ahead = reinterpret_cast<std::uintptr_t>(dst) - reinterpret_cast<std::uintptr_t>(src);
    return ahead - 1 >= sizeof(Lanes<T>) - 1;  // 0 and everything behind the source wrap to large values
}

}  // namespace vorm::elementwise
