// Dot products, norms and traces in single precision.

#include "measures.hpp"

namespace bench {

void measures::addAll32f(MeasureSections& s)
{
    constexpr std::integer_sequence<int, 3, 4, 5, 6, 12> lengths;
    constexpr std::integer_sequence<int, 3, 4, 5, 6, 8> orders;
    addShape<Dot, Shape::vav, float>(s, BENCH_MEMBERS(vormDotProduct_vav_32f), lengths);
    addShape<Dot, Shape::vava, float>(s, BENCH_MEMBERS(vormDotProduct_vava_32f), lengths);
    addShape<Norm, Shape::va, float>(s, BENCH_MEMBERS(vormL2Norm_va_32f), lengths);
    addShape<Norm, Shape::ma, float>(s, BENCH_MEMBERS(vormFrobNorm_ma_32f), orders);
    addShape<Trace, Shape::ma, float>(s, BENCH_MEMBERS(vormTrace_ma_32f), orders);
    addSingles<float>(s.singles, "32f", {vormDotProduct_vv_32f, vormL2Norm_v_32f});
}

void addMeasures(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    measures::MeasureSections s{
        section("Measures, resident", resident + ", packed."),
        section("Measures, streaming", std::to_string(streamingBytes() >> 20) + " MiB of a source, packed."),
        section("Measures of lists, resident", resident + ", packed but visited out of order."),
        section("Measures of structures of arrays, resident",
                resident + ", a pointer table and one plane per element."),
        section("Measures of one vector", "Elements side by side; the peer has a length known only at run time."),
    };
    measures::addAll32f(s);
    measures::addAll64f(s);
}

}  // namespace bench
