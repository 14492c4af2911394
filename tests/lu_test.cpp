// LU decomposition and substitution: bit by bit against naive models, what a singular matrix leaves
// behind, teams, residuals, and LAPACK as an independent opinion.

#include <gtest/gtest.h>
#include <lapacke.h>

#include <numeric>

#include "operands.hpp"
#include "standin_core.hpp"

namespace {

constexpr std::uint64_t seed = 20191107;

bool isUnrolled(int order) { return order >= 3 && order <= 6; }

// Naive models, over one matrix in the order of its elements. ---------------------------------------------

// What dst and the row numbers hold afterwards, wherever they started.
template <class T>
VormStatus factorise(int order, const std::vector<T>& src, std::vector<T>& dst, std::vector<int>& pivots)
{
    const bool unrolled = isUnrolled(order);
    const double tiny = sizeof(T) == 4 ? 0x1p-125 : 0x1p-1021;
    std::vector<T> work = src;
    const auto a = [&](int r, int c) -> T& { return work[std::size_t(pivots[std::size_t(r)] * order + c)]; };
    const auto keepRow = [&](int k) {
        const auto from = pivots[std::size_t(k)] * order;
        std::copy_n(work.begin() + from, order, dst.begin() + from);
    };
    std::iota(pivots.begin(), pivots.end(), 0);
    VormStatus status = StatusOk;
    for (int k = 0; k < order && status == StatusOk; ++k) {
        int p = k;
        for (int i = k + 1; i < order; ++i)
            if (std::fabs(a(i, k)) > std::fabs(a(p, k))) p = i;
        const T largest = std::fabs(a(p, k));
        if (unrolled ? largest < tiny : largest <= std::numeric_limits<T>::epsilon()) status = StatusSingular;
        if (unrolled || status == StatusOk) std::swap(pivots[std::size_t(k)], pivots[std::size_t(p)]);
        if (status != StatusOk) break;
        if (unrolled) keepRow(k);
        const T reciprocal = 1 / a(k, k);
        for (int i = k + 1; i < order; ++i) {
            a(i, k) = unrolled && k == order - 2 ? a(i, k) / a(k, k) : a(i, k) * reciprocal;
            for (int j = k + 1; j < order; ++j) a(i, j) -= a(k, j) * a(i, k);
        }
    }
    if (!unrolled) dst = work;
    return status;
}

template <class T>
T sumOfTerms(int first, int end, const std::function<T(int)>& term)
{
    T s[8] = {};
    int j = first;
    for (; end - j >= 8; j += 8)
        for (int l = 0; l < 8; ++l) s[l] += term(j + l);
    T sum = ((s[0] + s[1]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7]));
    for (; j < end; ++j) sum += term(j);
    return sum;
}

template <class T>
std::vector<T> solve(int order, const std::vector<T>& factors, const std::vector<int>& pivots, const std::vector<T>& b,
                     bool byReciprocals)
{
    std::vector<T> x(b.size());
    const auto at = [](auto& v, int i) -> auto& { return v[std::size_t(i)]; };
    const auto f = [&](int r, int c) { return at(factors, at(pivots, r) * order + c); };
    for (int i = 0; i < order; ++i) {
        T value = at(b, at(pivots, i));
        if (isUnrolled(order))
            for (int j = 0; j < i; ++j) value -= f(i, j) * at(x, j);
        else if (i > 0)
            value -= sumOfTerms<T>(0, i, [&](int j) { return f(i, j) * at(x, j); });
        at(x, i) = value;
    }
    for (int i = order - 1; i >= 0; --i) {
        T value = at(x, i);
        if (isUnrolled(order))
            for (int j = order - 1; j > i; --j) value -= f(i, j) * at(x, j);
        else if (i < order - 1)
            value -= sumOfTerms<T>(i + 1, order, [&](int j) { return f(i, j) * at(x, j); });
        at(x, i) = byReciprocals && isUnrolled(order) ? value * (1 / f(i, i)) : value / f(i, i);
    }
    return x;
}

// One call beside the models; everything it may touch must then be as they left it. ---------------------------

enum class Values { ordinary, special, integers, threshold };

struct Case {
    int order = 4, count = 1;
    Lie src = {}, src2 = {}, dst = {};  // sizes, counts and layouts are filled in
    Values values = Values::ordinary;
    bool inPlace = false;
    std::vector<int> singular = {};  // these objects, in this column
    int column = 0;
};

