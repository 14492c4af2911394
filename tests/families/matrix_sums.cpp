// vormAdd and vormSub of matrices, dst[n](r, c) = a[n](r, c) op b[n](r, c), and vormMul of matrices by a constant; the
// sources as stored or transposed.

#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int n)
{
    const Function& f = call.f;
    const Placed& dst = call["dst"];
    const int columns = dst.columns, rows = dst.size() / columns;
    const auto element = [&](std::size_t source, int r, int c) {
        const char kind = f.operands[source].kind;
        return call.operands[source].get<T>(n, kind == 'c' ? 0 : kind == 't' ? c * rows + r : r * columns + c);
    };
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c) {
            const T x = element(0, r, c), y = element(1, r, c);
            dst.set(n, r * columns + c, f.family == "Add" ? x + y : f.family == "Sub" ? x - y : x * y);
        }
    return StatusOk;
}

// A source of the same orientation, by turns where there are two.
const char* inPlace(const Function& f, const Sizes& sizes)
{
    const char* found = nullptr;
    for (const char* name : {"src2", "src1", "src"})
        for (const Operand& o : f.operands)
            if (o.name == name && o.kind == 'm' && o.isArray == f.isArray() && (!found || sizes.columns % 2 == 0))
                found = name;
    return found;
}

std::vector<Sizes> sizes(const Function& f)
{
    std::vector<Sizes> all;
    for (int rows = 1; rows <= 9; ++rows)
        for (int columns = 1; columns <= 9; ++columns)
            if (rows == columns && rows >= 3 && rows <= 6)
                all.insert(all.end(), 12, {rows, columns});
            else if (!f.isArray() || (rows + 2 * columns) % 3 == 0)
                all.push_back({rows, columns});
    all.insert(all.end(), {{1, 31}, {31, 1}, {31, 31}, {31, 6}, {3, 31}, {16, 16}, {17, 13}, {2, 32}, {37, 40}});
    return all;
}

}  // namespace

extern const Family matrixSums;
const Family matrixSums = {.name = "MatrixSums",
                           .has =
                               [](const Function& f) {
                                   const bool ofConstants = f.family == "Mul" && f.shape.find('c') != f.shape.npos;
                                   return (f.family == "Add" || f.family == "Sub" || ofConstants) && !f.isFixed() &&
                                          f.shape.find_first_of("mt") != f.shape.npos;
                               },
                           .sizes = sizes,
                           .model32f = model<float>,
                           .model64f = model<double>,
                           .inPlace = inPlace};
