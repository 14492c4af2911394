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
VORM_INLINE void slotObjects(const Op& op, const A& a, const B& b, const D& dst, int count)
{
    eachObject<SlotVector>(op, a, b, dst, 0, count - 1);
    eachObject<SmallVector<float, 3>>(op, a, b, dst, count - 1, count);  // its slot may end with the page
}

template <int Len, class Op, class T, class A, class B>
VORM_INLINE void smallObjects(const Op& op, const A& a, const B& b, const VectorArray<T, Adjacent>& dst, int count)
{
    if constexpr (!(isRun<A> && isRun<B>)) {
        if (isPacked(a, Len) && isPacked(b, Len) && isPacked(dst, Len)) {
            if constexpr (std::is_same_v<B, ConstantArray<T>>) {
                if (b.stride0 == int{sizeof(T)}) return packedBlocks<Len>(op, a, ConstantRow<T>{b.p}, dst, count);
            }
            return packedBlocks<Len>(op, a, b, dst, count);
        }
    }
    if constexpr (Len == 3 && sizeof(T) == sizeof(float)) {
        if (inSlots(a) && inSlots(b)) return slotObjects(op, a, b, dst, count);
    }
    eachObject<SmallVector<T, Len>>(op, a, b, dst, 0, count);
}

template <int Len, class Op, class T, class A, class B>
VORM_INLINE void smallObjects(const Op& op, const A& a, const B& b, const VectorList<T, Adjacent>& dst, int count)
{
    eachObject<SmallVector<T, Len>>(op, a, b, dst, 0, count);
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
template <int Registers, class T, class Op, class A, class B, class D>
VORM_INLINE void mediumObjects(const Op& op, const A& a, const B& b, const D& dst, int len, int count)
{
    const Held<T, Registers, A> heldA(a);
    const Held<T, Registers, B> heldB(b);
    for (int n = 0; n < count; ++n) {
        const auto sourceA = runSource<T>(a, n);
        const auto sourceB = runSource<T>(b, n);
        T* const p = dst.object(n);
        for (int k = 0; k < Registers; ++k)
            op.apply(heldA.part(sourceA, k), heldB.part(sourceB, k)).store(p + k * Lanes<T>::width);
        runTail(op, sourceA, sourceB, p, Registers * Lanes<T>::width, len);
    }
}

// All other lengths. Not inlined, to keep the small sizes free of its registers.
template <class Op, class A, class B, class T, template <class, class> class Dst>
[[gnu::noinline]] VormStatus longObjects(Op op, A a, B b, Dst<T, Adjacent> dst, int len, int count)
{
    switch (len / Lanes<T>::width) {
    case 1: mediumObjects<1, T>(op, a, b, dst, len, count); break;
    case 2: mediumObjects<2, T>(op, a, b, dst, len, count); break;
    case 3: mediumObjects<3, T>(op, a, b, dst, len, count); break;
    case 4: mediumObjects<4, T>(op, a, b, dst, len, count); break;
    case 8: mediumObjects<8, T>(op, a, b, dst, len, count); break;
    default:
        for (int n = 0; n < count; ++n) run(op, runSource<T>(a, n), runSource<T>(b, n), dst.object(n), len);
    }
    return StatusOk;
}

template <class Op, class A, class B, class T, template <class, class> class Dst>
VORM_INLINE VormStatus contiguousObjects(const Op& op, const A& a, const B& b, const Dst<T, Adjacent>& dst, int len,
                                         int count)
{
    if constexpr (isRun<A> && isRun<B> && isRun<Dst<T, Adjacent>>) {
        if (isPacked(a, len) && isPacked(b, len) && isPacked(dst, len)) {
            run(op, runSource<T>(a, 0), runSource<T>(b, 0), dst.p, std::ptrdiff_t{len} * count);
            return StatusOk;
        }
    }
    switch (len) {
    case 3: smallObjects<3>(op, a, b, dst, count); break;
    case 4: smallObjects<4>(op, a, b, dst, count); break;
    case 5: smallObjects<5>(op, a, b, dst, count); break;
    case 6: smallObjects<6>(op, a, b, dst, count); break;
    default: return longObjects(op, a, b, dst, len, count);
    }
    return StatusOk;
}

// The single shapes: beyond the small sizes they behave as a loop over ascending elements, however their
// operands overlap.
template <class Op, class T, class A, class B>
VORM_INLINE VormStatus contiguousObject(const Op& op, const A& a, const B& b, const Vector<T, Adjacent>& dst, int len)
{
    const auto asLoop = [&](const auto& view) VORM_INLINE_LAMBDA {
        if constexpr (isConstant<std::decay_t<decltype(view)>>)
            return true;
        else
            return runsAsLoop(view.p, dst.p, sizeof(RunRegister<T>));
    };
    switch (len) {
    case 3: eachObject<SmallVector<T, 3>>(op, a, b, dst, 0, 1); break;
    case 4: eachObject<SmallVector<T, 4>>(op, a, b, dst, 0, 1); break;
    case 5: eachObject<SmallVector<T, 5>>(op, a, b, dst, 0, 1); break;
    case 6: eachObject<SmallVector<T, 6>>(op, a, b, dst, 0, 1); break;
    default:
        if (asLoop(a) && asLoop(b))
            run(op, runSource<T>(a, 0), runSource<T>(b, 0), dst.p, len);
        else
            eachElement(op, a, b, dst, len, 1);
    }
    return StatusOk;
}

// Elements anywhere: the _S2 and _LS2 kernels, and pointer tables. -----------------------------------

template <class Op, class A, class B, class D>
VORM_INLINE VormStatus anyStride(const Op& op, const A& a, const B& b, const D& dst, int len, int count)
{
    using T = std::remove_const_t<decltype(op.apply(a(0, 0), a(0, 0)))>;
    switch (len) {
    case 3: eachObject<ScatteredVector<T, 3>>(op, a, b, dst, 0, count); break;
    case 4: eachObject<ScatteredVector<T, 4>>(op, a, b, dst, 0, count); break;
    case 5: eachObject<ScatteredVector<T, 5>>(op, a, b, dst, 0, count); break;
    case 6: eachObject<ScatteredVector<T, 6>>(op, a, b, dst, 0, count); break;
    default: eachElement(op, a, b, dst, len, count);
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
VORM_INLINE VormStatus pointerObjects(const Op& op, const A& a, const B& b, const VectorArrayPointers<T>& dst, int len,
                                      int count)
{
    if (!(count >= Lanes<T>::width && inPlanes(a) && inPlanes(b) && inPlanes(dst) &&
          planesApart(dst.pp, len, 1, std::ptrdiff_t{count} * int{sizeof(T)}, count)))
        return anyStride(op, a, b, dst, len, count);

    // Whole planes, unless constants are read again for each of them and are to stay in the cache.
    const int objectsAtOnce = isConstant<A> || isConstant<B> ? 1024 : count;
    for (int n = 0; n < count; n += objectsAtOnce) {
        const int objects = min(objectsAtOnce, count - n);
        for (int i = 0; i < len; ++i)
            run(op, planeSource<T>(a, n, i), planeSource<T>(b, n, i), dst.element(i) + n, objects);
    }
    return StatusOk;
}

}  // namespace vorm::elementwise
