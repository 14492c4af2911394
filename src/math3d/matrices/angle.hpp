// Sine and cosine of an angle in radians, as the C library gives them in single precision, with one call.
#pragma once

#include <math.h>

#include "frame/layers.hpp"

namespace vorm::math3d {

struct Angle {
    float sine, cosine;
};
VORM_INLINE Angle angleOf(float radians)
{
    Angle angle;
    sincosf(radians, &angle.sine, &angle.cosine);
    return angle;
}

}  // namespace vorm::math3d
