// vormMul of matrices and vectors, bit by bit in the documented order of additions.

#include "families/sums.hpp"
#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int n)
{
    const Function& f = call.f;
    const Placed &a = call["src1"], &x = call["src2"], &y = call["dst"];
    const bool turned = f.shape[0] == 't', contiguous = call.isContiguous();
    const int rows = y.size(), terms = x.size(), left = rows % 8;
    const bool withoutBodies =
        contiguous && f.layout == "L" &&
        (f.shape == "tva" || (f.shape == "mva" && f.type == "32f") || (f.shape == "tava" && f.type == "64f"));
    // Elements of x before the first one at a multiple of 16 bytes.
    const auto at = std::uintptr_t(x.address());
    const int lead = at % sizeof(T) == 0 ? std::min(int((16 - at % 16) % 16 / sizeof(T)), terms) : terms;
    for (int i = 0; i < rows; ++i) {
        const auto product = [&](int k) { return a.get<T>(n, turned ? k * rows + i : i * terms + k) * x.get<T>(n, k); };
        const Sum<T, decltype(product)> sum{product, terms};
        const bool isLeft = i >= rows - left;
        if (!withoutBodies && rows == terms && rows >= 3 && rows <= 6)
            y.set(n, i, sum.fromFirstProduct());
        else if (!contiguous || withoutBodies)
            y.set(n, i, sum.fromZero());
        else if (f.isArray())
            y.set(n, i, sum.inLanes(2));
        else if (turned)
            y.set(n, i, isLeft && left <= 2 ? sum.evenAndOdd() : sum.fromZero());
        else
            y.set(n, i, sum.inLanes(isLeft && left == 1 ? 2 : 1, lead));
    }
    return StatusOk;
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int rows : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13, 31})
        for (int terms : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 13, 31})
            all.insert(all.end(), rows == terms && rows <= 6 ? 8 : 1, {.rows = rows, .columns = 1, .terms = terms});
    return all;
}

}  // namespace

extern const Family vectorProducts;
const Family vectorProducts = {
    .name = "VectorProducts",
    .has = [](const Function& f) { return f.family == "Mul" && f.isProduct() && f.indexOf("src2Len") >= 0; },
    .sizes = sizes,
    .model32f = model<float>,
    .model64f = model<double>};
