// vormLUDecomp and vormLUBackSubst, bit by bit as their list says, also what a singular matrix leaves.

#include <numeric>

#include "families/sums.hpp"
#include "harness.hpp"
#include "square_matrix.hpp"

namespace {

bool isUnrolled(int order) { return order >= 3 && order <= 6; }

// Element (r, c) of object n of a square operand.
template <class T>
T at(const Placed& p, int n, int r, int c)
{
    return p.get<T>(n, r * p.columns + c);
}

template <class T>
VormStatus decompose(const Call& call, int n)
{
    const Placed &src = call["src"], &dst = call["dst"], &rowNumbers = call["pivotIndex"];
    const int order = src.columns;
    const bool unrolled = isUnrolled(order);
    const T tiny = std::numeric_limits<T>::min() * 2, epsilon = std::numeric_limits<T>::epsilon();
    std::vector<T> work;
    for (int e = 0; e < src.size(); ++e) work.push_back(src.get<T>(n, e));
    std::vector<int> rows(static_cast<std::size_t>(order));
    std::iota(rows.begin(), rows.end(), 0);
    const auto a = [&](int r, int c) -> T& { return work[std::size_t(rows[std::size_t(r)] * order + c)]; };
    const auto keepRow = [&](int r) {
        for (int c = 0; c < order; ++c) dst.set(n, r * order + c, work[std::size_t(r * order + c)]);
    };
    VormStatus status = StatusOk;
    for (int k = 0; k < order; ++k) {
        int p = k;
        for (int i = k + 1; i < order; ++i)
            if (std::fabs(a(i, k)) > std::fabs(a(p, k))) p = i;
        const T largest = std::fabs(a(p, k));
        if (unrolled ? largest < tiny : largest <= epsilon) status = StatusSingular;
        if (unrolled || status == StatusOk) std::swap(rows[std::size_t(k)], rows[std::size_t(p)]);
        if (status != StatusOk) break;
        if (unrolled) keepRow(rows[std::size_t(k)]);
        const T reciprocal = 1 / a(k, k);
        for (int i = k + 1; i < order; ++i) {
            a(i, k) = unrolled && k == order - 2 ? a(i, k) / a(k, k) : a(i, k) * reciprocal;
            for (int j = k + 1; j < order; ++j) a(i, j) -= a(k, j) * a(i, k);
        }
    }
    for (int r = 0; r < order && !unrolled; ++r) keepRow(r);
    for (int k = 0; k < order; ++k) rowNumbers.set(n, k, rows[std::size_t(k)]);
    return status;
}

template <class T>
VormStatus substitute(const Call& call, int n)
{
    const Placed &factors = call["src"], &b = call["src2"], &dst = call["dst"], &rows = call["pivotIndex"];
    const int order = factors.columns;
    const bool unrolled = isUnrolled(order), byReciprocals = unrolled && call.f.shape == "mva";
    std::vector<T> x(static_cast<std::size_t>(order));
    const auto f = [&](int r, int c) { return at<T>(factors, n, rows.get<int>(n, r), c); };
    // What the terms from first up to end take from a value; one by one from the end that step comes from.
    const auto without = [&](T value, int i, int first, int end, int step) {
        const auto term = [&](int j) { return f(i, first + j) * x[std::size_t(first + j)]; };
        if (!unrolled) return first < end ? value - Sum<T, decltype(term)>{term, end - first}.inEights() : value;
        for (int j = step > 0 ? 0 : end - first - 1; j >= 0 && j < end - first; j += step) value -= term(j);
        return value;
    };
    for (int i = 0; i < order; ++i) x[std::size_t(i)] = without(b.get<T>(n, rows.get<int>(n, i)), i, 0, i, 1);
    for (int i = order - 1; i >= 0; --i) {
        const T value = without(x[std::size_t(i)], i, i + 1, order, -1);
        x[std::size_t(i)] = byReciprocals ? value * (1 / f(i, i)) : value / f(i, i);
    }
    for (int i = 0; i < order; ++i) dst.set(n, i, x[std::size_t(i)]);
    return StatusOk;
}

// max |P A - L U| over n eps max |A|, in higher precision.
template <class T>
std::string judge(const Call& call, int n)
{
    const Placed &src = call["src"], &dst = call["dst"], &rows = call["pivotIndex"];
    const int order = src.columns;
    if (call.problem.values != Values::ordinary) return {};
    const auto factor = [&](int r, int c) { return (long double)(dst.found<T>(n, rows.found<int>(n, r) * order + c)); };
    long double largest = 0, error = 0;
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) {
            long double sum = r <= c ? factor(r, c) : 0;
            for (int k = 0; k < std::min(r, c + 1); ++k) sum += factor(r, k) * factor(k, c);
            const long double wanted = at<T>(src, n, rows.found<int>(n, r), c);
            largest = std::max(largest, std::fabs(wanted)), error = worse(error, std::fabs(sum - wanted));
        }
    if (error <= 1.1L * order * std::numeric_limits<T>::epsilon() * largest) return {};
    return "has residual " + std::to_string(double(error)) + " in object " + std::to_string(n);
}

