// Products of matrices and vectors in single precision.

#include "vector_products.hpp"

namespace bench {

void vectorProducts::addAll32f(VectorProductSections& s)
{
    BENCH_SHAPE(mva, float, 32f);
    BENCH_SHAPE(mava, float, 32f);
    BENCH_SHAPE(mav, float, 32f);
    BENCH_SHAPE(tava, float, 32f);
}

void addVectorProducts(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    const std::string streaming = std::to_string(streamingBytes() >> 20) + " MiB of matrices or vectors";
    vectorProducts::VectorProductSections s{
        section("Matrix times vector, resident", resident + ", packed."),
        section("Matrix times vector, streaming", streaming + ", packed."),
        section("Matrix times vector in a list, resident", resident + ", packed but visited out of order."),
        section("Matrix times vector as structure of arrays, resident",
                resident + ", a pointer table and one plane per element."),
        section("Matrix times vector as structure of arrays, streaming", streaming + "."),
    };
    vectorProducts::addAll32f(s);
    vectorProducts::addAll64f(s);
}

}  // namespace bench
