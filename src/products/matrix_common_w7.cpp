// Products with a shared matrix, double precision.

#include "products/matrix_common_bodies.hpp"

namespace vorm::products {

VORM_EACH_ORDER(VORM_COMMON_SECOND, double, Packed<const double>, Packed<double>);
VORM_EACH_ORDER(VORM_COMMON_SECOND, double, Listed<const double>, Listed<double>);
VORM_EACH_ORDER(VORM_COMMON_SECOND, double, Transposed<Packed<const double>>, Packed<double>);
VORM_EACH_ORDER(VORM_COMMON_SECOND, double, Transposed<Listed<const double>>, Listed<double>);

VORM_EACH_ORDER(VORM_COMMON_FIRST, double, Packed<const double>, Packed<double>);
VORM_EACH_ORDER(VORM_COMMON_FIRST, double, Listed<const double>, Listed<double>);
VORM_EACH_ORDER(VORM_COMMON_FIRST, double, Transposed<Packed<const double>>, Packed<double>);
VORM_EACH_ORDER(VORM_COMMON_FIRST, double, Transposed<Listed<const double>>, Listed<double>);

}  // namespace vorm::products
