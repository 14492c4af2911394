// vormEigenValuesVectors, Right and Left: every object of every layout has the bits, the status and what is left after
// a failure of the packed matrix alone, whose results are measured in eigen_vectors_test.cpp.

#include "harness.hpp"

namespace {

template <class T>
Argument addressOf(std::vector<T>& memory)
{
    return {reinterpret_cast<std::intptr_t>(memory.data())};
}

template <class T>
VormStatus packed(const Call& call, int n)
{
    const Placed& src = call["src"];
    const int order = src.columns, e = sizeof(T);
    const auto size = std::size_t(order);
    std::vector<T> a, buffer(size * (3 * size + 5)), re(size), im(size);
    for (int i = 0; i < src.size(); ++i) a.push_back(src.get<T>(n, i));
    const auto values = [&](const Placed& placed, std::vector<T>& own, bool isBack) {
        for (int k = 0; k < order; ++k)
            if (isBack)
                placed.set(n, k, own[std::size_t(k)]);
            else
                own[std::size_t(k)] = placed.get<T>(n, k);
    };
    values(call["dstValuesRe"], re, false);
    values(call["dstValuesIm"], im, false);

    std::vector<const Placed*> destinations;
    for (std::size_t k = 0; k < call.operands.size(); ++k)
        if (call.f.operands[k].kind == 'm' && call.f.operands[k].isWritten) destinations.push_back(&call.operands[k]);
    std::vector<std::vector<T>> vectors(destinations.size(), std::vector<T>(size * size));
    std::vector<Argument> arguments = {addressOf(a), {order * e}, {e}};
    for (auto& one : vectors) arguments.insert(arguments.end(), {addressOf(one), {order * e}, {e}});
    arguments.insert(arguments.end(), {addressOf(re), addressOf(im), {order}, addressOf(buffer)});
    const VormStatus status = functionNamed("vorm" + call.f.family + "_m_" + call.f.type).call(arguments);

    values(call["dstValuesRe"], re, true);
    values(call["dstValuesIm"], im, true);
    for (std::size_t k = 0; k < destinations.size() && status == StatusOk; ++k)
        for (int i = 0; i < order * order; ++i) destinations[k]->set(n, i, vectors[k][std::size_t(i)]);
    return status;
}

template <class T>
void put(const Call& call, int n, int r, int c, double value)
{
    call["src"].put(n, r * call["src"].columns + c, T(value));
}
// No sweep changes a NaN; or a block too small beside its value to be divided by. Orders 1 and 2 cannot fail.
template <class T>
void makeFail(const Call& call, int n, Random& random)
{
    const int order = call["src"].columns;
    const bool isUseless = chance(random, 50);
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) put<T>(call, n, r, c, !isUseless ? std::nan("") : r == c ? 1e6 : 0);
    if (!isUseless || order < 3) return;
    const double small = sizeof(T) == 4 ? 1e-3 : 1e-11;
    put<T>(call, n, order - 3, order - 2, small);
    put<T>(call, n, order - 2, order - 3, -small);
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 17, 26})
        all.insert(all.end(), order < 7 ? 15 : order < 12 ? 6 : 2, {order, order, 1});
    return all;
}

}  // namespace

extern const Family generalEigenvectors;
const Family generalEigenvectors = {
    .name = "GeneralEigenvectors",
    .has =
        [](const Function& f) {
            return f.family == "EigenValuesVectors" || f.family == "EigenValuesVectorsLeft" ||
                   f.family == "EigenValuesVectorsRight";
        },
    .sizes = sizes,
    .model32f = packed<float>,
    .model64f = packed<double>,
    .spoil =
        [](const Call& call, int n, Random& random) {
            call.f.type == "32f" ? makeFail<float>(call, n, random) : makeFail<double>(call, n, random);
        },
    .stored =
        [](const Operand& o, const Function&, const Problem& p) {
            if (o.isScratch) return Stored{1, p.sizes.rows * (3 * p.sizes.rows + 5)};
            return Stored{0, 0};
        },
    .largest = 60};
