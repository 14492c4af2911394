// An operand object by object, each in the form Part takes from its view. What all objects share is taken once.
#pragma once

#include "frame/operands.hpp"

namespace vorm {

template <class Part, class View>
class PerObject {
public:
    VORM_INLINE explicit PerObject(const View& view) : view_(view)
    {
        if constexpr (View::isCommon) common_ = taken(0);
    }
    VORM_INLINE Part operator()(int object) const
    {
        if constexpr (View::isCommon)
            return common_;
        else
            return taken(object);
    }

private:
    VORM_INLINE Part taken(int object) const
    {
        if constexpr (isConstant<View>)
            return Part::broadcast(view_(object, 0));
        else
            return Part::load(view_, object);
    }

    View view_;
    Part common_;
};

}  // namespace vorm
