// vormAdd and vormSub of vectors: dst[n][i] = a[n][i] op b[n][i].

#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int n)
{
    // Constants stand behind the vector in the parameters; the shape tells which comes first.
    const bool constantFirst = call.f.shape[0] == 'c';
    const Placed *a = &call.operands[constantFirst], *b = &call.operands[!constantFirst], &dst = call["dst"];
    for (int i = 0; i < dst.size(); ++i) {
        const T x = a->get<T>(n, a->size() == 1 ? 0 : i), y = b->get<T>(n, b->size() == 1 ? 0 : i);
        dst.set(n, i, call.f.family == "Add" ? x + y : x - y);
    }
    return StatusOk;
}

const char* inPlace(const Function& f, const Sizes&)
{
    for (const char* name : {"src2", "src1", "src"})
        for (const Operand& o : f.operands)
            if (o.name == name && o.isArray == f.isArray()) return name;
    return nullptr;
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17, 31, 40})
        all.insert(all.end(), len >= 3 && len <= 6 ? 12 : 4, {.rows = 1, .columns = len});
    return all;
}

}  // namespace

extern const Family vectorSums;
const Family vectorSums = {.name = "VectorSums",
                           .has =
                               [](const Function& f) {
                                   return (f.family == "Add" || f.family == "Sub") && !f.isFixed() &&
                                          f.shape.find_first_of("mt") == f.shape.npos;
                               },
                           .sizes = sizes,
                           .model32f = model<float>,
                           .model64f = model<double>,
                           .inPlace = inPlace};
