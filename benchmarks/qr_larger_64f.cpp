// QR decomposition and solving of larger and oblong shapes in double precision.

#include "qr.hpp"

namespace bench {

void qr::addLarger64f(LayoutSections& s)
{
    addLargerShapes<double>(s, BENCH_MEMBERS(vormQRDecomp_ma_64f), BENCH_MEMBERS(vormQRBackSubst_mva_64f),
                            BENCH_MEMBERS(vormQRBackSubst_mava_64f));
}

}  // namespace bench
