// vormMul of matrices, bit by bit in the documented order of additions.

#include "families/sums.hpp"
#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int n)
{
    const Function& f = call.f;
    const Placed &a = call["src1"], &b = call["src2"], &d = call["dst"];
    const bool t1 = f.operands[0].kind == 't', t2 = f.operands[1].kind == 't', isFloat = sizeof(T) == 4;
    const bool mt = !t1 && t2, tm = t1 && !t2, contiguous = call.isContiguous();
    const int rows = d.size() / d.columns, columns = d.columns, terms = t1 ? a.size() / a.columns : a.columns;
    const bool withoutBodies =
        contiguous && f.layout == "L" && !f.operands[0].isArray && ((mt && isFloat) || (t1 && t2));
    const bool bodies = rows == columns && columns == terms && terms >= 3 && terms <= 6 && !withoutBodies &&
                        !(contiguous && tm && isFloat && terms == 6);
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j < columns; ++j) {
            const auto product = [&](int k) {
                return a.get<T>(n, t1 ? k * rows + i : i * terms + k) *
                       b.get<T>(n, t2 ? j * terms + k : k * columns + j);
            };
            const Sum<T, decltype(product)> sum{product, terms};
            const int left = i < (rows & ~3) ? 0 : rows & 3;
            d.set(n, i * columns + j,
                  bodies                            ? sum.fromFirstProduct()
                  : !contiguous                     ? sum.fromZero()
                  : mt && isFloat                   ? sum.inLanes(left ? 2 : 1)
                  : mt && left                      ? sum.inEights()
                  : !mt && (left == 1 || left == 2) ? sum.evenAndOdd()
                                                    : sum.fromZero());
        }
    return StatusOk;
}

std::vector<Sizes> sizes(const Function& f)
{
    std::vector<Sizes> all;
    for (int m = 1; m <= 9; ++m)
        for (int n = 1; n <= 9; ++n)
            for (int k : {1, 2, 3, 4, 5, 6, 7, 8, 9, 17, 31})
                if (m == n && n == k && m >= 3 && m <= 6)
                    all.insert(all.end(), 20, {m, n, k});
                else if (!f.isArray() || (m + 2 * n + 3 * k) % 5 == 0)
                    all.push_back({m, n, k});
    if (!f.isArray()) all.insert(all.end(), {{23, 29, 31}, {12, 24, 8}, {16, 16, 16}});
    return all;
}

}  // namespace

extern const Family matrixProducts;
const Family matrixProducts = {
    .name = "MatrixProducts",
    .has = [](const Function& f) { return f.family == "Mul" && f.isProduct() && f.indexOf("src2Width") >= 0; },
    .sizes = sizes,
    .model32f = model<float>,
    .model64f = model<double>};
