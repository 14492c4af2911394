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
    // A slot is loaded at once, but stored in two parts with a shuffle between them: of no use where nothing is loaded.
    if constexpr (Len == 3 && sizeof(T) == sizeof(float) && !(A::isCommon && isConstant<B>)) {
        if (inSlots(a) && inSlots(b)) return slotObjects(op, a, b, dst, count);
    }
    eachByRegisters<SmallVector<T, Len>>(op, a, b, dst, 0, count);
}

template <int Len, class Op, class T, class A, class B>
VORM_INLINE void smallObjects(const Op& op, const A& a, const B& b, const VectorList<T, Adjacent>& dst, int count)
{
    eachByRegisters<SmallVector<T, Len>>(op, a, b, dst, 0, count);
}

// Where the objects of an operand are, so that all shapes of an operation share one kernel for long vectors, and
// another for those in lists: what is common to all objects is an array that makes no step, or an entry of such a list.
template <class T, bool inList>
struct Objects {
    const void* first;
    std::ptrdiff_t step, shift;
    VORM_INLINE T* operator()(int n) const
    {
        const char* const p = static_cast<const char*>(first) + n * step;
        if constexpr (inList)
            return advance(*reinterpret_cast<T* const*>(p), shift);
        else
            return const_cast<T*>(reinterpret_cast<const T*>(p));
    }
};
template <class T, bool inList, class View>
VORM_INLINE Objects<T, inList> objectsOf(const View& view)
{
    if constexpr (requires { view.pp; })
        return {view.pp, sizeof(T*), view.shift};
    else if constexpr (inList)
        return {&view.p, 0, 0};
    else if constexpr (requires { view.stride0; })
        return {view.p, view.stride0, 0};
    else
        return {view.p, 0, 0};
}
template <class T>
VORM_INLINE auto asVector(const Constant<T>& constant)
{
    return Vector{&constant.val, adjacent};
}
template <class View>
VORM_INLINE const View& asVector(const View& view)
{
    return view;
}
template <bool isVal, class T>
VORM_INLINE auto runSource(const T* p)
{
    if constexpr (isVal)
        return Everywhere<T>{elementAt(p, 0)};
    else
        return Along<T>{p};
}

// Objects of a few registers and a tail.
template <int registers, bool isVal, class Op, class T, bool inList>
VORM_INLINE void mediumObjects(const Op& op, const Objects<const T, inList>& a, const Objects<const T, inList>& b,
                               const Objects<T, inList>& dst, int len, int count)
{
    for (int n = 0; n < count; ++n) {
        const Along<T> sourceA{a(n)};
        const auto sourceB = runSource<isVal>(b(n));
        T* const p = dst(n);
        unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA {
            op.apply(sourceA.lanes(k * Lanes<T>::width), sourceB.lanes(k * Lanes<T>::width))
                .store(p + k * Lanes<T>::width);
        });
        runTail(op, sourceA, sourceB, p, registers * Lanes<T>::width, len);
    }
}

// Objects of 16 elements in a list, beside a vector that all of them share and that stays in registers.
template <bool commonFirst, class Op, class T>
VORM_INLINE void heldObjects(const Op& op, const T* common, const Objects<const T, true>& array,
                             const Objects<T, true>& dst, int count)
{
    constexpr int width = Lanes<T>::width, registers = 16 / width;
    Lanes<T> held[registers];
    for (int k = 0; k < registers; ++k) held[k] = Lanes<T>::load(common + k * width);
    for (int n = 0; n < count; ++n) {
        const T* const other = array(n);
        T* const p = dst(n);
        unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA {
            const auto x = Lanes<T>::load(other + k * width);
            (commonFirst ? op.apply(held[k], x) : op.apply(x, held[k])).store(p + k * width);
        });
    }
}

// All lengths but the small ones; b is an array of constants, or of vectors.
template <bool isVal, class Op, class T, bool inList>
VORM_SHARED void longObjects(Op op, Objects<const T, inList> a, Objects<const T, inList> b, Objects<T, inList> dst,
                             int len, int count)
{
    if constexpr (inList && !isVal) {
        if (len == 16 && b.step == 0) return heldObjects<false>(op, b(0), a, dst, count);
        if (len == 16 && a.step == 0) return heldObjects<true>(op, a(0), b, dst, count);
    }
    switch (len / Lanes<T>::width) {
    case 1: return mediumObjects<1, isVal>(op, a, b, dst, len, count);
    case 2: return mediumObjects<2, isVal>(op, a, b, dst, len, count);
    case 3: return mediumObjects<3, isVal>(op, a, b, dst, len, count);
    case 4: return mediumObjects<4, isVal>(op, a, b, dst, len, count);
    case 8: return mediumObjects<8, isVal>(op, a, b, dst, len, count);
    default:
        for (int n = 0; n < count; ++n) run(op, Along<T>{a(n)}, runSource<isVal>(b(n)), dst(n), len);
    }
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
    default:
        constexpr bool inList = !isRun<Dst<T, Adjacent>>;
        longObjects<isConstant<B>>(op, objectsOf<const T, inList>(a), objectsOf<const T, inList>(asVector(b)),
                                   objectsOf<T, inList>(dst), len, count);
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
