// vormSaxpy and vormLComb, dst[n][i] = src1[n][i] val1 + src2[n][i] val2 with val2 left out in vormSaxpy; and vormMul
// of vectors by constants, dst[n][i] = src[n][i] val[n].

#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int n)
{
    const Placed& dst = call["dst"];
    for (int i = 0; i < dst.size(); ++i) {
        const auto element = [&](const char* name) { return call[name].get<T>(n, i); };
        const auto factor = [&](const char* name) { return call[name].get<T>(n, 0); };
        dst.set(n, i,
                call.f.family == "Mul"     ? element("src") * factor("val")
                : call.f.family == "Saxpy" ? element("src1") * factor("val") + element("src2")
                                           : element("src1") * factor("val1") + element("src2") * factor("val2"));
    }
    return StatusOk;
}

// An array that may be the destination; by turns where two of them may.
const char* inPlace(const Function& f, const Sizes& sizes)
{
    const char* found = nullptr;
    for (const char* name : {"src2", "src1", "src"})
        for (const Operand& o : f.operands)
            if (o.name == name && o.isArray == f.isArray() && (!found || sizes.columns % 2 == 0)) found = name;
    return found;
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17, 31, 40})
        all.insert(all.end(), len >= 3 && len <= 6 ? 12 : 4, {.rows = 1, .columns = len});
    return all;
}

// Factors of zero meet infinities and NaN.
void fill(const Call& call, Values values, Random& random)
{
    if (values != Values::special) return;
    for (std::size_t k = 0; k < call.operands.size(); ++k) {
        const Placed& p = call.operands[k];
        for (int n = 0; n < p.count() && call.f.operands[k].kind == 'c'; ++n)
            if (chance(random, 30))
                call.f.type == "32f" ? p.put(n, 0, chance(random, 50) ? 0.0f : -0.0f) : p.put(n, 0, 0.0);
    }
}

}  // namespace

extern const Family vectorScaling;
const Family vectorScaling = {
    .name = "VectorScaling",
    .has =
        [](const Function& f) {
            return f.family == "Saxpy" || f.family == "LComb" ||
                   (f.family == "Mul" && f.shape[0] == 'v' && f.shape.find('c') != f.shape.npos);
        },
    .sizes = sizes,
    .model32f = model<float>,
    .model64f = model<double>,
    .inPlace = inPlace,
    .fill = fill};
