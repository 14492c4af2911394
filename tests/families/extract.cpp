// vormExtract: dst[n](r, c) = src[n](r, c) bit by bit, where a t is read as the transpose of what is stored.

#include "harness.hpp"

namespace {

// The element of the source that is element e of the dense object.
int sourceOf(const Call& call, int e)
{
    const Placed& src = call["src"];
    const bool isTurned = call.f.operands[0].kind == 't';
    const int columns = isTurned ? src.size() / src.columns : src.columns;
    return isTurned ? e % columns * src.columns + e / columns : e;
}

template <class Bits>
VormStatus model(const Call& call, int n)
{
    const Placed &src = call["src"], &dst = call["dst"];
    for (int e = 0; e < dst.size(); ++e) dst.set(n, e, src.get<Bits>(n, sourceOf(call, e)));
    return StatusOk;
}

// The harness takes any NaN for any other; here every bit counts.
template <class Bits>
std::string judge(const Call& call, int n)
{
    const Placed &src = call["src"], &dst = call["dst"];
    for (int e = 0; e < dst.size(); ++e)
        if (dst.found<Bits>(n, e) != src.found<Bits>(n, sourceOf(call, e))) return "has other bits";
    return {};
}

// Signalling NaNs among the values.
void fill(const Call& call, Values values, Random& random)
{
    if (values != Values::special) return;
    const Placed& src = call["src"];
    for (int n = 0; n < src.count(); ++n)
        for (int e = 0; e < src.size(); ++e)
            if (chance(random, 20))
                call.f.type == "32f" ? src.put(n, e, std::uint32_t{0x7fa00000} + std::uint32_t(pick(random, 1, 1000)))
                                     : src.put(n, e, std::uint64_t{0xfff4} << 48 | random() >> 20);
}

std::vector<Sizes> sizes(const Function& f)
{
    std::vector<Sizes> all;
    if (f.operands[0].kind == 'v') {
        for (int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 16, 17, 31, 40})
            all.insert(all.end(), len >= 3 && len <= 6 ? 6 : 2, {.rows = 1, .columns = len});
        return all;
    }
    for (int rows : {1, 2, 3, 4, 5, 6, 7, 9, 16, 33})
        for (int columns : {1, 2, 3, 4, 5, 6, 8, 17, 33}) all.push_back({.rows = rows, .columns = columns});
    return all;
}

}  // namespace

extern const Family extractions;
const Family extractions = {.name = "Extractions",
                            .has = [](const Function& f) { return f.family == "Extract"; },
                            .sizes = sizes,
                            .model32f = model<std::uint32_t>,
                            .model64f = model<std::uint64_t>,
                            .judge32f = judge<std::uint32_t>,
                            .judge64f = judge<std::uint64_t>,
                            .fill = fill};
