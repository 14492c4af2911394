// Object by object: dst[n][i] = a[n][i] op b[n][i] over any operand views.
#pragma once

#include <utility>

#include "frame/operands.hpp"
#include "frame/operations.hpp"
#include "frame/small_vector.hpp"

namespace vorm::elementwise {

// An operand as whole vectors of type V. What all objects share is loaded once.
template <class V, class View>
class Whole {
public:
    VORM_INLINE explicit Whole(const View& view) : view_(view)
    {
        if constexpr (View::isCommon) common_ = load(0);
    }
    VORM_INLINE V operator()(int n) const
    {
        if constexpr (View::isCommon)
            return common_;
        else
            return load(n);
    }

private:
    VORM_INLINE V load(int n) const
    {
        if constexpr (isConstant<View>)
            return V::broadcast(view_(n, 0));
        else
            return V::load(view_, n);
    }

    View view_;
    V common_;
};

// The objects from first up to end, each as one vector of type V.
template <class Op, class V, class A, class B, class D>
VORM_INLINE void eachObject(const A& a, const B& b, const D& dst, int first, int end)
{
    const Whole<V, A> wholeA(a);
    const Whole<V, B> wholeB(b);
    for (int n = first; n < end; ++n) combine<Op>(wholeA(n), wholeB(n)).store(dst, n);
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
VORM_INLINE void eachElement(const A& a, const B& b, const D& dst, int len, int count)
{
    for (int n = 0; n < count; ++n) {
        const ElementsOf<A> ofA{a, n};
        const ElementsOf<B> ofB{b, n};
#pragma GCC unroll 4
        for (int i = 0; i < len; ++i) dst(n, i) = Op::apply(ofA(i), ofB(i));
    }
}

}  // namespace vorm::elementwise
