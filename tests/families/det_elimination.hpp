// What the models of vormDet and vormInvert share: elimination as their lists have it, cofactor expansion, and
// matrices about the thresholds.
#pragma once

#include <numeric>

#include "harness.hpp"

template <class T>
using Square = std::vector<std::vector<T>>;

template <class T>
Square<T> squareOf(const Placed& p, int n)
{
    Square<T> a;
    for (int r = 0; r < p.columns; ++r) {
        a.emplace_back();
        for (int c = 0; c < p.columns; ++c) a.back().push_back(p.get<T>(n, r * p.columns + c));
    }
    return a;
}
inline bool isClosed(int order) { return order >= 3 && order <= 6; }

template <class T>
T thresholdOf(int order)
{
    return T(2 * order * order * order) * std::numeric_limits<T>::min();
}

template <class T>
struct Reduced {
    T product = 1, sign = 1, last = 0;
    bool stopped = false;
};
template <class T>
Reduced<T> reduce(Square<T> a, T threshold, bool divides)
{
    Reduced<T> result;
    const std::size_t n = a.size();
    for (std::size_t k = 0; k + 1 < n; ++k) {
        std::size_t p = k;
        for (std::size_t i = k + 1; i < n; ++i)
            if (std::fabs(a[i][k]) > std::fabs(a[p][k])) p = i;
        if (p != k) std::swap(a[k], a[p]), result.sign = -result.sign;
        if (std::fabs(a[k][k]) < threshold) {
            result.stopped = true;
            break;
        }
        const T reciprocal = 1 / a[k][k];
        for (std::size_t i = k + 1; i < n; ++i) {
            const T m = divides ? a[i][k] / a[k][k] : a[i][k] * reciprocal;
            for (std::size_t j = k + 1; j < n; ++j) a[i][j] -= a[k][j] * m;
        }
        result.product *= a[k][k];
    }
    result.last = a[n - 1][n - 1];
    return result;
}

// Of the first rows or the last ones, as many as there are columns.
template <class T>
T expanded(const Square<T>& a, const std::vector<int>& columns, bool fromAbove)
{
    const std::size_t size = columns.size();
    const auto& row = a[fromAbove ? size - 1 : a.size() - size];
    if (size == 1) return row[std::size_t(columns[0])];
    T sum = 0;
    for (std::size_t k = 0; k < size; ++k) {
        const std::size_t at = fromAbove ? size - 1 - k : k;
        auto others = columns;
        others.erase(others.begin() + std::ptrdiff_t(at));
        const T term = expanded(a, others, fromAbove) * row[std::size_t(columns[at])];
        sum = k == 0 ? term : k % 2 ? sum - term : sum + term;
    }
    return sum;
}
inline std::vector<int> allColumns(int n)
{
    std::vector<int> columns(static_cast<std::size_t>(n));
    std::iota(columns.begin(), columns.end(), 0);
    return columns;
}

// Rows of a diagonal matrix, turned; one of its elements is about the threshold, and now and then so is all that
// should be zero: minors then stop at a pivot that is not zero, and rows go on changing places behind it.
template <class T>
void putNearThreshold(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int order = src.columns, turned = pick(random, 0, order - 1), small = pick(random, 0, order - 1);
    const T limit = thresholdOf<T>(order) * T(pick(random, 1, 2)), up = std::numeric_limits<T>::infinity();
    const T mark[] = {limit, std::nextafter(limit, up), std::nextafter(limit, T(0)), -limit};
    const T value = mark[pick(random, 0, 3)], dust = chance(random, 50) ? limit : T(0);
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c)
            src.put(n, (r + turned) % order * order + c,
                    r != c       ? dust * T(uniform(random, -1, 1))
                    : c == small ? value
                                 : T(1));
}
template <class T>
void putZeroColumn(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int column = pick(random, 0, src.columns - 1);
    for (int r = 0; r < src.columns; ++r) src.put(n, r * src.columns + column, T(0));
}
inline void fillNearThreshold(const Call& call, Values values, Random& random)
{
    if (values != Values::special || chance(random, 40)) return;
    for (int n = 0; n < call["src"].count(); ++n)
        if (chance(random, 70))
            call.f.type == "32f" ? putNearThreshold<float>(call, n, random) : putNearThreshold<double>(call, n, random);
}

// The buffer is exactly as long as it has to be, at the end of a page as all operands are.
inline Stored bufferAndResult(const Operand& o, const Function& f, const Problem& p)
{
    const int order = p.sizes.columns;
    if (o.name == "buffer") return {1, std::max({1, p.threads, p.later}) * order * (order + 1)};
    if (o.name == "dst" && f.family == "Det") return {1, 1};
    return {0, 0};
}
inline std::vector<Sizes> ordersOfMinors(const Function&)
{
    std::vector<Sizes> all;
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 16, 17, 19})
        all.insert(all.end(), order <= 6 ? 40 : order <= 8 ? 12 : order <= 12 ? 4 : 2, {order, order, order});
    return all;
}
