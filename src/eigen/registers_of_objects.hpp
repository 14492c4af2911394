// The matrices of as many objects as a number holds, in one register or several, from any layout; and their values
// back.
#pragma once

#include "frame/object_lanes.hpp"

namespace vorm::eigen {

// Element (r, c) at w[r * n + c].
template <class Number, class View>
VORM_INLINE void loadObjects(const View& view, int first, int n, Number* w)
{
    using T = Element<Number>;
    if constexpr (isAdjacent<View> || isInPlanes<View>)
        eachRegister<Number>(n, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            for (int r = 0; r < n; ++r) {
                const auto element = [&](int c) VORM_INLINE_LAMBDA -> auto& { return registerOf(w[r * n + c], k); };
                if constexpr (isAdjacent<View>) {
                    const T* from[RegisterIn<Number>::width];
                    rowsAt(
                        view, object, [r](int) VORM_INLINE_LAMBDA { return r; }, from);
                    loadRows(from, element, n);
                } else {
                    for (int c = 0; c < n; ++c) element(c) = RegisterIn<Number>::load(view.element(r, c) + object);
                }
            }
        });
    else
        gatherMatrices(view, first, objectsIn<Number>, n, reinterpret_cast<T*>(w));
}

// The n values of an object follow those of the one before it.
template <class Number>
VORM_INLINE void storeValues(const Number* values, int first, int n, Element<Number>* dstValues)
{
    eachRegister<Number>(n, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
        Element<Number>* to[RegisterIn<Number>::width];
        for (int l = 0; l < RegisterIn<Number>::width; ++l) to[l] = dstValues + (object + l) * std::ptrdiff_t{n};
        storeRows(
            to, [&](int i) VORM_INLINE_LAMBDA { return registerOf(values[i], k); }, n);
    });
}

}  // namespace vorm::eigen
