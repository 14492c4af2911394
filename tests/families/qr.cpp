// vormQRDecomp and vormQRBackSubst, bit by bit as their list says, also what a column of zeros leaves.

#include "families/sums.hpp"
#include "harness.hpp"

namespace {

bool isUnrolled(int rows, int columns) { return rows == columns && rows >= 3 && rows <= 6; }
int reflectors(int rows, int columns) { return rows == columns ? columns - 1 : columns; }

// From a start value, the terms from first up to end.
template <class T>
T paired(T sum, int first, int end, auto term)
{
    T other = 0;
    int i = first;
    for (; i + 2 <= end; i += 2) sum += term(i), other += term(i + 1);
    sum += other;
    return i < end ? sum + term(i) : sum;
}

template <class T>
VormStatus decompose(const Call& call, int n)
{
    const Placed &src = call["src"], &dst = call["dst"];
    const int width = src.columns, height = src.size() / width;
    std::vector<T> a, v(std::size_t(height), 1);
    for (int e = 0; e < src.size(); ++e) a.push_back(src.get<T>(n, e));
    const auto at = [&](int r, int c) -> T& { return a[std::size_t(r * width + c)]; };
    const auto component = [&](int i) -> T& { return v[std::size_t(i)]; };
    VormStatus status = StatusOk;
    for (int k = 0; k < reflectors(height, width); ++k) {
        const T s = paired(T(0), k, height, [&](int i) { return at(i, k) * at(i, k); });
        if (std::fabs(s) < std::numeric_limits<T>::epsilon()) {
            status = StatusDivisionByZero;
            break;
        }
        const T root = std::sqrt(s), r = 1 / (at(k, k) + (at(k, k) > 0 ? root : -root));
        for (int i = k + 1; i < height; ++i) component(i) = at(i, k) * r;
        const T beta = -2 / paired(T(1), k + 1, height, [&](int i) { return component(i) * component(i); });
        for (int j = k; j < width; ++j) {
            const T d = paired(at(k, j), k + 1, height, [&](int i) { return at(i, j) * component(i); }) * beta;
            at(k, j) += d;
            for (int i = k + 1; i < height; ++i) at(i, j) += component(i) * d;
        }
        for (int i = k + 1; i < height; ++i) at(i, k) = component(i);
    }
    for (int e = 0; e < dst.size(); ++e) dst.set(n, e, a[std::size_t(e)]);
    return status;
}

template <class T>
VormStatus solve(const Call& call, int n)
{
    const Placed &src = call["src"], &b = call["src2"], &dst = call["dst"];
    const int width = src.columns, height = src.size() / width;
    const auto a = [&](int r, int c) { return src.get<T>(n, r * width + c); };
    std::vector<T> y, x(static_cast<std::size_t>(width));
    for (int i = 0; i < height; ++i) y.push_back(b.get<T>(n, i));
    const auto at = [&](int i) -> T& { return y[std::size_t(i)]; };
    for (int k = 0; k < reflectors(height, width); ++k) {
        const T t = paired(at(k), k + 1, height, [&](int i) { return a(i, k) * at(i); });
        const T q = paired(T(1), k + 1, height, [&](int i) { return a(i, k) * a(i, k); });
        const T w = -2 / q * t;
        at(k) += w;
        for (int i = k + 1; i < height; ++i) at(i) += a(i, k) * w;
    }
    for (int i = width - 1; i >= 0; --i) {
        T value = at(i);
        if (isUnrolled(height, width)) {
            for (int j = width - 1; j > i; --j) value -= a(i, j) * x[std::size_t(j)];
        } else {
            const auto term = [&](int j) { return a(i, i + 1 + j) * x[std::size_t(i + 1 + j)]; };
            value -= Sum<T, decltype(term)>{term, width - 1 - i}.inEights();
        }
        x[std::size_t(i)] = value / a(i, i);
    }
    for (int i = 0; i < width; ++i) dst.set(n, i, x[std::size_t(i)]);
    return StatusOk;
}

template <class T>
void put(const Call& call, int n, int r, int c, double value)
{
    const Placed& src = call["src"];
    src.put(n, r * src.columns + c, T(value));
}

// A column that stays zero in all reflections.
template <class T>
void makeSingular(const Call& call, int n, Random& random)
{
    const int width = call["src"].columns, height = call["src"].size() / width;
    const int column = pick(random, 0, std::max(0, reflectors(height, width) - 1));
    for (int r = 0; r < height; ++r) put<T>(call, n, r, column, chance(random, 50) ? 0.0 : -0.0);
}

// A first column whose sum of squares is just the threshold, or just below, with a zero, of either sign, on top or not.
template <class T>
void makeMarginal(const Call& call, int n, Random& random)
{
    const int width = call["src"].columns, height = call["src"].size() / width;
    const T epsilon = std::numeric_limits<T>::epsilon();
    const bool isSquare = sizeof(T) == 8;  // 2^-52 is one, 2^-23 is twice one
    const T root = isSquare ? std::sqrt(epsilon) : std::sqrt(epsilon / 2);
    for (int r = 0; r < height; ++r) put<T>(call, n, r, 0, chance(random, 50) ? 0.0 : -0.0);
    if (height < 2) return;
    const int place = pick(random, 0, height - 2);
    put<T>(call, n, place, 0, double(chance(random, 50) ? root : std::nextafter(root, T(0))));
    if (!isSquare) put<T>(call, n, place + 1, 0, double(chance(random, 50) ? -root : root));
}

void fill(const Call& call, Values values, Random& random)
{
    if (call.f.family != "QRDecomp" || values != Values::special || chance(random, 50)) return;
    for (int n = 0; n < call["src"].count(); ++n)
        if (chance(random, 50))
            call.f.type == "32f" ? makeMarginal<float>(call, n, random) : makeMarginal<double>(call, n, random);
}

// What the general rule does not tell. Every thread has a stretch of the buffer.
Stored stored(const Operand& o, const Function&, const Problem& p)
{
    if (o.isScratch) return {1, p.sizes.rows * std::max({1, p.threads, p.later})};
    return o.name == "src2" ? Stored{1, p.sizes.rows} : Stored{0, 0};
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 16, 17, 26, 40})
        all.insert(all.end(), isUnrolled(order, order) ? 25 : order < 12 ? 8 : 3, {order, order, 1});
    for (const auto& [rows, columns] : {std::pair{2, 1},
                                        {3, 1},
                                        {7, 1},
                                        {3, 2},
                                        {4, 3},
                                        {6, 3},
                                        {5, 4},
                                        {10, 4},
                                        {9, 6},
                                        {12, 7},
                                        {30, 8},
                                        {17, 10},
                                        {20, 14},
                                        {256, 1},
                                        {300, 1},
                                        {60, 5},
                                        {33, 30}})
        all.insert(all.end(), rows < 20 ? 10 : 3, {rows, columns, 1});
    return all;
}

}  // namespace

extern const Family qrDecomposition, qrSubstitution;
const Family qrDecomposition = {.name = "QrDecomposition",
                                .has = [](const Function& f) { return f.family == "QRDecomp"; },
                                .sizes = sizes,
                                .model32f = decompose<float>,
                                .model64f = decompose<double>,
                                .inPlace = [](const Function&, const Sizes&) { return "src"; },
                                .fill = fill,
                                .spoil =
                                    [](const Call& call, int n, Random& random) {
                                        call.f.type == "32f" ? makeSingular<float>(call, n, random)
                                                             : makeSingular<double>(call, n, random);
                                    },
                                .stored = stored};
const Family qrSubstitution = {.name = "QrSubstitution",
                               .has = [](const Function& f) { return f.family == "QRBackSubst"; },
                               .sizes = sizes,
                               .model32f = solve<float>,
                               .model64f = solve<double>,
                               .inPlace = [](const Function&, const Sizes&) { return "src2"; },
                               .stored = stored};
