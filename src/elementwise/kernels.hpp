// The kernels of the element-wise families, written once over an operation and operand views. A
// shape header says which views its operands are; nothing else tells the shapes apart.
#pragma once

#include "elementwise/objects.hpp"
#include "elementwise/packed.hpp"
#include "elementwise/runs.hpp"
#include "frame/minmax.hpp"
#include "frame/overlap.hpp"
#include "frame/planes.hpp"

namespace vorm::elementwise {

// Elements side by side: the contiguous and the _L kernels. ---------------------------------------

// Object n of an operand as the source of a run.
template <class T, class View>
VORM_INLINE auto runSource(const View& view, int n)
{
    if constexpr (isConstant<View>)
        return Everywhere<T>{view(n, 0)};
    else
        return Along<T>{view.object(n)};
}

// Whether three floats of each object but the last can be read as 16 bytes inside the operand.
template <class View>
VORM_INLINE bool inSlots(const View& view)
{
    if constexpr (View::isCommon || isConstant<View>)
        return true;
    else
        return view.stride0 >= 16;
}

template <class Op, class A, class B, class D>
VORM_INLINE void slotObjects(const A& a, const B& b, const D& dst, int count)
{
    eachObject<Op, SlotVector>(a, b, dst, 0, count - 1);
    eachObject<Op, SmallVector<float, 3>>(a, b, dst, count - 1, count);  // its slot may end with the page
}

template <class Op, int Len, class T, class A, class B>
VORM_INLINE void smallObjects(const A& a, const B& b, const VectorArray<T, Adjacent>& dst, int count)
{
    if constexpr (!(isRun<A> && isRun<B>)) {
        if (isPacked(a, Len) && isPacked(b, Len) && isPacked(dst, Len)) {
            if constexpr (std::is_same_v<B, ConstantArray<T>>) {
                if (b.stride0 == int{sizeof(T)}) return packedBlocks<Op, Len>(a, ConstantRow<T>{b.p}, dst, count);
            }
            return packedBlocks<Op, Len>(a, b, dst, count);
        }
    }
    if constexpr (Len == 3 && sizeof(T) == sizeof(float)) {
        if (inSlots(a) && inSlots(b)) return slotObjects<Op>(a, b, dst, count);
    }
    eachObject<Op, SmallVector<T, Len>>(a, b, dst, 0, count);
}

template <class Op, int Len, class T, class A, class B>
VORM_INLINE void smallObjects(const A& a, const B& b, const VectorList<T, Adjacent>& dst, int count)
{
    eachObject<Op, SmallVector<T, Len>>(a, b, dst, 0, count);
}

// What a run of a few registers reads, register by register: a common vector stays where it was loaded.
template <class T, int Registers, class View>
struct Held {
    VORM_INLINE explicit Held(const View&) {}
    template <class Source>
    VORM_INLINE Lanes<T> part(const Source& source, int k) const
    {
        return source.lanes(k * Lanes<T>::width);
    }
};
template <class T, int Registers>
struct Held<T, Registers, Vector<const T, Adjacent>> {
    Lanes<T> v[Registers];
    VORM_INLINE explicit Held(const Vector<const T, Adjacent>& view)
    {
        for (int k = 0; k < Registers; ++k) v[k] = Lanes<T>::load(view.p + k * Lanes<T>::width);
    }
    template <class Source>
    VORM_INLINE Lanes<T> part(const Source&, int k) const
    {
        return v[k];
    }
};

// Objects of a few registers and a tail.
template <class Op, int Registers, class T, class A, class B, class D>
VORM_INLINE void mediumObjects(const A& a, const B& b, const D& dst, int len, int count)
{
    const Held<T, Registers, A> heldA(a);
    const Held<T, Registers, B> heldB(b);
    for (int n = 0; n < count; ++n) {
        const auto sourceA = runSource<T>(a, n);
        const auto sourceB = runSource<T>(b, n);
        T* const p = dst.object(n);
        for (int k = 0; k < Registers; ++k)
            Op::apply(heldA.part(sourceA, k), heldB.part(sourceB, k)).store(p + k * Lanes<T>::width);
        runTail<Op>(sourceA, sourceB, p, Registers * Lanes<T>::width, len);
    }
}

// All other lengths. Not inlined, to keep the small sizes free of its registers.
template <class Op, class A, class B, class T, template <class, class> class Dst>
[[gnu::noinline]] VormStatus longObjects(A a, B b, Dst<T, Adjacent> dst, int len, int count)
{
    switch (len / Lanes<T>::width) {
    case 1: mediumObjects<Op, 1, T>(a, b, dst, len, count); break;
    case 2: mediumObjects<Op, 2, T>(a, b, dst, len, count); break;
    case 3: mediumObjects<Op, 3, T>(a, b, dst, len, count); break;
    case 4: mediumObjects<Op, 4, T>(a, b, dst, len, count); break;
    case 8: mediumObjects<Op, 8, T>(a, b, dst, len, count); break;
    default:
        for (int n = 0; n < count; ++n) run<Op>(runSource<T>(a, n), runSource<T>(b, n), dst.object(n), len);
    }
    return StatusOk;
}

template <class Op, class A, class B, class T, template <class, class> class Dst>
VORM_INLINE VormStatus contiguousObjects(const A& a, const B& b, const Dst<T, Adjacent>& dst, int len, int count)
{
    if constexpr (isRun<A> && isRun<B> && isRun<Dst<T, Adjacent>>) {
        if (isPacked(a, len) && isPacked(b, len) && isPacked(dst, len)) {
            run<Op>(runSource<T>(a, 0), runSource<T>(b, 0), dst.p, std::ptrdiff_t{len} * count);
            return StatusOk;
        }
    }
    switch (len) {
    case 3: smallObjects<Op, 3>(a, b, dst, count); break;
    case 4: smallObjects<Op, 4>(a, b, dst, count); break;
    case 5: smallObjects<Op, 5>(a, b, dst, count); break;
    case 6: smallObjects<Op, 6>(a, b, dst, count); break;
    default: return longObjects<Op>(a, b, dst, len, count);
    }
    return StatusOk;
}

// The single shapes: beyond the small sizes they behave as a loop over ascending elements, however their
// operands overlap.
template <class Op, class T, class A, class B>
VORM_INLINE VormStatus contiguousObject(const A& a, const B& b, const Vector<T, Adjacent>& dst, int len)
{
    const auto asLoop = [&](const auto& view) VORM_INLINE_LAMBDA {
        if constexpr (isConstant<std::decay_t<decltype(view)>>)
            return true;
        else
            return runsAsLoop(view.p, dst.p, sizeof(RunRegister<T>));
    };
    switch (len) {
    case 3: eachObject<Op, SmallVector<T, 3>>(a, b, dst, 0, 1); break;
    case 4: eachObject<Op, SmallVector<T, 4>>(a, b, dst, 0, 1); break;
    case 5: eachObject<Op, SmallVector<T, 5>>(a, b, dst, 0, 1); break;
    case 6: eachObject<Op, SmallVector<T, 6>>(a, b, dst, 0, 1); break;
    default:
        if (asLoop(a) && asLoop(b))
            run<Op>(runSource<T>(a, 0), runSource<T>(b, 0), dst.p, len);
        else
            eachElement<Op>(a, b, dst, len, 1);
    }
    return StatusOk;
}

// Elements anywhere: the _S2 and _LS2 kernels, and pointer tables. -----------------------------------

template <class Op, class A, class B, class D>
VORM_INLINE VormStatus anyStride(const A& a, const B& b, const D& dst, int len, int count)
{
    using T = std::remove_const_t<decltype(Op::apply(a(0, 0), a(0, 0)))>;
    switch (len) {
    case 3: eachObject<Op, ScatteredVector<T, 3>>(a, b, dst, 0, count); break;
    case 4: eachObject<Op, ScatteredVector<T, 4>>(a, b, dst, 0, count); break;
    case 5: eachObject<Op, ScatteredVector<T, 5>>(a, b, dst, 0, count); break;
    case 6: eachObject<Op, ScatteredVector<T, 6>>(a, b, dst, 0, count); break;
    default: eachElement<Op>(a, b, dst, len, count);
    }
    return StatusOk;
}

// Structure of arrays: element i of all objects lies side by side, so that the whole registers run
// along the objects. ----------------------------------------------------------------------------------

// Element i of the objects from n on as the source of a run.
template <class T, class View>
VORM_INLINE auto planeSource(const View& view, int n, int i)
{
    if constexpr (View::isCommon)
        return Everywhere<T>{view(0, i)};
    else if constexpr (isConstant<View>)
        return Along<T>{view.p + n};
    else
        return Along<T>{view.element(i) + n};
}

template <class Op, class T, class A, class B>
VORM_INLINE VormStatus pointerObjects(const A& a, const B& b, const VectorArrayPointers<T>& dst, int len, int count)
{
    if (!(count >= Lanes<T>::width && inPlanes(a) && inPlanes(b) && inPlanes(dst) &&
          planesApart(dst.pp, len, 1, std::ptrdiff_t{count} * int{sizeof(T)}, count)))
        return anyStride<Op>(a, b, dst, len, count);

    // Whole planes, unless constants are read again for each of them and are to stay in the cache.
    const int objectsAtOnce = isConstant<A> || isConstant<B> ? 1024 : count;
    for (int n = 0; n < count; n += objectsAtOnce) {
        const int objects = min(objectsAtOnce, count - n);
        for (int i = 0; i < len; ++i)
            run<Op>(planeSource<T>(a, n, i), planeSource<T>(b, n, i), dst.element(i) + n, objects);
    }
    return StatusOk;
}

}  // namespace vorm::elementwise
