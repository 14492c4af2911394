// Object by object: dst[n][i] = a[n][i] op b[n][i] over any operand views.
#pragma once

#include <utility>

#include "frame/operands.hpp"
#include "frame/operations.hpp"
#include "frame/per_object.hpp"
#include "frame/small_vector.hpp"

namespace vorm::elementwise {

// The objects from first up to end, each as one vector of type V.
template <class V, class Op, class A, class B, class D>
VORM_INLINE void eachObject(const Op& op, const A& a, const B& b, const D& dst, int first, int end)
{
    const PerObject<V, A> ofA(a);
    const PerObject<V, B> ofB(b);
    for (int n = first; n < end; ++n) combine(op, ofA(n), ofB(n)).store(dst, n);
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
