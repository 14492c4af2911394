// vormGaxpy, bit by bit in its one order of additions.

#include "families/sums.hpp"
#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int n)
{
    const Placed &a = call["src1"], &x = call["src2"], &added = call["src3"], &y = call["dst"];
    const int rows = y.size(), terms = x.size();
    for (int i = 0; i < rows; ++i) {
        const auto product = [&](int k) { return a.get<T>(n, i * terms + k) * x.get<T>(n, k); };
        const Sum<T, decltype(product)> sum{product, terms};
        const bool isUnrolled = rows == terms && rows >= 3 && rows <= 6;
        y.set(n, i, (isUnrolled ? sum.fromFirstProduct() : sum.fromZero()) + added.get<T>(n, i));
    }
    return StatusOk;
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int rows : {1, 2, 3, 4, 5, 6, 7, 8, 9, 16, 31})
        for (int terms : {1, 2, 3, 4, 5, 6, 7, 8, 9, 16, 31})
            all.insert(all.end(), rows == terms && rows <= 6 ? 10 : 1, {.rows = rows, .columns = 1, .terms = terms});
    all.push_back({.rows = 5, .columns = 1, .terms = 300});
    return all;
}

// What is added is a negative zero too where sums are, since anything else would hide what they start with.
void fill(const Call& call, Values values, Random&)
{
    if (values != Values::negativeZeros) return;
    const Placed& added = call["src3"];
    for (int n = 0; n < added.count(); ++n)
        for (int i = 0; i < added.size(); ++i) call.f.type == "32f" ? added.put(n, i, -0.0f) : added.put(n, i, -0.0);
}

}  // namespace

extern const Family gaxpyProducts;
const Family gaxpyProducts = {.name = "Gaxpy",
                              .has = [](const Function& f) { return f.family == "Gaxpy"; },
                              .sizes = sizes,
                              .model32f = model<float>,
                              .model64f = model<double>,
                              .fill = fill};
