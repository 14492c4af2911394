// Vectors times constants: operands and kernels are those of the element-wise families, one multiplication for each
// element. The measure of vac alone is another one.
#pragma once

#include "elementwise/shapes/vac.hpp"
#include "elementwise/shapes/vaca.hpp"
#include "elementwise/shapes/vc.hpp"
#include "elementwise/shapes/vca.hpp"
#include "products/layers.hpp"

namespace vorm::elementwise {

template <class Call>
VORM_INLINE constexpr Call vacProduct(Call call, int len)
{
    call.work.measure = wrapMul(2, len, call.count);
    return call;
}

}  // namespace vorm::elementwise
