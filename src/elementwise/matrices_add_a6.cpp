// Sums of matrices in single precision, for all shapes.

#include "elementwise/matrix_bodies.hpp"

namespace vorm::elementwise {

using T = float;
template VormStatus matrixObjects<Add>(const StridedElements<const T>&, const StridedElements<const T>&,
                                       const StridedElements<T>&, int, int, int);
template VormStatus matrixObjects<Add>(const ListedElements<const T>&, const ListedElements<const T>&,
                                       const ListedElements<T>&, int, int, int);
template VormStatus matrixObjects<Add>(const TabledElements<const T>&, const TabledElements<const T>&,
                                       const TabledElements<T>&, int, int, int);

}  // namespace vorm::elementwise
