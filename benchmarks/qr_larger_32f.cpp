// QR decomposition and solving of larger and oblong shapes in single precision.

#include "qr.hpp"

namespace bench {

void qr::addLarger32f(LayoutSections& s)
{
    addLargerShapes<float>(s, BENCH_MEMBERS(vormQRDecomp_ma_32f), BENCH_MEMBERS(vormQRBackSubst_mva_32f),
                           BENCH_MEMBERS(vormQRBackSubst_mava_32f));
}

}  // namespace bench
