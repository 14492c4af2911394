// QR decomposition and solving of the orders 3 to 6 in double precision.

#include "qr.hpp"

namespace bench {

void qr::addAll64f(LayoutSections& s)
{
    addShapes<double>(s, BENCH_MEMBERS(vormQRDecomp_ma_64f), BENCH_MEMBERS(vormQRBackSubst_mva_64f),
                      BENCH_MEMBERS(vormQRBackSubst_mava_64f));
}

}  // namespace bench
