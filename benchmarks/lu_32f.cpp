// LU decomposition and substitution in single precision.

#include "lu.hpp"

namespace bench {

void lu::addAll32f(LuSections& s)
{
    addOrders<float, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormLUDecomp_ma_32f), BENCH_MEMBERS(vormLUBackSubst_mva_32f),
                                        BENCH_MEMBERS(vormLUBackSubst_mava_32f));
}

void addLu(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    lu::LuSections s{
        section("LU, resident", resident + ", packed."),
        section("LU, streaming", std::to_string(streamingBytes() >> 20) + " MiB of matrices, packed."),
        section("LU in a list, resident", resident + ", packed but visited out of order."),
        section("LU as structure of arrays, resident", resident + ", a pointer table and one plane per element."),
    };
    lu::addAll32f(s);
    lu::addAll64f(s);
}

}  // namespace bench
