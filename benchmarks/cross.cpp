// vormCrossProduct of arrays.

#include "cross.hpp"

namespace bench {

void addCrossProducts(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    const std::string streaming = std::to_string(streamingBytes() >> 20) + " MiB of vectors";
    cross::CrossSections s{
        section("Cross products, resident", resident + ", packed, and a call of 7."),
        section("Cross products, streaming", streaming + ", packed."),
        section("Cross products in a list, resident", resident + ", packed but visited out of order."),
        section("Cross products as structure of arrays, resident",
                resident + ", a pointer table and one plane per element."),
        section("Cross products as structure of arrays, streaming", streaming + "."),
    };
    cross::addShape<true, false, float>(s, BENCH_MEMBERS(vormCrossProduct_vav_32f));
    cross::addShape<false, true, float>(s, BENCH_MEMBERS(vormCrossProduct_vva_32f));
    cross::addShape<true, true, float>(s, BENCH_MEMBERS(vormCrossProduct_vava_32f));
    cross::addShape<true, false, double>(s, BENCH_MEMBERS(vormCrossProduct_vav_64f));
    cross::addShape<false, true, double>(s, BENCH_MEMBERS(vormCrossProduct_vva_64f));
    cross::addShape<true, true, double>(s, BENCH_MEMBERS(vormCrossProduct_vava_64f));
}

}  // namespace bench
