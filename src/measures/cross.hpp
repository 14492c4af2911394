// The cross product over a number type, one object or a register of them, and the loops over objects in each layout.
//
// All of an object is loaded before its first element is stored, so that its destination may share memory with its own
// sources. Registers of objects are stored only where no two objects of the destination share any.
#pragma once

#include "frame/call.hpp"
#include "frame/overlap.hpp"
#include "frame/packed_lanes.hpp"
#include "frame/per_object.hpp"
#include "frame/planes.hpp"
#include "frame/small_vector.hpp"

namespace vorm::measures {

template <class Number>
struct Three {
    Number v[3];

    template <class View>
    VORM_INLINE static Three load(const View& view, int n)
    {
        return {{view(n, 0), view(n, 1), view(n, 2)}};
    }
    template <class View>
    VORM_INLINE void store(const View& view, int n) const
    {
        for (int i = 0; i < 3; ++i) view(n, i) = v[i];
    }
};

// (ay bz - az by, az bx - ax bz, ax by - ay bx)
template <class Number>
VORM_INLINE Three<Number> cross(const Three<Number>& a, const Three<Number>& b)
{
    const auto minor = [&](int i, int j) VORM_INLINE_LAMBDA { return a.v[i] * b.v[j] - a.v[j] * b.v[i]; };
    return {{minor(1, 2), minor(2, 0), minor(0, 1)}};
}

// Three floats in one register, x in the first lane and y, z in the last two, where storeFirst wants them.
struct InRegister {
    Lanes<float> v;

    template <class View>
    VORM_INLINE static InRegister load(const View& view, int n)
    {
        return {loadFirst<3>(view.object(n))};
    }
    template <class View>
    VORM_INLINE void store(const View& view, int n) const
    {
        storeFirst<3>(view.object(n), v);
    }
    VORM_INLINE InRegister turned() const { return {permute<2, 1, 3, 0>(v)}; }  // y - z x
};
VORM_INLINE InRegister cross(InRegister a, InRegister b)
{
    return InRegister{a.v * b.turned().v - a.turned().v * b.v}.turned();  // z - x y before it is turned
}
// The same with 16 bytes loaded at once, which lie inside the operand for all objects of an array but its last.
struct InSlot : InRegister {
    template <class View>
    VORM_INLINE static InSlot load(const View& view, int n)
    {
        if constexpr (View::isCommon)
            return {InRegister::load(view, n)};
        else
            return {{permute<0, 0, 1, 2>(Lanes<float>::load(view.object(n)))}};
    }
};

// Three doubles in every pair of them.
struct InPairs {
    Lanes<double> xy, yz, zx;

    template <class View>
    VORM_INLINE static InPairs load(const View& view, int n)
    {
        const double* const p = view.object(n);
        const auto xy = Lanes<double>::load(p), yz = Lanes<double>::load(p + 1);
        return {xy, yz, shuffle<1, 0>(yz, xy)};
    }
};
struct PairAndLast {
    Lanes<double> xy;
    double z;

