// vormCrossProduct of any layout: dst[n] = a[n] x b[n].

#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int n)
{
    const Placed &a = call["src1"], &b = call["src2"], &dst = call["dst"];
    T r[3];
    for (int i = 0; i < 3; ++i) {
        const int j = (i + 1) % 3, k = (i + 2) % 3;
        r[i] = a.get<T>(n, j) * b.get<T>(n, k) - a.get<T>(n, k) * b.get<T>(n, j);
    }
    for (int i = 0; i < 3; ++i) dst.set(n, i, r[i]);
    return StatusOk;
}

// Whatever the sizes of a problem, a vector has three elements.
Stored stored(const Operand&, const Function&, const Problem&) { return {1, 3}; }

// terms says which source is to be the destination, if both may.
const char* inPlace(const Function& f, const Sizes& sizes)
{
    const bool first = f.operands[0].isArray == f.isArray(), second = f.operands[1].isArray == f.isArray();
    return second && (!first || sizes.terms % 2 == 0) ? "src2" : "src1";
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int i = 0; i < 60; ++i) all.push_back({.rows = 1, .columns = 3, .terms = 3 + i % 2});
    return all;
}

}  // namespace

extern const Family crossProducts;
const Family crossProducts = {.name = "CrossProducts",
                              .has = [](const Function& f) { return f.family == "CrossProduct" && !f.isFixed(); },
                              .sizes = sizes,
                              .model32f = model<float>,
                              .model64f = model<double>,
                              .inPlace = inPlace,
                              .stored = stored};
