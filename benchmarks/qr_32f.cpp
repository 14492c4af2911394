// QR decomposition and solving of the orders 3 to 6 in single precision.

#include "qr.hpp"

namespace bench {

void qr::addAll32f(LayoutSections& s)
{
    addShapes<float>(s, BENCH_MEMBERS(vormQRDecomp_ma_32f), BENCH_MEMBERS(vormQRBackSubst_mva_32f),
                     BENCH_MEMBERS(vormQRBackSubst_mava_32f));
}

void addQr(Sections& sections)
{
    LayoutSections s = addLayoutSections(sections, "QR");
    qr::addAll32f(s);
    qr::addLarger32f(s);
    qr::addAll64f(s);
    qr::addLarger64f(s);
}

}  // namespace bench
