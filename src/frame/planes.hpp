// Structure of arrays: pointer tables whose objects lie side by side, element by element, so that a
// register along a plane holds the same element of several objects.
#pragma once

#include "frame/operands.hpp"

namespace vorm {

template <class View>
VORM_INLINE bool inPlanes(const View& view)
{
    if constexpr (isTransposed<View>)
        return inPlanes(view.stored);
    else if constexpr (View::isCommon)
        return true;
    else if constexpr (requires { view.pp; })
        return view.stride0 == static_cast<int>(sizeof(*view.pp[0]));
    else
        return view.stride0 == static_cast<int>(sizeof(*view.p));
}

// A view that is known to lie in planes.
template <class View>
struct InPlanes : View {
    template <class... Index>
    decltype(auto) operator()(int n, Index... index) const
    {
        return entry(this->element(index...), n);
    }
};
// Without that knowledge, where it would only make another copy of the code.
template <class View>
constexpr const View& plain(const View& view)
{
    return view;
}
template <class View>
constexpr const View& plain(const InPlanes<View>& view)
{
    return view;
}

template <class View>
constexpr bool isInPlanes = false;
template <class View>
constexpr bool isInPlanes<InPlanes<View>> = true;

template <class View>
constexpr auto asPlanes(const View& view)
{
    if constexpr (View::isCommon)
        return view;  // the same for all objects
    else
        return InPlanes<View>{view};
}

}  // namespace vorm
