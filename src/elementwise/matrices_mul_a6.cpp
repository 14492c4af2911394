// Products of matrices and a constant in single precision, for all shapes.

#include "elementwise/matrix_bodies.hpp"

namespace vorm::elementwise {

using T = float;
template VormStatus matrixObjects<Mul>(const StridedElements<const T>&, const Constant<T>&, const StridedElements<T>&,
                                       int, int, int);
template VormStatus matrixObjects<Mul>(const ListedElements<const T>&, const Constant<T>&, const ListedElements<T>&,
                                       int, int, int);
template VormStatus matrixObjects<Mul>(const TabledElements<const T>&, const Constant<T>&, const TabledElements<T>&,
                                       int, int, int);

}  // namespace vorm::elementwise
