// vormInvert, bit by bit as its list says.

#include <tmmintrin.h>

#include <bit>

#include "families/det_elimination.hpp"

namespace {

template <class T>
T reciprocal(T x, bool estimated)
{
    if (!estimated) return 1 / x;
    const T e = T(_mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(float(x)))));
    return (e + e) - (x * e) * e;
}

// Without row i and column j, over all choices of columns for the rows above i.
template <class T>
T minorOf(const Square<T>& a, int i, int j)
{
    const int n = int(a.size());
    T sum = 0;
    bool isFirst = true;
    for (unsigned set = 0; set < 1u << n; ++set) {
        if (std::popcount(set) != i || (set >> j & 1)) continue;
        std::vector<int> above, below;
        int exchanges = 0;
        for (int c = 0; c < n; ++c) {
            if (c == j) continue;
            if (set >> c & 1)
                above.push_back(c), exchanges += int(below.size());
            else
                below.push_back(c);
        }
        const T term = above.empty()   ? expanded(a, below, false)
                       : below.empty() ? expanded(a, above, true)
                                       : expanded(a, above, true) * expanded(a, below, false);
        sum = isFirst ? term : exchanges % 2 ? sum - term : sum + term;
        isFirst = false;
    }
    return sum;
}

template <class T>
bool invertByCofactors(Square<T>& a, T threshold, bool estimated)
{
    const int n = int(a.size());
    const T det = n == 3 ? a[0][0] * minorOf(a, 0, 0) - a[1][0] * minorOf(a, 1, 0) + a[2][0] * minorOf(a, 2, 0)
                         : expanded(a, allColumns(n), true);
    if (std::fabs(det) < threshold) return false;
    const T r = reciprocal(det, estimated);
    auto result = a;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) result[std::size_t(j)][std::size_t(i)] = minorOf(a, i, j) * ((i + j) % 2 ? -r : r);
    a = result;
    return true;
}

template <class T>
bool invertInSteps(Square<T>& a, T threshold, bool estimated)
{
    const std::size_t n = a.size();
    if (n == 4) return invertByCofactors(a, threshold, estimated);
    std::size_t p = 0;
    for (std::size_t i = 1; i < n; ++i)
        if (std::fabs(a[i][0]) > std::fabs(a[p][0])) p = i;
    if (std::fabs(a[p][0]) < threshold) return false;
    std::swap(a[0], a[p]);
    const T x = reciprocal(a[0][0], estimated);
    Square<T> rest;
    std::vector<T> top;
    for (std::size_t c = 1; c < n; ++c) top.push_back(a[0][c] * x);
    for (std::size_t r = 1; r < n; ++r) {
        rest.emplace_back();
        for (std::size_t c = 1; c < n; ++c) rest.back().push_back(a[r][c] - a[r][0] * top[c - 1]);
    }
    if (!invertInSteps(rest, threshold, estimated)) return false;
    const auto sum = [&](auto term) {
        T total = term(0);
        for (std::size_t k = 1; k + 1 < n; ++k) total += term(k);
        return total;
    };
    auto result = a;
    for (std::size_t r = 1; r < n; ++r) {
        result[r][0] = -(sum([&](std::size_t k) { return rest[r - 1][k] * a[k + 1][0]; }) * x);
        result[0][r] = -sum([&](std::size_t k) { return top[k] * rest[k][r - 1]; });
        for (std::size_t c = 1; c < n; ++c) result[r][c] = rest[r - 1][c - 1];
    }
    result[0][0] = x - sum([&](std::size_t k) { return top[k] * result[k + 1][0]; });
    for (auto& row : result) std::swap(row[0], row[p]);
    a = result;
    return true;
}

template <class T>
bool invertByElimination(Square<T>& a, T threshold)
{
    const auto whole = reduce(a, threshold, false);
    const T det = whole.sign * whole.last * whole.product;
    if (whole.stopped || std::fabs(det) <= threshold) return false;
    const T r = 1 / det;
    auto result = a;
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < a.size(); ++j) {
            auto rest = a;
            rest.erase(rest.begin() + std::ptrdiff_t(i));
            for (auto& row : rest) row.erase(row.begin() + std::ptrdiff_t(j));
            const auto e = reduce(rest, threshold, false);
            const T minor =
                std::fabs(e.last) > threshold ? e.last * e.sign * (e.stopped ? threshold : e.product) : threshold;
            result[j][i] = minor * r * T((i + j) % 2 ? -1 : 1);
        }
    a = result;
    return true;
}

template <class T>
VormStatus invert(const Call& call, int n)
{
    auto a = squareOf<T>(call["src"], n);
    const int order = int(a.size());
    const T formula = thresholdOf<T>(order);
    const bool isOwn = call.f.layout.empty() && call.isContiguous(), isSingle = sizeof(T) == sizeof(float);
    bool passed;
    if (order == 1)
        passed = std::fabs(a[0][0]) > formula, a[0][0] = 1 / a[0][0];
    else if (!isClosed(order))
        passed = invertByElimination(a, formula);
    else if (isSingle && order > 4)
        passed = invertInSteps(a, formula, isOwn);
    else
        passed = invertByCofactors(a, isOwn && !isSingle && order < 5 ? 2 * formula : formula, isOwn && isSingle);
    if (!passed) return StatusSingular;
    for (int e = 0; e < order * order; ++e) call["dst"].set(n, e, a[std::size_t(e / order)][std::size_t(e % order)]);
    return StatusOk;
}

}  // namespace

extern const Family inverses;
const Family inverses = {.name = "Inverses",
                         .has = [](const Function& f) { return f.family == "Invert"; },
                         .sizes = ordersOfMinors,
                         .model32f = invert<float>,
                         .model64f = invert<double>,
                         .fill = fillNearThreshold,
                         .spoil =
                             [](const Call& call, int n, Random& random) {
                                 call.f.type == "32f" ? putZeroColumn<float>(call, n, random)
                                                      : putZeroColumn<double>(call, n, random);
                             },
                         .stored = bufferAndResult,
                         .largest = 31};
