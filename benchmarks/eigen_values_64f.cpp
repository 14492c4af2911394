// Eigenvalues of general matrices in double precision.

#include "eigen_values.hpp"

namespace bench {

void eigenvalues::addAll64f(ValueSections& s)
{
    addOrders<double, 2, 3, 4, 6, 10>(s, BENCH_MEMBERS(vormEigenValues_ma_64f));
}

}  // namespace bench
