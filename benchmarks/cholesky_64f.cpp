// Cholesky decomposition and substitution in double precision.

#include "cholesky.hpp"

namespace bench {

void cholesky::addAll64f(LayoutSections& s)
{
    addOrders<double, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormCholeskyDecomp_ma_64f),
                                         BENCH_MEMBERS(vormCholeskyBackSubst_mva_64f),
                                         BENCH_MEMBERS(vormCholeskyBackSubst_mava_64f));
}

}  // namespace bench
