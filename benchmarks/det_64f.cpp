// Determinants and inverses in double precision.

#include "det.hpp"

namespace bench {

void det::addAll64f(LayoutSections& s)
{
    addOrders<double, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormDet_ma_64f), BENCH_MEMBERS(vormInvert_ma_64f));
}

}  // namespace bench
