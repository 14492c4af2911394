// Which of two matrices are read transposed: the kinds of a shape of sums. The sizes of a call are those of the
// result, so that a transposed operand is stored with height columns and width rows.
#pragma once

#include "frame/call.hpp"

namespace vorm::elementwise {

template <class FirstAs, class SecondAs>
struct Kind {
    using First = FirstAs;
    using Second = SecondAs;
};

using Mm = Kind<AsStored, AsStored>;
using Mt = Kind<AsStored, AsTransposed>;
using Tm = Kind<AsTransposed, AsStored>;
using Tt = Kind<AsTransposed, AsTransposed>;

// The order in which a few members test their arguments.
using StridesFirst = Tests<Test::null, Test::count, Test::stride, Test::size>;

}  // namespace vorm::elementwise
