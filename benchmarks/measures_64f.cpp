// Dot products, norms and traces in double precision.

#include "measures.hpp"

namespace bench {

void measures::addAll64f(MeasureSections& s)
{
    constexpr std::integer_sequence<int, 3, 4, 5, 6, 12> lengths;
    constexpr std::integer_sequence<int, 3, 4, 5, 6, 8> orders;
    addShape<Dot, Shape::vav, double>(s, BENCH_MEMBERS(vormDotProduct_vav_64f), lengths);
    addShape<Dot, Shape::vava, double>(s, BENCH_MEMBERS(vormDotProduct_vava_64f), lengths);
    addShape<Norm, Shape::va, double>(s, BENCH_MEMBERS(vormL2Norm_va_64f), lengths);
    addShape<Norm, Shape::ma, double>(s, BENCH_MEMBERS(vormFrobNorm_ma_64f), orders);
    addShape<Trace, Shape::ma, double>(s, BENCH_MEMBERS(vormTrace_ma_64f), orders);
    addSingles<double>(s.singles, "64f", {vormDotProduct_vv_64f, vormL2Norm_v_64f});
}
}  // namespace bench
