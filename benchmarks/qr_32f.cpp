// QR decomposition and solving of the orders 3 to 6 in single precision.

#include "qr.hpp"

namespace bench {

void qr::addAll32f(qr::Sections& s)
{
    addShapes<float>(s, BENCH_MEMBERS(vormQRDecomp_ma_32f), BENCH_MEMBERS(vormQRBackSubst_mva_32f),
                     BENCH_MEMBERS(vormQRBackSubst_mava_32f));
}

void addQr(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    qr::Sections s{
        section("QR, resident", resident + ", packed."),
        section("QR, streaming", std::to_string(streamingBytes() >> 20) + " MiB of matrices, packed."),
        section("QR in a list, resident", resident + ", packed but visited out of order."),
        section("QR as structure of arrays, resident", resident + ", a pointer table and one plane per element."),
    };
    qr::addAll32f(s);
    qr::addLarger32f(s);
    qr::addAll64f(s);
    qr::addLarger64f(s);
}

}  // namespace bench
