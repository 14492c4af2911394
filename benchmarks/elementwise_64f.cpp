// Vector sums and differences in double precision.

#include "elementwise.hpp"

namespace bench {

void addElementwise64f(ElementwiseSections& s)
{
    using enum Kind;
    addShape<Add, array, common, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vav_64f));
    addShape<Add, array, array, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vava_64f));
    addShape<Add, array, constant, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vac_64f));
    addShape<Add, array, constants, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vaca_64f));
    addShape<Add, common, constants, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vca_64f));
    addShape<Sub, array, common, double, 3, 4>(s, BENCH_MEMBERS(vormSub_vav_64f));
    addShape<SubFrom, array, constant, double, 3>(s, BENCH_MEMBERS(vormSub_cva_64f));
    addShape<SubFrom, common, constants, double, 3>(s, BENCH_MEMBERS(vormSub_cav_64f));
}

}  // namespace bench
