// Runs: the element-wise operations on one long vector, register by register.
#pragma once

#include "frame/operations.hpp"
#include "frame/lanes.hpp"
#include "frame/operands.hpp"

namespace vorm {

// A source of a run: elements side by side, or one value everywhere.
template <class T>
struct Along {
    const T* p;
    VORM_INLINE Lanes<T> lanes(std::ptrdiff_t i) const { return Lanes<T>::load(p + i); }
    VORM_INLINE T one(std::ptrdiff_t i) const { return elementAt(p, i * std::ptrdiff_t{sizeof(T)}); }
};
template <class T>
struct Everywhere {
    T value;
    VORM_INLINE Lanes<T> lanes(std::ptrdiff_t) const { return value; }
    VORM_INLINE T one(std::ptrdiff_t) const { return value; }
};

// The elements loaded before the first one is stored.
template <class T> constexpr int runStep = 4 * Lanes<T>::width;

template <class Op, class A, class B, class T>
VORM_INLINE void run(A a, B b, T* dst, std::ptrdiff_t length)
{
    constexpr int width = Lanes<T>::width;
    std::ptrdiff_t i = 0;
    for (; i + runStep<T> <= length; i += runStep<T>) {
        Lanes<T> r[4];
        for (int k = 0; k < 4; ++k) r[k] = Op::apply(a.lanes(i + k * width), b.lanes(i + k * width));
        for (int k = 0; k < 4; ++k) r[k].store(dst + i + k * width);
    }
    for (; i + width <= length; i += width) Op::apply(a.lanes(i), b.lanes(i)).store(dst + i);
    for (; i < length; ++i) elementAt(dst, i * std::ptrdiff_t{sizeof(T)}) = Op::apply(a.one(i), b.one(i));
}

// Whether a run gives what a loop over ascending elements would: no element of the source may be
// stored after the run has loaded it but before the loop would have read it.
template <class T>
VORM_INLINE bool runsAsLoop(const T* src, const T* dst)
{
    const auto ahead = reinterpret_cast<std::uintptr_t>(dst) - reinterpret_cast<std::uintptr_t>(src);
    return ahead - 1 >= runStep<T> * sizeof(T) - 1;  // 0 and everything behind the source wrap to large values
}

}  // namespace vorm
