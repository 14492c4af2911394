// Determinants and inverses in single precision.

#include "det.hpp"

namespace bench {

void det::addAll32f(DetSections& s)
{
    addOrders<float, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormDet_ma_32f), BENCH_MEMBERS(vormInvert_ma_32f));
}

void addDet(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    det::DetSections s{
        section("Determinants and inverses, resident", resident + ", packed."),
        section("Determinants and inverses, streaming",
                std::to_string(streamingBytes() >> 20) + " MiB of matrices, packed."),
        section("Determinants and inverses in a list, resident", resident + ", packed but visited out of order."),
        section("Determinants and inverses as structure of arrays, resident",
                resident + ", a pointer table and one plane per element."),
    };
    det::addAll32f(s);
    det::addAll64f(s);
}

}  // namespace bench