template <class T>
T matrixValue(Values values, int order, int element, Random& random)
{
    const T eps = std::numeric_limits<T>::epsilon(), tiny = std::numeric_limits<T>::min() * 2;
    const T marks[] = {eps, std::nextafter(eps, T(1)), tiny, std::nextafter(tiny, T(0)), T(1), -eps, -tiny, T(1e-30)};
    switch (values) {
    case Values::integers: return T(pick(random, -2, 2));
    case Values::threshold: return element % (order + 1) ? T(0) : marks[pick(random, 0, 7)];
    default: return T(std::uniform_real_distribution<double>(-2, 2)(random));
    }
}

// The row numbers of all objects, against a page's end.
struct Pivots {
    Pivots(int order_, int count, Random& random)
        : order(order_), bytes(std::size_t(order * count) * sizeof(int)), room(bytes)
    {
        room.fill(random);
    }
    char* begin() const { return room.memory.data() + room.memory.size() - bytes; }
    std::vector<int> get(int object) const
    {
        std::vector<int> rows(static_cast<std::size_t>(order));
        std::memcpy(rows.data(), begin() + std::size_t(object * order) * sizeof(int), rows.size() * sizeof(int));
        return rows;
    }
    void putInto(char* memory, int object, const std::vector<int>& rows) const
    {
        std::memcpy(memory + room.memory.size() - bytes + std::size_t(object * order) * sizeof(int), rows.data(),
                    rows.size() * sizeof(int));
    }

    int order;
    std::size_t bytes;
    Room room;
};

template <class T>
std::vector<T> all(const Placed<T>& p, int object)
{
    std::vector<T> values;
    for (int e = 0; e < int(p.elements.size()); ++e) values.push_back(p.get(object, e));
    return values;
}

bool isArrayOf(const Function& f, std::size_t operand) { return f.kinds()[operand].size() > 1; }

template <class T>
Placed<T> lay(const Function& f, const Case& c, Lie lie, bool isArray, int rows, Random& random)
{
    lie.rows = rows, lie.columns = c.order, lie.count = isArray ? c.count : 0;
    lie.layout = f.layout == "L" && !isArray ? "" : f.layout;
    return place<T>(random, lie);
}

template <class T>
VormStatus callWith(const Function& f, const Case& c, const Placed<T>& src, const Placed<T>& src2, const Placed<T>& dst,
                    const Pivots& pivots)
{
    std::vector<Argument> arguments;
    for (const Parameter& p : f.parameters)
        arguments.push_back(p.name == "pivotIndex"  ? Argument{reinterpret_cast<std::intptr_t>(pivots.begin())}
                            : p.role == Role::size  ? Argument{c.order}
                            : p.role == Role::count ? Argument{c.count}
                            : p.operand == "src"    ? argumentFor(p, src)
                            : p.operand == "src2"   ? argumentFor(p, src2)
                                                    : argumentFor(p, dst));
    return f.call(arguments);
}

template <class T>
void checkDecomposition(const Function& f, const Case& c, Random& random)
{
    const auto src = lay<T>(f, c, c.src, f.isArray(), c.order, random);
    const auto dst = c.inPlace ? src : lay<T>(f, c, c.dst, f.isArray(), c.order, random);
    Pivots pivots(c.order, c.count, random);
    const int elements = c.order * c.order;
    for (int n = 0; n < c.count && c.values != Values::special; ++n) {
        const int turned = c.order * pick(random, 0, c.order - 1);  // the pivots off the diagonal
        for (int e = 0; e < elements; ++e)
            src.put(n, e, matrixValue<T>(c.values, c.order, (e + turned) % elements, random));
    }
    // Not all zeros, so that the exchange that comes before the test, or after it, shows in the row numbers.
    for (int n : c.singular)
        for (int r = 0; r < c.order; ++r)
            src.put(n, r * c.order + c.column, T(r) * std::numeric_limits<T>::denorm_min() * 256);
    for (Room* room : {src.room.get(), dst.room.get(), &pivots.room}) room->shade();

    const std::uint32_t work = std::uint32_t(c.order) * std::uint32_t(c.order) * std::uint32_t(c.count);
    const int threads = standinThreads;
    const bool forks = f.isArray() && static_cast<std::int32_t>(work) > 1000 && threads > 1 && c.count >= threads;
    const int team = forks ? threads : 1;
    VormStatus expected = StatusOk;
    for (int t = 0, first = 0; t < team; ++t) {
        const int end = first + c.count / team + (t < c.count % team);
        for (int n = first; n < end; ++n) {
            auto result = all(dst, n);
            auto rows = pivots.get(n);
            const VormStatus status = factorise(c.order, all(src, n), result, rows);
            for (int e = 0; e < elements; ++e) dst.set(n, e, result[std::size_t(e)]);
            pivots.putInto(pivots.room.shadow.data(), n, rows);
            if (status == StatusOk) continue;
            expected = status;
            break;
        }
        first = end;
    }

    ASSERT_EQ(callWith(f, c, src, src, dst, pivots), expected) << f.name << ", order " << c.order;
    dst.acceptAnyNan(c.count);
    const auto about = [&] {
        return f.name + ", order " + std::to_string(c.order) + ", count " + std::to_string(c.count);
    };
    ASSERT_TRUE(pivots.room.agrees()) << about() << ": row numbers";
    ASSERT_TRUE(dst.room->agrees()) << about() << ": factors, strides " << dst.stride0 << ", " << dst.stride1;
    ASSERT_TRUE(src.room->agrees()) << about() << ": source";
}