    template <class View>
    VORM_INLINE void store(const View& view, int n) const
    {
        xy.store(view.object(n));
        view(n, 2) = z;
    }
};
VORM_INLINE PairAndLast cross(const InPairs& a, const InPairs& b)
{
    return {a.yz * b.zx - a.zx * b.yz, firstLane(a.xy) * firstLane(b.yz) - firstLane(a.yz) * firstLane(b.xy)};
}

// The objects from first up to end, each by itself in the form that V gives it.
template <class V, class A, class B, class D>
VORM_INLINE void eachCross(const A& a, const B& b, const D& dst, int first, int end)
{
    const PerObject<V, A> ofA(a);
    const PerObject<V, B> ofB(b);
    for (int n = first; n < end; ++n) cross(ofA(n), ofB(n)).store(dst, n);
}

// Registers of objects, from done on, as many as there are; those of 128 bits last. A and B give what they load of a
// register of objects, as numbers of type L, and store takes what their cross product is.
template <class L, class A, class B, class Store>
VORM_INLINE void registersOfCross(const A& a, const B& b, const Store& store, int& done, int count)
{
    for (; done <= count - L::width; done += L::width)
        store(done, cross(a.template load<L>(done), b.template load<L>(done)));
    if constexpr (L::parts > 1) registersOfCross<Lanes<Element<L>>>(a, b, store, done, count);
}

// An object in each lane: from packed arrays of floats, or from planes. What all objects share is in all lanes.
struct PackedFloats {
    const float* p;
    template <class View>
    VORM_INLINE explicit PackedFloats(const View& view) : p(view.p)
    {
    }
    template <class L>
    VORM_INLINE Three<L> load(int n) const
    {
        Three<L> r;
        loadPacked(p + std::ptrdiff_t{3} * n, r.v);
        return r;
    }
};
template <class T>
struct Planes {
    const T* plane[3];
    template <class View>
    VORM_INLINE explicit Planes(const View& view) : plane{view.element(0), view.element(1), view.element(2)}
    {
    }
    template <class L>
    VORM_INLINE Three<L> load(int n) const
    {
        return {{L::load(plane[0] + n), L::load(plane[1] + n), L::load(plane[2] + n)}};
    }
};
template <class T>
struct InAllLanes {
    T v[3];
    template <class View>
    VORM_INLINE explicit InAllLanes(const View& view) : v{view(0, 0), view(0, 1), view(0, 2)}
    {
    }
    template <class L>
    VORM_INLINE Three<L> load(int) const
    {
        return {{v[0], v[1], v[2]}};
    }
};

// Packed doubles are never an object in each lane: of every two objects, whose results are (x0 y0) (z0 x1) (y1 z1),
// stand the factors of each result beside each other, the first ones of what is added and of what is subtracted.
template <class L>
struct Factors {
    L added[3], subtracted[3];
};
template <class L>
struct PackedResults {
    L v[3];
};
template <class L>
VORM_INLINE PackedResults<L> cross(const Factors<L>& a, const Factors<L>& b)
{
    PackedResults<L> r;
    for (int k = 0; k < 3; ++k) r.v[k] = a.added[k] * b.subtracted[k] - a.subtracted[k] * b.added[k];
    return r;
}
struct PackedDoubles {
    const double* p;
    template <class View>
    VORM_INLINE explicit PackedDoubles(const View& view) : p(view.p)
    {
    }
    template <class L>
    VORM_INLINE Factors<L> load(int n) const
    {
        const auto from = registersAt<L>(p + std::ptrdiff_t{3} * n, 6);
        const L xy0 = from(0), yz0 = from(1), xy1 = from(3), yz1 = from(4);
        return {{yz0, shuffle<0, 1>(xy0, xy1), shuffle<1, 0>(yz1, xy1)},
                {shuffle<1, 0>(yz0, xy0), shuffle<0, 1>(yz0, yz1), xy1}};
    }
};
struct TwiceInPairs {  // of what all objects share
    Wide<double> xy, yz, zx;
    template <class View>
    VORM_INLINE explicit TwiceInPairs(const View& view)
    {
        const auto pairs = [&](int i, int j) VORM_INLINE_LAMBDA {
            return lanes<Wide<double>>([&](int l) VORM_INLINE_LAMBDA { return view(0, l % 2 ? j : i); });
        };
        xy = pairs(0, 1), yz = pairs(1, 2), zx = pairs(2, 0);
    }
    template <class L>
    VORM_INLINE Factors<L> load(int) const
    {
        const L first = narrowed<L>(xy), second = narrowed<L>(yz), last = narrowed<L>(zx);
        return {{second, first, last}, {last, second, first}};
    }
};

// Elements side by side. ------------------------------------------------------------------------------------------

// How packed objects are loaded, and an object by itself.
template <class T>
struct Loads {
    using Packed = PackedFloats;
    using Shared = InAllLanes<float>;
    using Single = InRegister;
};
template <>
struct Loads<double> {
    using Packed = PackedDoubles;
    using Shared = TwiceInPairs;
    using Single = InPairs;
};
template <class L>
VORM_INLINE void storeCross(float* p, const Three<L>& r)
{
    storePacked(p, r.v);
}
template <class L>
VORM_INLINE void storeCross(double* p, const PackedResults<L>& r)
{
    storeRegisters(p, r.v);
}

template <class A, class B, class T>
VORM_INLINE void packedCross(const A& a, const B& b, const VectorArray<T, Adjacent>& dst, int count)
{
    using L = Lanes<T>;
    using Packed = typename Loads<T>::Packed;
    using Shared = typename Loads<T>::Shared;
    const std::conditional_t<A::isCommon, Shared, Packed> ofA(a);
    const std::conditional_t<B::isCommon, Shared, Packed> ofB(b);
    const auto store = [&](int n, const auto& r) VORM_INLINE_LAMBDA { storeCross(dst.object(n), r); };
    int done = 0;
    if constexpr (L::width > 2) {
        // The last register of objects may overlap the one before, so that it is read before anything is stored.
        const auto last = cross(ofA.template load<L>(count - L::width), ofB.template load<L>(count - L::width));
        registersOfCross<Wide<T>>(ofA, ofB, store, done, count - 1);
        store(count - L::width, last);
    } else {  // of pairs, one object is left at most
        registersOfCross<Wide<T>>(ofA, ofB, store, done, count);
        if (done < count) eachCross<typename Loads<T>::Single>(a, b, dst, count - 1, count);
    }
}
template <class A, class B, class T>
VORM_INLINE void contiguousCross(const A& a, const B& b, const VectorArray<T, Adjacent>& dst, int count)
{
    if (isPacked(a, 3) && isPacked(b, 3) && isPacked(dst, 3) && count >= Lanes<T>::width)
        return packedCross(a, b, dst, count);
    int done = 0;
    if constexpr (std::is_same_v<T, float>) {
        done = count - 1;
        eachCross<InSlot>(a, b, dst, 0, done);
    }
    eachCross<typename Loads<T>::Single>(a, b, dst, done, count);
}
// Of a list, or single vectors.
template <class A, class B, class T, template <class, class> class Dst>
VORM_INLINE void contiguousCross(const A& a, const B& b, const Dst<T, Adjacent>& dst, int count)
{
    eachCross<typename Loads<T>::Single>(a, b, dst, 0, count);
}

// Pointer tables. --------------------------------------------------------------------------------------------

// Whole lines of the destination come first, and are fetched before their turn: where they have left the first cache,
// stores to three planes would wait for one line after the other.
template <class T, class A, class B>
VORM_INLINE void pointerCross(const A& a, const B& b, const VectorArrayPointers<T>& dst, int count)
{
    int done = 0;
    if (inPlanes(a) && inPlanes(b) && storableAsPlanes(dst, 3, 1, count)) {
        using L = Wide<T>;
        constexpr int line = 64 / int{sizeof(T)}, linesAhead = 2;
        const std::conditional_t<A::isCommon, InAllLanes<T>, Planes<T>> ofA(a);
        const std::conditional_t<B::isCommon, InAllLanes<T>, Planes<T>> ofB(b);
        T* const to[3] = {dst.element(0), dst.element(1), dst.element(2)};
        const auto store = [&](int n, const auto& r) VORM_INLINE_LAMBDA {
            for (int i = 0; i < 3; ++i) r.v[i].store(to[i] + n);
        };
        for (; done <= count - line; done += line) {
            for (int i = 0; i < 3; ++i) __builtin_prefetch(to[i] + done + linesAhead * line);
            unrolled<line / L::width>([&](auto k) VORM_INLINE_LAMBDA {
                const int n = done + k * L::width;
                store(n, cross(ofA.template load<L>(n), ofB.template load<L>(n)));
            });
        }
        registersOfCross<L>(ofA, ofB, store, done, count);
    }
    eachCross<Three<T>>(a, b, dst, done, count);
}

// The kernels over the parts of a call. ---------------------------------------------------------------------------

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousCross(const Call<T, TheTests, Parts>& call)
{
    call.parts.with([](const auto& a, const auto& b, const auto& dst, auto... count) VORM_INLINE_LAMBDA {
        contiguousCross(a.withAdjacent(), b.withAdjacent(), dst.withAdjacent(), (1 * ... * count.value));
    });
    return StatusOk;
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideCross(const Call<T, TheTests, Parts>& call)
{
    call.parts.with([](const auto& a, const auto& b, const auto& dst, auto... count)
                        VORM_INLINE_LAMBDA { eachCross<Three<T>>(a, b, dst, 0, (1 * ... * count.value)); });
    return StatusOk;
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerCross(const ArrayCall<T, TheTests, Parts>& call)
{
    call.parts.with([](const auto& a, const auto& b, const auto& dst, Count count)
                        VORM_INLINE_LAMBDA { pointerCross<T>(a, b, dst, count.value); });
    return StatusOk;
}

}  // namespace vorm::measures
