// Determinants and inverses in single precision.

#include "det.hpp"

namespace bench {

void det::addAll32f(LayoutSections& s)
{
    addOrders<float, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormDet_ma_32f), BENCH_MEMBERS(vormInvert_ma_32f));
}

void addDet(Sections& sections)
{
    LayoutSections s = addLayoutSections(sections, "Determinants and inverses");
    det::addAll32f(s);
    det::addAll64f(s);
}

}  // namespace bench