template <class T>
void checkSubstitution(const Function& f, const Case& c, Random& random)
{
    const auto src = lay<T>(f, c, c.src, isArrayOf(f, 0), c.order, random);
    const auto src2 = lay<T>(f, c, c.src2, isArrayOf(f, 1), 1, random);
    const auto dst = c.inPlace ? src2 : lay<T>(f, c, c.dst, isArrayOf(f, 1), 1, random);
    const int matrices = isArrayOf(f, 0) ? c.count : 1;
    Pivots pivots(c.order, matrices, random);
    for (int n = 0; n < matrices; ++n) {
        std::vector<int> rows(static_cast<std::size_t>(c.order));
        std::iota(rows.begin(), rows.end(), 0);
        std::shuffle(rows.begin(), rows.end(), random);
        pivots.putInto(pivots.room.memory.data(), n, rows);
        for (int e = 0; e < c.order * c.order && c.values != Values::special; ++e)
            src.put(n, e, matrixValue<T>(c.values, c.order, e, random));
    }
    for (Room* room : {src.room.get(), src2.room.get(), dst.room.get(), &pivots.room}) room->shade();
    for (int n = 0; n < c.count; ++n) {
        const auto x = solve(c.order, all(src, n), pivots.get(matrices > 1 ? n : 0), all(src2, n), f.shape == "mva");
        for (int i = 0; i < c.order; ++i) dst.set(n, i, x[std::size_t(i)]);
    }

    ASSERT_EQ(callWith(f, c, src, src2, dst, pivots), StatusOk) << f.name;
    dst.acceptAnyNan(c.count);
    for (Room* room : {dst.room.get(), src2.room.get(), src.room.get(), &pivots.room})
        ASSERT_TRUE(room->agrees()) << f.name << ", order " << c.order << ", count " << c.count << ", dst strides "
                                    << dst.stride0 << ", " << dst.stride2;
}

void check(const Function& f, const Case& c, Random& random)
{
    const bool is32f = f.type == "32f";
    if (f.family == "LUDecomp")
        is32f ? checkDecomposition<float>(f, c, random) : checkDecomposition<double>(f, c, random);
    else
        is32f ? checkSubstitution<float>(f, c, random) : checkSubstitution<double>(f, c, random);
}

std::vector<const Function*> members(bool arraysOnly, std::string_view family = "LU")
{
    std::vector<const Function*> found;
    for (const Function& f : catalogue())
        if (f.family.starts_with(family) && (f.isArray() || !arraysOnly)) found.push_back(&f);
    return found;
}

class Lu : public testing::Test {
protected:
    Random random{seed};

    // The number of times a call asked for the threads, which also checks its result.
    int askedBy(const Function& f, int threads, const Case& c)
    {
        return askedDuring(threads, [&] { check(f, c, random); });
    }
};

// -----------------------------------------------------------------------------------------------------------

