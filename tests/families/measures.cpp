// vormDotProduct, vormL2Norm, vormFrobNorm and vormTrace, bit by bit in the order that their list gives.

#include "harness.hpp"

namespace {

// More than six terms are sums side by side, which are added pairwise.
template <class T>
T sum(const std::vector<T>& terms)
{
    const std::size_t n = terms.size();
    if (n <= 6) {
        T total = terms[0];
        for (std::size_t k = 1; k < n; ++k) total += terms[k];
        return total;
    }
    constexpr std::size_t sums = 64 / sizeof(T), width = sums / 4;
    T s[sums] = {}, u[width];
    for (std::size_t k = 0; k < n; ++k) s[k % sums] += terms[k];
    for (std::size_t j = 0; j < width; ++j) u[j] = (s[j] + s[j + width]) + (s[j + 2 * width] + s[j + 3 * width]);
    return width == 4 ? (u[0] + u[1]) + (u[2] + u[3]) : u[0] + u[1];
}

template <class T>
VormStatus measure(const Call& call, int n)
{
    const bool isDot = call.f.family == "DotProduct";
    const Placed &a = call[isDot ? "src1" : "src"], &b = call[isDot ? "src2" : "src"];
    std::vector<T> terms;
    for (int k = 0; k < a.size(); ++k) terms.push_back(a.get<T>(n, k) * b.get<T>(n, k));
    call["dst"].set(n, 0, isDot ? sum(terms) : std::sqrt(sum(terms)));
    return StatusOk;
}

template <class T>
VormStatus trace(const Call& call, int n)
{
    const Placed& a = call["src"];
    T total = a.get<T>(n, 0);
    for (int k = 1; k < a.columns; ++k) total += a.get<T>(n, k * a.columns + k);
    call["dst"].set(n, 0, total);
    return StatusOk;
}

Stored scalarResult(const Operand& o, const Function& f, const Problem& p)
{
    if (o.name == "dst") return {1, 1};
    if (f.family == "Trace") return {p.sizes.columns, p.sizes.columns};
    return {0, 0};
}

std::vector<Sizes> lengths(const Function&)
{
    std::vector<Sizes> all;
    for (int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 13, 15, 16, 17, 20, 23, 24, 31, 32, 33, 40, 63, 64, 65, 127, 300})
        all.insert(all.end(), len <= 6 ? 12 : 4, {1, len, 1});
    return all;
}
std::vector<Sizes> shapes(const Function&)
{
    std::vector<Sizes> all;
    for (int n = 1; n <= 7; ++n) all.insert(all.end(), 12, {n, n, 1});
    for (int rows : {1, 2, 3, 4, 6, 7, 9, 16, 33, 70})
        for (int columns : {1, 2, 3, 4, 5, 6, 8, 15, 16, 17, 67}) all.push_back({rows, columns, 1});
    return all;
}
std::vector<Sizes> orders(const Function&)
{
    std::vector<Sizes> all;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 13, 31}) all.insert(all.end(), n <= 6 ? 12 : 4, {n, n, 1});
    return all;
}

// Squares that overflow or vanish, alone or only as a sum.
void fill(const Call& call, Values, Random& random)
{
    if (!chance(random, 15)) return;
    const bool isSingle = call.f.type == "32f", isLarge = chance(random, 60);
    const double scale = isLarge ? (isSingle ? 1e19 : 1e154) : (isSingle ? 1e-20 : 1e-155);
    for (std::size_t k = 0; k < call.operands.size(); ++k) {
        const Placed& p = call.operands[k];
        if (call.f.operands[k].isWritten) continue;
        for (int n = 0; n < p.count(); ++n)
            for (int e = 0; e < p.size(); ++e) {
                const double value = uniform(random, -2, 2) * scale;
                isSingle ? p.put(n, e, float(value)) : p.put(n, e, value);
            }
    }
}

}  // namespace

extern const Family dotProducts, l2Norms, frobeniusNorms, traces;
const Family dotProducts = {.name = "DotProducts",
                            .has = [](const Function& f) { return f.family == "DotProduct" && !f.isFixed(); },
                            .sizes = lengths,
                            .model32f = measure<float>,
                            .model64f = measure<double>,
                            .fill = fill,
                            .stored = scalarResult};
const Family l2Norms = {.name = "L2Norms",
                        .has = [](const Function& f) { return f.family == "L2Norm"; },
                        .sizes = lengths,
                        .model32f = measure<float>,
                        .model64f = measure<double>,
                        .fill = fill,
                        .stored = scalarResult};
const Family frobeniusNorms = {.name = "FrobeniusNorms",
                               .has = [](const Function& f) { return f.family == "FrobNorm"; },
                               .sizes = shapes,
                               .model32f = measure<float>,
                               .model64f = measure<double>,
                               .fill = fill,
                               .stored = scalarResult};
const Family traces = {.name = "Traces",
                       .has = [](const Function& f) { return f.family == "Trace"; },
                       .sizes = orders,
                       .model32f = trace<float>,
                       .model64f = trace<double>,
                       .fill = fill,
                       .stored = scalarResult};
