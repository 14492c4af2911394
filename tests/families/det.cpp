// vormDet, bit by bit as its list says.

#include "families/det_elimination.hpp"

namespace {

template <class T>
VormStatus determinant(const Call& call, int n)
{
    const auto a = squareOf<T>(call["src"], n);
    const int order = int(a.size());
    T result;
    if (isClosed(order)) {
        result = expanded(a, allColumns(order), true);
    } else {
        const T threshold = thresholdOf<T>(order);
        const auto e = reduce(a, threshold, true);
        result = !e.stopped && std::fabs(e.last) > threshold ? (e.last * e.sign) * e.product : 0;
    }
    call["dst"].set(n, 0, result);
    return StatusOk;
}

void fill(const Call& call, Values values, Random& random)
{
    fillNearThreshold(call, values, random);
    for (int n = 0; n < call["src"].count(); ++n)
        if (chance(random, 5))
            call.f.type == "32f" ? putZeroColumn<float>(call, n, random) : putZeroColumn<double>(call, n, random);
}

}  // namespace

extern const Family determinants;
const Family determinants = {.name = "Determinants",
                             .has = [](const Function& f) { return f.family == "Det"; },
                             .sizes = ordersOfMinors,
                             .model32f = determinant<float>,
                             .model64f = determinant<double>,
                             .fill = fill,
                             .stored = bufferAndResult};