TEST_F(Lu, EveryPlacement)
{
    int placements = 0;
    ASSERT_EQ(members(false).size(), 26u);
    for (const Function* f : members(false))
        for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 16, 17, 26, 40})
            for (int repeat = 0; repeat < (isUnrolled(order) ? 200 : order < 12 ? 40 : 10); ++repeat) {
                Case c{.order = order, .count = f->isArray() ? pick(random, 1, chance(random, 20) ? 40 : 14) : 1};
                for (Lie* lie : {&c.src, &c.src2, &c.dst}) *lie = someLie(random, "", 1, 1, 1);
                if (chance(random, 60)) c.src.gap2 = c.src2.gap2 = c.dst.gap2 = 1;
                if (chance(random, 60)) c.src.planes = c.src2.planes = c.dst.planes = true;
                c.values = Values(pick(random, 0, 3));
                // Substitution writes y over b while it still reads b in permuted order in the other orders.
                c.inPlace = chance(random, 25) && (f->family == "LUDecomp" || isUnrolled(order));
                // Results that overlap each other are written in ascending order, and the last one wins.
                if (!c.inPlace && c.count > 1 && chance(random, 15)) {
                    c.dst.overlapping = c.dst.planes ? 0 : pick(random, 1, 3);
                    if (c.dst.planes && f->layout == "P") c.dst.padObject = -pick(random, 1, c.count - 1);
                }
                check(*f, c, random);
                ++placements;
                if (HasFatalFailure()) FAIL() << "seed " << seed << ", placement " << placements;
            }
    std::printf("%d placements, seed %llu\n", placements, static_cast<unsigned long long>(seed));
}

// One singular object at each place of an array, or two, in each column: in blocks of lanes, in the
// rest, and in every thread's part, which stops for itself.
TEST_F(Lu, SingularAtEveryPlace)
{
    for (const Function* f : members(true, "LUDecomp"))
        for (int order : {1, 2, 3, 4, 5, 6, 7}) {
            Case c{.order = order};
            for (int threads : {1, 2, 3, 8}) {
                if (threads > 1 && order != 3 && order != 6 && order != 7) continue;
                c.count = threads == 1 ? 11 : 1000 / (order * order) + 1 + threads % 3;
                c.src.planes = c.dst.planes = chance(random, 50);
                c.src.gap2 = c.dst.gap2 = pick(random, 1, 2);
                for (int place = 0; place < c.count; ++place) {
                    c.singular = {place};
                    if (place % 3 == 0) c.singular.push_back(pick(random, 0, c.count - 1));
                    c.column = threads == 1 ? place % order : pick(random, 0, order - 1);
                    EXPECT_EQ(askedBy(*f, threads, c), threads > 1 ? 2 : 0);
                    if (HasFatalFailure()) FAIL() << "singular object " << place << " of " << c.count;
                }
            }
        }
}

// The two thresholds, absolute and deliberately unlike.
template <class T>
VormStatus statusOfDiagonal(int order, int column, T value)
{
    std::vector<T> a(std::size_t(order * order) * 8), lu = a;
    std::vector<int> rows(std::size_t(order) * 8);
    for (int n = 0; n < 8; ++n)
        for (int k = 0; k < order; ++k)
            a[std::size_t((n * order + k) * order + k)] = n == 5 && k == column ? value : T(1);
    const int e = sizeof(T), row = order * e;
    if constexpr (sizeof(T) == 4)
        return vormLUDecomp_ma_32f(a.data(), row * order, row, e, rows.data(), lu.data(), row * order, row, e, order,
                                   8);
    else
        return vormLUDecomp_ma_64f(a.data(), row * order, row, e, rows.data(), lu.data(), row * order, row, e, order,
                                   8);
}

TEST_F(Lu, Thresholds)
{
    for (int order = 1; order <= 8; ++order)
        for (int column = 0; column < order; ++column) {
            const auto expect = [&](bool regular) { return regular ? StatusOk : StatusSingular; };
            const bool unrolled = isUnrolled(order);
            EXPECT_EQ(statusOfDiagonal(order, column, 0x1p-125f), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-125f, 0.f)), StatusSingular);
            EXPECT_EQ(statusOfDiagonal(order, column, -1e-30f), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, -0x1p-23f), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-23f, 1.f)), StatusOk);
            EXPECT_EQ(statusOfDiagonal(order, column, 0x1p-1021), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-1021, 0.)), StatusSingular);
            EXPECT_EQ(statusOfDiagonal(order, column, 0x1p-52), expect(unrolled));
            EXPECT_EQ(statusOfDiagonal(order, column, std::nextafter(0x1p-52, 1.)), StatusOk);
            EXPECT_EQ(statusOfDiagonal(order, column, std::numeric_limits<double>::quiet_NaN()), StatusOk);
        }
}

