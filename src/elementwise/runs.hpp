// Runs: the element-wise operations on one long vector, register by register.
#pragma once

#include "frame/lanes.hpp"
#include "frame/operands.hpp"
#include "frame/operations.hpp"
#include "frame/tiles.hpp"

namespace vorm::elementwise {

// Where runs are long the memory decides: registers of 512 bits, most of which would cross lines of the cache, lose.
template <class T>
using RunRegister = UpTo<T, 2>;

// A source of a run: elements side by side (Along), or one value everywhere.
template <class T>
struct Everywhere {
    RunRegister<T> value;
    template <int Count = Lanes<T>::width>
    VORM_INLINE Lanes<T> lanes(std::ptrdiff_t) const
    {
        return narrowed<Lanes<T>>(value);
    }
    template <class L>
    VORM_INLINE L lanes(std::ptrdiff_t) const
    {
        return narrowed<L>(value);
    }
};

// The last elements from i on, fewer than a register.
template <class Op, class A, class B, class T>
VORM_INLINE void runTail(const Op& op, A a, B b, T* dst, std::ptrdiff_t i, std::ptrdiff_t length)
{
    if constexpr (Lanes<T>::width == 4) {
        if (length - i >= 2) {
            storeFirst<2>(dst + i, op.apply(a.template lanes<2>(i), b.template lanes<2>(i)));
            i += 2;
        }
    }
    if (i < length) storeFirst<1>(dst + i, op.apply(a.template lanes<1>(i), b.template lanes<1>(i)));
}

template <class Op, class A, class B, class T>
VORM_INLINE void run(const Op& op, A a, B b, T* dst, std::ptrdiff_t length)
{
    constexpr int width = RunRegister<T>::width;
    std::ptrdiff_t i = 0;
    const auto one = [&]<class L>(L, std::ptrdiff_t at) VORM_INLINE_LAMBDA {
        op.apply(a.template lanes<L>(at), b.template lanes<L>(at)).store(dst + at);
    };
    // Each register is stored before the next is loaded: faster here than four loads, then four stores.
    for (; i + 4 * width <= length; i += 4 * width)
        for (int k = 0; k < 4; ++k) one(RunRegister<T>(), i + k * width);
    for (; i + width <= length; i += width) one(RunRegister<T>(), i);
    if constexpr (width > Lanes<T>::width)
        for (; i + Lanes<T>::width <= length; i += Lanes<T>::width) one(Lanes<T>(), i);
    runTail(op, a, b, dst, i, length);
}

}  // namespace vorm::elementwise
