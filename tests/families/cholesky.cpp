// vormCholeskyDecomp and vormCholeskyBackSubst, bit by bit as their list says, also what is left of a matrix that is
// not positive definite.

#include <xmmintrin.h>

#include "harness.hpp"

namespace {

bool isUnrolled(int order) { return order >= 3 && order <= 6; }

float inverseRoot(float t)
{
    const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(t)));
    return (r * -0.5f) * ((t * r) * r - 3);
}
double inverseRoot(double t) { return 1 / std::sqrt(t); }

// A value less some terms.
template <class T, class Term>
T less(T value, int order, int terms, const Term& term)
{
    int k = 0;
    if (!isUnrolled(order) && terms >= 2) {
        T odd = 0;
        for (; k + 2 <= terms; k += 2) value -= term(k), odd -= term(k + 1);
        value += odd;
    }
    for (; k < terms; ++k) value -= term(k);
    return value;
}

template <class T>
VormStatus decompose(const Call& call, int n)
{
    const Placed &src = call["src"], &dst = call["dst"];
    const int order = src.columns;
    std::vector<T> factor(static_cast<std::size_t>(src.size()));
    const auto l = [&](int r, int c) -> T& { return factor[std::size_t(r * order + c)]; };
    const auto keep = [&](int r, int c, T value) { dst.set(n, r * order + c, l(r, c) = value); };
    for (int i = 0; i < order; ++i)
        for (int j = 0; j <= i; ++j) {
            const T value = less(src.get<T>(n, i * order + j), order, j, [&](int k) { return l(i, k) * l(j, k); });
            if (i == j && 0 >= value) return StatusNotPositiveDefinite;
            keep(i, j, i == j ? inverseRoot(value) : value * l(j, j));
        }
    return StatusOk;
}

template <class T>
VormStatus substitute(const Call& call, int n)
{
    const Placed &factor = call["src"], &b = call["src2"], &dst = call["dst"];
    const int order = factor.columns;
    const auto l = [&](int r, int c) { return factor.get<T>(n, r * order + c); };
    std::vector<T> values;
    const auto x = [&](int i) -> T& { return values[std::size_t(i)]; };
    for (int i = 0; i < order; ++i)
        values.push_back(less(b.get<T>(n, i), order, i, [&](int j) { return l(i, j) * x(j); }) * l(i, i));
    for (int i = order - 1; i >= 0; --i)
        x(i) = less(x(i), order, order - 1 - i, [&](int k) { return l(i + 1 + k, i) * x(i + 1 + k); }) * l(i, i);
    for (int i = 0; i < order; ++i) dst.set(n, i, x(i));
    return StatusOk;
}

template <class T>
void put(const Placed& p, int n, int r, int c, double value)
{
    p.put(n, r * p.columns + c, T(value));
}

// G G' with numbers of very different sizes in G now and then, or with one of its rows nearly that of another, or the
// same; anything above the diagonal.
template <class T>
void makeDefinite(const Call& call, int n, bool integers, Random& random)
{
    const Placed& src = call["src"];
    const int order = src.columns, grade = chance(random, 20) ? 3 : 0, like = pick(random, 0, order - 1);
    const double distance = chance(random, 20) ? chance(random, 50) ? 1e-3 : 0 : 1;
    std::vector<std::vector<double>> g;
    for (int r = 0; r < order; ++r) {
        g.emplace_back();
        for (int c = 0; c < order; ++c)
            g.back().push_back(integers ? pick(random, -2, 2) : std::ldexp(uniform(random, -1, 1), grade * r));
        if (!integers) g.back()[std::size_t(r)] += 1;
    }
    for (int c = 0; c < order; ++c) {
        double& value = g.back()[std::size_t(c)];
        value = distance * value + (1 - distance) * g[std::size_t(like)][std::size_t(c)];
    }
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) {
            double sum = c == r && chance(random, 5) ? -0.0 : 0.0;
            for (int k = 0; k < order; ++k)
                sum += g[std::size_t(r)][std::size_t(k)] * g[std::size_t(c)][std::size_t(k)];
            if (c <= r)
                put<T>(src, n, r, c, sum);
            else if (chance(random, 30))
                put<T>(src, n, r, c, chance(random, 50) ? -sum : NAN);
        }
}

// Numbers of which the test and the root may think differently, the only elements that are not zero.
template <class T>
void makeDiagonal(const Call& call, int n, Random& random)
{
    using Limits = std::numeric_limits<T>;
    const Placed& src = call["src"];
    const T marks[] = {T(1),
                       T(4),
                       T(2),
                       Limits::min(),
                       Limits::denorm_min(),
                       Limits::max(),
                       Limits::infinity(),
                       Limits::quiet_NaN(),
                       T(1e-30),
                       T(0),
                       T(-0.0),
                       -Limits::denorm_min()};
    for (int r = 0; r < src.columns; ++r)
        for (int c = 0; c < src.columns; ++c)
            put<T>(src, n, r, c, r == c ? double(marks[pick(random, 0, chance(random, 90) ? 8 : 11)]) : 0);
}

template <class T>
void fillAll(const Call& call, Values values, Random& random)
{
    for (int n = 0; n < call["src"].count(); ++n)
        if (values != Values::special)
            makeDefinite<T>(call, n, values == Values::integers, random);
        else if (chance(random, 50))
            makeDiagonal<T>(call, n, random);
}
void fill(const Call& call, Values values, Random& random)
{
    if (values == Values::special && chance(random, 50)) return;
    call.f.type == "32f" ? fillAll<float>(call, values, random) : fillAll<double>(call, values, random);
}

void spoil(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int row = pick(random, 0, src.columns - 1);
    const double value = chance(random, 50) ? 0 : -1;
    call.f.type == "32f" ? put<float>(src, n, row, row, value) : put<double>(src, n, row, row, value);
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 26, 40, 64, 65})
        all.insert(all.end(), isUnrolled(order) ? 40 : order < 12 ? 12 : 4, {order, order, order});
    return all;
}

}  // namespace

extern const Family choleskyDecomposition, choleskySubstitution;
const Family choleskyDecomposition = {.name = "CholeskyDecomposition",
                                      .has = [](const Function& f) { return f.family == "CholeskyDecomp"; },
                                      .sizes = sizes,
                                      .model32f = decompose<float>,
                                      .model64f = decompose<double>,
                                      .inPlace = [](const Function&, const Sizes&) { return "src"; },
                                      .fill = fill,
                                      .spoil = spoil};
const Family choleskySubstitution = {.name = "CholeskySubstitution",
                                     .has = [](const Function& f) { return f.family == "CholeskyBackSubst"; },
                                     .sizes = sizes,
                                     .model32f = substitute<float>,
                                     .model64f = substitute<double>,
                                     .inPlace = [](const Function&, const Sizes&) { return "src2"; }};
