// vormGaxpy in single precision.

#include "gaxpy.hpp"

namespace bench {

void gaxpy::addAll32f(GaxpySections& s)
{
    addShape<Third::vectors, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormGaxpy_mva_32f));
    addShape<Third::vector, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormGaxpy_mvav_32f));
}

void addGaxpy(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    const std::string streaming = std::to_string(streamingBytes() >> 20) + " MiB of vectors";
    gaxpy::GaxpySections s{
        section("Gaxpy, resident", resident + ", packed."),
        section("Gaxpy, streaming", streaming + ", packed."),
        section("Gaxpy in a list, resident", resident + ", packed but visited out of order."),
        section("Gaxpy as structure of arrays, resident", resident + ", a pointer table and one plane per element."),
        section("Gaxpy as structure of arrays, streaming", streaming + "."),
    };
    gaxpy::addAll32f(s);
    gaxpy::addAll64f(s);
}

}  // namespace bench
