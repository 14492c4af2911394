// Products with a shared matrix, single precision. No kernel for lists has bodies for transposed matrices from the
// right; those for transposed ones from the left have order 6 as in tiles where the others are read as stored.

#include "products/matrix_common_bodies.hpp"

namespace vorm::products {

VORM_EACH_ORDER(VORM_COMMON_SECOND, float, Packed<const float>, Packed<float>);
VORM_EACH_ORDER(VORM_COMMON_SECOND, float, Listed<const float>, Listed<float>);
VORM_EACH_ORDER(VORM_COMMON_SECOND, float, Transposed<Packed<const float>>, Packed<float>);
VORM_EACH_ORDER(VORM_COMMON_SECOND, float, Transposed<Listed<const float>>, Listed<float>);
VORM_COMMON_SECOND(float, 6, asInTiles, Transposed<Packed<const float>>, Packed<float>);
VORM_COMMON_SECOND(float, 6, asInTiles, Transposed<Listed<const float>>, Listed<float>);

VORM_EACH_ORDER(VORM_COMMON_FIRST, float, Packed<const float>, Packed<float>);
VORM_EACH_ORDER(VORM_COMMON_FIRST, float, Listed<const float>, Listed<float>);
VORM_EACH_ORDER(VORM_COMMON_FIRST, float, Transposed<Packed<const float>>, Packed<float>);
VORM_COMMON_FIRST(float, 6, asInTiles, Packed<const float>, Packed<float>);
VORM_COMMON_FIRST(float, 6, asInTiles, Listed<const float>, Listed<float>);

}  // namespace vorm::products
