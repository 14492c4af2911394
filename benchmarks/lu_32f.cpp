// LU decomposition and substitution in single precision.

#include "lu.hpp"

namespace bench {

void lu::addAll32f(LayoutSections& s)
{
    addOrders<float, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormLUDecomp_ma_32f), BENCH_MEMBERS(vormLUBackSubst_mva_32f),
                                        BENCH_MEMBERS(vormLUBackSubst_mava_32f));
}

void addLu(Sections& sections)
{
    LayoutSections s = addLayoutSections(sections, "LU");
    lu::addAll32f(s);
    lu::addAll64f(s);
}

}  // namespace bench