// Pivots known without a model: the first of equal magnitudes, NaN that neither displaces nor is displaced.
TEST_F(Lu, PivotsInLanes)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float matrices[][9] = {{1, 5, 2, -1, 3, 4, 1, 2, 7},  {1, 0, 0, -2, 1, 0, 2, 0, 1},
                                 {nan, 1, 1, 2, 1, 0, 1, 0, 1}, {1, 1, 1, nan, 1, 0, 2, 0, 1},
                                 {0, 0, 1, 0, 1, 0, 1, 0, 0},   {0, 0, 0, 0, 0, 0, 0, 0, 0}};
    const int expected[][3] = {{0, 1, 2}, {1, 2, 0}, {0, 1, 2}, {2, 1, 0}, {2, 1, 0}, {0, 1, 2}};
    float factors[6][9];
    int rows[6][3];
    std::fill_n(&factors[0][0], 54, -7.f);
    EXPECT_EQ(vormLUDecomp_ma_32f(matrices[0], 36, 12, 4, rows[0], factors[0], 36, 12, 4, 3, 6), StatusSingular);
    for (int n : {0, 2, 3, 4, 5})
        for (int k = 0; k < 3; ++k) EXPECT_EQ(rows[n][k], expected[n][k]) << "object " << n;
    EXPECT_EQ(rows[1][0], expected[1][0]);
    EXPECT_EQ(std::count(factors[5], factors[5] + 9, -7.f), 9);  // nothing passed
}

// The measure of the work in 32 bits and the largest value that stays serial.
std::int32_t workOf(const Function& f, std::uint32_t order, std::uint32_t count)
{
    return static_cast<std::int32_t>(f.shape == "ma"    ? order * order * count
                                     : f.shape == "mva" ? (2 * count + order) * order
                                                        : (order + 2) * order * count);
}

TEST_F(Lu, TeamsAtTheLimitAndAbove)
{
    for (const Function* f : members(true)) {
        const int limit = f->shape == "ma" ? 1000 : f->shape == "mva" ? 700 : 1200;
        for (int order : {1, 3, 4, 5, 10})
            for (int gap2 : {1, 2}) {
                int count = 1;  // the first one above the limit
                while (workOf(*f, std::uint32_t(order), std::uint32_t(count)) <= limit) ++count;
                Case c{.order = order, .count = count - 1};
                c.src.gap2 = c.src2.gap2 = c.dst.gap2 = gap2;
                EXPECT_EQ(askedBy(*f, 2, c), 0) << f->name << ", order " << order;
                c.count = count;
                EXPECT_EQ(askedBy(*f, 1, c), 1) << f->name << ", one thread";
                EXPECT_EQ(askedBy(*f, count + 1, c), 1) << f->name << ", fewer objects than threads";
                for (int threads : {2, 3, 8}) EXPECT_EQ(askedBy(*f, threads, c), 2) << f->name;
                if (HasFatalFailure()) return;
            }
        EXPECT_EQ(askedBy(*f, 2, {.order = 40, .count = 1}), 1) << f->name << ", one large object";
        EXPECT_EQ(askedBy(*f, 3, {.order = 40, .count = 3}), 2) << f->name;
    }
}

// Residuals. ----------------------------------------------------------------------------------------------

enum class Kind { random, graded, permuted, nearlySingular, integers, count };

template <class T>
std::vector<T> matrixOf(Kind kind, int n, Random& random)
{
    std::vector<T> a(std::size_t(n * n));
    std::vector<int> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), random);
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) {
            T value = T(std::uniform_real_distribution<double>(-1, 1)(random));
            if (kind == Kind::graded) value *= T(std::ldexp(1, (r - c) * 8 / n));
            if (kind == Kind::permuted) value = value / 8 + T(order[std::size_t(r)] == c);
            if (kind == Kind::nearlySingular && r == n - 1 && n > 1)
                value = a[std::size_t(c)] + value * std::sqrt(std::numeric_limits<T>::epsilon());
            if (kind == Kind::integers) value = T(pick(random, -9, 9));
            a[std::size_t(r * n + c)] = value;
        }
    return a;
}

