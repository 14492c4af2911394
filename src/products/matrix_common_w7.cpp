// Products with a shared matrix, double precision.

#include "products/matrix_common_bodies.hpp"

namespace vorm::products {

VORM_EACH_ORDER(VORM_WITH_ROWS, double, Packed<const double>, Packed<double>);
VORM_EACH_ORDER(VORM_WITH_ROWS, double, Listed<const double>, Listed<double>);
VORM_EACH_ORDER(VORM_WITH_ROWS, double, Transposed<Packed<const double>>, Packed<double>);
VORM_EACH_ORDER(VORM_WITH_ROWS, double, Transposed<Listed<const double>>, Listed<double>);

VORM_EACH_ORDER(VORM_WITH_FACTORS, double, Packed<const double>, Packed<double>);
VORM_EACH_ORDER(VORM_WITH_FACTORS, double, Listed<const double>, Listed<double>);
VORM_EACH_ORDER(VORM_WITH_FACTORS, double, Transposed<Packed<const double>>, Packed<double>);
VORM_EACH_ORDER(VORM_WITH_FACTORS, double, Transposed<Listed<const double>>, Listed<double>);

}  // namespace vorm::products
