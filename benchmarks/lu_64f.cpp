// LU decomposition and substitution in double precision.

#include "lu.hpp"

namespace bench {

void lu::addAll64f(LayoutSections& s)
{
    addOrders<double, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormLUDecomp_ma_64f), BENCH_MEMBERS(vormLUBackSubst_mva_64f),
                                         BENCH_MEMBERS(vormLUBackSubst_mava_64f));
}

}  // namespace bench
