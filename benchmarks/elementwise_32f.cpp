// Vector sums and differences in single precision.

#include "elementwise.hpp"

namespace bench {

void addElementwise(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    const std::string streaming = std::to_string(streamingBytes() >> 20) + " MiB per array";
    ElementwiseSections s{
        section("Packed vectors, resident", resident + ", no gap between them."),
        section("Packed vectors, streaming", streaming + "."),
        section("Vectors in slots, resident", resident + ", each at a multiple of 16 bytes."),
        section("Vectors in slots, streaming", streaming + "."),
        section("Vectors with gaps between elements, resident", resident + ", every second element used."),
        section("Vectors in a list, resident", resident + ", packed but visited out of order."),
        section("Vectors as structure of arrays, resident", resident + ", a pointer table and one plane per element."),
        section("Vectors as structure of arrays, streaming", streaming + "."),
    };
    addElementwise32f(s);
    addElementwise64f(s);
    addScaling32f(s);
    addScaling64f(s);
}

void addElementwise32f(ElementwiseSections& s)
{
    using enum Kind;
    addShape<Add, array, common, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vav_32f));
    addShape<Add, array, array, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vava_32f));
    addShape<Add, array, constant, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vac_32f));
    addShape<Add, array, constants, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vaca_32f));
    addShape<Add, common, constants, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_vca_32f));
    addShape<Sub, array, common, float, 3, 4>(s, BENCH_MEMBERS(vormSub_vav_32f));
    addShape<SubFrom, array, constant, float, 3>(s, BENCH_MEMBERS(vormSub_cva_32f));
    addShape<SubFrom, common, constants, float, 3>(s, BENCH_MEMBERS(vormSub_cav_32f));
}

}  // namespace bench
