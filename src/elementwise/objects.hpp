// Object by object: dst[n][i] = a[n][i] op b[n][i] over any operand views.
#pragma once

#include <utility>

#include "frame/operands.hpp"
#include "frame/operations.hpp"
#include "frame/per_object.hpp"
#include "frame/small_vector.hpp"
#include "frame/unrolled.hpp"

namespace vorm::elementwise {

// The objects from first up to end, each as one vector of type V.
template <class V, class Op, class A, class B, class D>
VORM_INLINE void eachObject(const Op& op, const A& a, const B& b, const D& dst, int first, int end)
{
    const PerObject<V, A> ofA(a);
    const PerObject<V, B> ofB(b);
    for (int n = first; n < end; ++n) combine(op, ofA(n), ofB(n)).store(dst, n);
}

// The same register by register: those of an array are loaded when their turn comes, so that those of the destination
// are stored in the order of their addresses. In another order, which compilers choose where they may, stores take up
// to twice as long outside the first cache.
template <class V, class View>
struct RegistersOf {
    const View& view;
    VORM_INLINE auto object(int n) const { return view.object(n); }
    template <int k, class Object>
    VORM_INLINE auto part(Object p) const
    {
        return V::template part<k>(p);
    }
};
template <class V, class View>
requires(View::isCommon && !isConstant<View>) struct RegistersOf<V, View> {
    V vector;
    VORM_INLINE explicit RegistersOf(const View& view) : vector(V::load(view, 0)) {}
    VORM_INLINE int object(int n) const { return n; }
    template <int k>
    VORM_INLINE auto part(int) const
    {
        return vector.v[k];
    }
};
template <class V, class View>
requires isConstant<View>
struct RegistersOf<V, View> {
    const View& view;
    using Register = std::remove_all_extents_t<decltype(V::v)>;
    VORM_INLINE Register object(int n) const { return view(n, 0); }
    template <int k>
    VORM_INLINE Register part(Register val) const
    {
        return val;
    }
};
template <class V, class Op, class A, class B, class D>
VORM_INLINE void eachByRegisters(const Op& op, const A& a, const B& b, const D& dst, int first, int end)
{
    const RegistersOf<V, A> ofA{a};
    const RegistersOf<V, B> ofB{b};
    for (int n = first; n < end; ++n) {
        const auto x = ofA.object(n);
        const auto y = ofB.object(n);
        auto* const p = dst.object(n);
        unrolled<V::parts>([&](auto k) VORM_INLINE_LAMBDA {
            V::template putPart<k>(p, op.apply(ofA.template part<k>(x), ofB.template part<k>(y)));
        });
    }
}

// One object of an operand in the plain loop; a constant is loaded once for it.
template <class View>
struct ElementsOf {
    const View& view;
    int n;
    VORM_INLINE auto operator()(int i) const { return view(n, i); }
};
template <class View>
requires isConstant<View>
struct ElementsOf<View> {
    decltype(std::declval<const View&>()(0, 0)) val;
    VORM_INLINE ElementsOf(const View& view, int n) : val(view(n, 0)) {}
    VORM_INLINE auto operator()(int) const { return val; }
};

// The plain loop: elements anywhere, any number of them.
template <class Op, class A, class B, class D>
VORM_INLINE void eachElement(const Op& op, const A& a, const B& b, const D& dst, int len, int count)
{
    for (int n = 0; n < count; ++n) {
        const ElementsOf<A> ofA{a, n};
        const ElementsOf<B> ofB{b, n};
#pragma GCC unroll 4
        for (int i = 0; i < len; ++i) dst(n, i) = op.apply(ofA(i), ofB(i));
    }
}

}  // namespace vorm::elementwise
