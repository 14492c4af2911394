// Symmetric eigenproblems in double precision.

#include "eigen_sym.hpp"

namespace bench {

void eigen::addAll64f(SymSections& s)
{
    addOrders<double, 2, 3, 4, 6, 10>(s, BENCH_MEMBERS(vormEigenValuesSym_ma_64f),
                                      BENCH_MEMBERS(vormEigenValuesVectorsSym_ma_64f));
}

}  // namespace bench