// max |P A - L U| over n eps max |A|, and max |A x - b| over n eps (max |A| sum |x|), in higher precision.
template <class T>
void checkResiduals(double factorGate, double solutionGate, Random& random)
{
    using Wide = long double;
    const auto decompose = [](auto... a) {
        if constexpr (sizeof(T) == 4)
            return vormLUDecomp_m_32f(a...);
        else
            return vormLUDecomp_m_64f(a...);
    };
    const auto substitute = [](auto... a) {
        if constexpr (sizeof(T) == 4)
            return vormLUBackSubst_mv_32f(a...);
        else
            return vormLUBackSubst_mv_64f(a...);
    };
    double worstFactors = 0, worstSolution = 0;
    int regular = 0, tried = 0, samePivots = 0;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 40})
        for (int kind = 0; kind < int(Kind::count); ++kind)
            for (int repeat = 0; repeat < (n == 40 ? 10 : 200); ++repeat) {
                ++tried;
                const auto a = matrixOf<T>(Kind(kind), n, random);
                std::vector<T> lu(a.size()), b(static_cast<std::size_t>(n)), x = b;
                std::vector<int> rows(b.size());
                for (T& value : b) value = T(std::uniform_real_distribution<double>(-1, 1)(random));
                const int e = sizeof(T), row = n * e;
                if (decompose(a.data(), row, e, rows.data(), lu.data(), row, e, n) != StatusOk) continue;
                ++regular;
                ASSERT_EQ(substitute(lu.data(), row, e, rows.data(), b.data(), e, x.data(), e, n), StatusOk);
                const auto physical = [&](int k, int c) { return std::size_t(rows[std::size_t(k)] * n + c); };
                Wide size = 0, sumX = 0, factorError = 0, solutionError = 0;
                for (T value : a) size = std::max(size, Wide(std::fabs(value)));
                for (T value : x) sumX += std::fabs(value);
                for (int r = 0; r < n; ++r) {
                    Wide rest = -Wide(b[std::size_t(rows[std::size_t(r)])]);
                    for (int c = 0; c < n; ++c) {
                        Wide sum = r <= c ? Wide(lu[physical(r, c)]) : 0;
                        for (int k = 0; k < std::min(r, c + 1); ++k)
                            sum += Wide(lu[physical(r, k)]) * Wide(lu[physical(k, c)]);
                        factorError = std::max(factorError, std::fabs(sum - Wide(a[physical(r, c)])));
                        rest += Wide(a[physical(r, c)]) * Wide(x[std::size_t(c)]);
                    }
                    solutionError = std::max(solutionError, std::fabs(rest));
                }
                const Wide unit = n * Wide(std::numeric_limits<T>::epsilon()) * size;
                worstFactors = std::max(worstFactors, double(factorError / unit));
                worstSolution = std::max(worstSolution, double(solutionError / (unit * sumX)));

                // LAPACK orders the rows in the same way unless magnitudes are nearly equal.
                auto theirs = a;
                std::vector<lapack_int> exchanges(b.size());
                std::vector<int> theirRows(b.size());
                std::iota(theirRows.begin(), theirRows.end(), 0);
                if constexpr (sizeof(T) == 4)
                    LAPACKE_sgetrf(LAPACK_ROW_MAJOR, n, n, theirs.data(), n, exchanges.data());
                else
                    LAPACKE_dgetrf(LAPACK_ROW_MAJOR, n, n, theirs.data(), n, exchanges.data());
                for (std::size_t k = 0; k < b.size(); ++k)
                    std::swap(theirRows[k], theirRows[std::size_t(exchanges[k] - 1)]);
                if (theirRows != rows) continue;
                ++samePivots;
                if (Kind(kind) == Kind::nearlySingular || n == 40) continue;
                for (int k = 0; k < n; ++k)
                    for (int c = 0; c < n; ++c)
                        ASSERT_NEAR(lu[physical(k, c)], theirs[std::size_t(k * n + c)], 1e4 * double(unit))
                            << "order " << n << ", kind " << kind;
            }
    std::printf("factors %.2f, solution %.2f, %d of %d regular, %d with LAPACK's rows\n", worstFactors, worstSolution,
                regular, tried, samePivots);
    EXPECT_LT(worstFactors, factorGate);
    EXPECT_LT(worstSolution, solutionGate);
    EXPECT_GT(regular, tried * 9 / 10);
    EXPECT_GT(samePivots, regular * 9 / 10);
}

TEST_F(Lu, Residuals)
{
    checkResiduals<float>(1.1, 1.0, random);
    checkResiduals<double>(1.1, 1.0, random);
}

}  // namespace
