/* vorm: small-matrix and 3D-math primitives. The one header a caller includes. C99.
 *
 * Every function is listed, with its documentation, in the .inc file of its subsystem. */
#ifndef VORM_VORM_H
#define VORM_VORM_H

#include "vorm/status.h"
#include "vorm/version.h"

#ifdef __cplusplus
extern "C" {
#endif

#define VORM_FUNCTION(name, parameters) VormStatus name parameters;
#include "vorm/eigen.inc"
#include "vorm/elementwise.inc"
#include "vorm/factor.inc"
#include "vorm/math3d.inc"
#include "vorm/measures.inc"
#include "vorm/movement.inc"
#include "vorm/products.inc"
#undef VORM_FUNCTION

#ifdef __cplusplus
}
#endif

#endif