template <class T>
void put(const Placed& p, int n, int r, int c, double value)
{
    p.put(n, r * p.columns + c, T(value));
}

// A column that is all but zero, so that the exchange before the test, or after it, shows in the row numbers.
template <class T>
void makeSingular(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int column = pick(random, 0, src.columns - 1);
    for (int r = 0; r < src.columns; ++r)
        put<T>(src, n, r, column, r * 256 * double(std::numeric_limits<T>::denorm_min()));
}

// Pivots about the thresholds, the only elements that are not zero.
template <class T>
void makeDiagonal(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const T epsilon = std::numeric_limits<T>::epsilon(), tiny = std::numeric_limits<T>::min() * 2;
    const T marks[] = {epsilon, std::nextafter(epsilon, T(1)), tiny, std::nextafter(tiny, T(0)), T(1), -epsilon, -tiny,
                       T(1e-30)};
    const int turned = pick(random, 0, src.columns - 1);
    for (int r = 0; r < src.columns; ++r)
        for (int c = 0; c < src.columns; ++c)
            put<T>(src, n, (r + turned) % src.columns, c, r == c ? double(marks[pick(random, 0, 7)]) : 0);
}

void fill(const Call& call, Values values, Random& random)
{
    if (call.f.family != "LUDecomp" || values != Values::special || chance(random, 50)) return;
    for (int n = 0; n < call["src"].count(); ++n)
        if (chance(random, 70))
            call.f.type == "32f" ? makeDiagonal<float>(call, n, random) : makeDiagonal<double>(call, n, random);
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 16, 17, 26, 40})
        all.insert(all.end(), isUnrolled(order) ? 40 : order < 12 ? 12 : 4, {order, order, order});
    return all;
}

}  // namespace

extern const Family luDecomposition, luSubstitution;
const Family luDecomposition = {.name = "LuDecomposition",
                                .has = [](const Function& f) { return f.family == "LUDecomp"; },
                                .sizes = sizes,
                                .model32f = decompose<float>,
                                .model64f = decompose<double>,
                                .judge32f = judge<float>,
                                .judge64f = judge<double>,
                                .inPlace = [](const Function&, const Sizes&) { return "src"; },
                                .fill = fill,
                                .spoil =
                                    [](const Call& call, int n, Random& random) {
                                        call.f.type == "32f" ? makeSingular<float>(call, n, random)
                                                             : makeSingular<double>(call, n, random);
                                    }};
// Beyond the small orders x is written while b is still read, in permuted order.
const Family luSubstitution = {
    .name = "LuSubstitution",
    .has = [](const Function& f) { return f.family == "LUBackSubst"; },
    .sizes = sizes,
    .model32f = substitute<float>,
    .model64f = substitute<double>,
    .inPlace = [](const Function&, const Sizes& s) { return isUnrolled(s.rows) ? "src2" : nullptr; }};
