// Packed arrays, no gap between the objects: they run as one long vector. Where the objects share
// an operand, it repeats with a period of Len registers.
#pragma once

#include "elementwise/objects.hpp"
#include "elementwise/runs.hpp"
#include "frame/shuffles.hpp"
#include "frame/unrolled.hpp"

namespace vorm::elementwise {

// Constants side by side, so that a register of them is one load.
template <class T>
struct ConstantRow {
    static constexpr bool isCommon = false, isConstant = true;
    const T* p;
    T operator()(int n, int) const { return elementAt(p, n * std::ptrdiff_t{sizeof(T)}); }
};

// The constants of as many objects as a register has lanes.
template <class T>
VORM_INLINE Lanes<T> blockOf(const ConstantRow<T>& constants, int n)
{
    return Lanes<T>::load(constants.p + n);
}
template <class T>
VORM_INLINE Lanes<T> blockOf(const ConstantArray<T>& constants, int n)
{
    return lanes<T>([&](int l) VORM_INLINE_LAMBDA { return constants(n + l, 0); });
}

// As many objects as a register has lanes make a block of Len registers: lane k of register j is
// element (width j + k) % Len of object (width j + k) / Len.
template <class T, int Len, class View>
struct Block;

template <class T, int Len, class U>
struct Block<T, Len, VectorArray<U, Adjacent>> {
    U* p;
    VORM_INLINE explicit Block(const VectorArray<U, Adjacent>& view) : p(view.p) {}
    VORM_INLINE void enter(int) {}
    VORM_INLINE void leave() { p += Len * Lanes<T>::width; }
    template <int j>
    VORM_INLINE Lanes<T> get() const
    {
        return Lanes<T>::load(p + j * Lanes<T>::width);
    }
    template <int j>
    VORM_INLINE void put(Lanes<T> v) const
    {
        v.store(p + j * Lanes<T>::width);
    }
};

template <class T, int Len>
struct Block<T, Len, Vector<const T, Adjacent>> {
    Lanes<T> tile[Len];
    VORM_INLINE explicit Block(const Vector<const T, Adjacent>& view)
    {
        T repeated[Len * Lanes<T>::width];
        for (int k = 0; k < Len * Lanes<T>::width; ++k) repeated[k] = view(0, k % Len);
        for (int j = 0; j < Len; ++j) tile[j] = Lanes<T>::load(repeated + j * Lanes<T>::width);
    }
    VORM_INLINE void enter(int) {}
    VORM_INLINE void leave() {}
    template <int j>
    VORM_INLINE Lanes<T> get() const
    {
        return tile[j];
    }
};

template <class T, int Len, class View>
requires isConstant<View>
struct Block<T, Len, View> {  // the constants of the block's objects, spread over their elements
    View view;
    Lanes<T> constants;
    VORM_INLINE explicit Block(const View& view_) : view(view_) {}
    VORM_INLINE void enter(int n) { constants = blockOf(view, n); }
    VORM_INLINE void leave() {}
    template <int j>
    VORM_INLINE Lanes<T> get() const
    {
        constexpr int width = Lanes<T>::width;
        constexpr auto object = [](int k) { return (width * j + k) / Len; };
        if constexpr (width == 4)
            return shuffle<object(0), object(1), object(2), object(3)>(constants, constants);
        else
            return shuffle<object(0), object(1)>(constants, constants);
    }
};

template <int Len, class Op, class T, class A, class B>
VORM_INLINE void packedBlocks(const Op& op, const A& a, const B& b, const VectorArray<T, Adjacent>& dst, int count)
{
    constexpr int width = Lanes<T>::width;
    int done = 0;
    if (count >= width) {
        Block<T, Len, A> blockA(a);
        Block<T, Len, B> blockB(b);
        Block<T, Len, VectorArray<T, Adjacent>> blockDst(dst);
        for (; done <= count - width; done += width) {
            blockA.enter(done), blockB.enter(done);
            unrolled<Len>([&](auto j) VORM_INLINE_LAMBDA {
                blockDst.template put<j>(op.apply(blockA.template get<j>(), blockB.template get<j>()));
            });
            blockA.leave(), blockB.leave(), blockDst.leave();
        }
    }
    eachObject<SmallVector<T, Len>>(op, a, b, dst, done, count);
}

// Packed arrays with nothing that repeats: one run through all objects.
template <class View>
constexpr bool isRun = false;
template <class T>
constexpr bool isRun<VectorArray<T, Adjacent>> = true;
template <class T>
constexpr bool isRun<Constant<T>> = true;

}  // namespace vorm::elementwise
