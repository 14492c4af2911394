// Products of matrices and vectors: every function, in every way its operands may lie, bit by bit
// against the documented order of additions; and when the drivers run.

#include <gtest/gtest.h>

#include <map>

#include "operands.hpp"
#include "standin_core.hpp"

namespace {

constexpr std::uint64_t seed = 20150331;

bool isVectorProduct(const Function& f)
{
    return f.family == "Mul" && (f.shape == "mv" || f.shape == "tv" || f.shape == "mva" || f.shape == "tva" ||
                                 f.shape == "mav" || f.shape == "tav" || f.shape == "mava" || f.shape == "tava");
}

enum class Values { special, ordinary, negativeZeros };

struct Case {
    int rows = 3, terms = 3, count = 1;  // of the matrix as the product uses it
    Lie src1 = {}, src2 = {}, dst = {};  // sizes, counts and layouts are filled in
    Values values = Values::ordinary;
};

// The documented order of additions for element i. -------------------------------------------------------

template <class T>
struct Sum {
    std::function<T(int)> product;
    int terms;

    T singly(T sum, int from, int to) const
    {
        for (int k = from; k < to; ++k) sum += product(k);
        return sum;
    }
    T evenAndOdd() const
    {
        T even = 0, odd = 0;
        for (int k = 0; k + 2 <= terms; k += 2) even += product(k), odd += product(k + 1);
        return singly(even + odd, terms & ~1, terms);
    }
    // The first lead terms on their own, then some registers of lanes.
    T inLanes(int lead, int registers) const
    {
        constexpr int width = 16 / sizeof(T);
        T total = singly(0, 0, lead), s[8] = {};
        int k = lead;
        for (; k + registers * width <= terms; k += registers * width)
            for (int l = 0; l < registers * width; ++l) s[l] += product(k + l);
        if (registers == 2)
            for (int l = 0; l < width; ++l) s[l] += s[l + width];
        total += width == 4 ? (s[0] + s[1]) + (s[2] + s[3]) : s[0] + s[1];
        return singly(total, k, terms);
    }
};

template <class T>
T expected(const Function& f, const Sum<T>& sum, int rows, int i, bool contiguous, std::uintptr_t addressOfX)
{
    const bool turned = f.shape[0] == 't';
    const bool withoutBodies =
        contiguous && f.layout == "L" &&
        (f.shape == "tva" || (f.shape == "mva" && f.type == "32f") || (f.shape == "tava" && f.type == "64f"));
    if (withoutBodies) return sum.singly(0, 0, sum.terms);
    if (rows == sum.terms && rows >= 3 && rows <= 6) return sum.singly(sum.product(0), 1, sum.terms);
    if (!contiguous || f.layout == "P") return sum.singly(0, 0, sum.terms);
    if (f.isArray()) return sum.inLanes(0, 2);
    const int left = rows % 8;
    const bool isLeft = i >= rows - left;
    if (turned) return isLeft && left <= 2 ? sum.evenAndOdd() : sum.singly(0, 0, sum.terms);
    const bool aligns = addressOfX % sizeof(T) == 0;
    const auto before = static_cast<int>((16 - addressOfX % 16) % 16 / sizeof(T));
    return sum.inLanes(aligns ? std::min(before, sum.terms) : sum.terms, isLeft && left == 1 ? 2 : 1);
}

// One call beside the naive loop; everything it may touch must then be as the loop left it. ------------------

template <class T>
void fill(const Placed<T>& p, Values values, bool isMatrix, Random& random)
{
    if (values == Values::special) return;
    for (int n = 0; n < int(p.objects.size()); ++n)
        for (int e = 0; e < int(p.elements.size()); ++e) {
            T value = T(std::uniform_real_distribution<double>(-2, 2)(random));
            if (chance(random, 10)) value = chance(random, 50) ? T(0) : -T(0);
            if (values == Values::negativeZeros) value = isMatrix ? -T(0) : T(1);
            p.put(n, e, value);
        }
}

template <class T>
void checkCase(const Function& f, Case c, Random& random)
{
    const auto kinds = f.kinds();
    const bool turned = f.shape[0] == 't';
    const int width = turned ? c.rows : c.terms, height = turned ? c.terms : c.rows;
    const auto lay = [&](Lie lie, bool isArray, int rows, int columns) {
        lie.rows = rows, lie.columns = columns, lie.count = isArray ? c.count : 0;
        lie.layout = f.layout == "L" && !isArray ? "" : f.layout;
        return place<T>(random, lie);
    };
    std::map<std::string, Placed<T>> placed;
    placed["src1"] = lay(c.src1, kinds[0].size() > 1, height, width);
    placed["src2"] = lay(c.src2, kinds[1].size() > 1, 1, c.terms);
    placed["dst"] = lay(c.dst, f.isArray(), 1, c.rows);
    const Placed<T>&a = placed["src1"], &x = placed["src2"], &y = placed["dst"];
    fill(a, c.values, true, random), fill(x, c.values, false, random);

    std::vector<Argument> arguments;
    for (const Parameter& p : f.parameters) {
        if (p.role == Role::size)
            arguments.push_back({p.name == "src1Width" ? width : p.name == "src1Height" ? height : c.terms});
        else if (p.role == Role::count)
            arguments.push_back({c.count});
        else
            arguments.push_back(argumentFor(p, placed[p.operand]));
    }

    for (auto& [name, operand] : placed) operand.room->shade();
    const int e = f.elementSize();
    const bool contiguous = a.stride2 == e && x.stride2 == e && y.stride2 == e;
    for (int n = 0; n < c.count; ++n)
        for (int i = 0; i < c.rows; ++i) {
            const Sum<T> sum{[&](int k) { return a.get(n, turned ? k * width + i : i * width + k) * x.get(n, k); },
                             c.terms};
            const auto addressOfX = static_cast<std::uintptr_t>(x.room->memory.begin() + x.base);
            y.set(n, i, expected(f, sum, c.rows, i, contiguous, addressOfX));
        }

    ASSERT_EQ(f.call(arguments), StatusOk) << f.name;
    y.acceptAnyNan(f.isArray() ? c.count : 1);
    for (auto& [name, operand] : placed)
        ASSERT_TRUE(operand.room->agrees())
            << f.name << ", " << c.rows << " rows, " << c.terms << " terms, count " << c.count << ": " << name
            << " of strides " << operand.stride0 << ", " << operand.stride1 << ", " << operand.stride2;
}

void checkCaseOfType(const Function& f, const Case& c, Random& random)
{
    f.type == "32f" ? checkCase<float>(f, c, random) : checkCase<double>(f, c, random);
}

class VectorProducts : public testing::Test {
protected:
    Random random{seed};

    // The number of times a call asked for the threads, which also checks its result.
    int askedBy(const Function& f, int threads, const Case& c)
    {
        return askedDuring(threads, [&] { checkCaseOfType(f, c, random); });
    }
};

// -----------------------------------------------------------------------------------------------------------

TEST_F(VectorProducts, EveryPlacement)
{
    int placements = 0;
    for (const Function& f : catalogue()) {
        if (!isVectorProduct(f)) continue;
        constexpr int sizes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 31};
        for (int rows : sizes)
            for (int terms : sizes)
                for (int repeat = 0; repeat < (rows == terms && rows <= 6 ? 24 : f.isArray() ? 2 : 4); ++repeat) {
                    constexpr int counts[] = {1, 2, 3, 4, 5, 7, 8, 9, 13};
                    Case c{.rows = rows, .terms = terms, .count = f.isArray() ? counts[pick(random, 0, 8)] : 1};
                    c.src1 = someLie(random, "", 1, 1, 1);
                    c.src2 = someLie(random, "", 1, 1, 1);
                    c.dst = someLie(random, "", 1, 1, 1);
                    // Alike in many cases, so that kernels for contiguous and packed operands are met often.
                    if (chance(random, 70)) c.src1.gap2 = c.src2.gap2 = c.dst.gap2 = 1;
                    if (chance(random, 50)) c.src1.planes = c.src2.planes = c.dst.planes = true;
                    if (chance(random, 40))
                        c.src2.padObject = c.dst.padObject = c.src1.padObject = c.src1.padRow = c.src2.slot =
                            c.dst.slot = c.src1.slot = 0;
                    c.src2.overlapping = chance(random, 5);
                    c.values = chance(random, 20) ? Values::special : Values::ordinary;
                    checkCaseOfType(f, c, random);
                    ++placements;
                    if (HasFatalFailure()) FAIL() << "seed " << seed << ", placement " << placements;
                }
    }
    std::printf("%d placements, seed %llu\n", placements, static_cast<unsigned long long>(seed));
}

// Every product is -0: so is a sum that starts with one, while a sum that starts at zero is +0.
TEST_F(VectorProducts, StartOfTheSums)
{
    for (const Function& f : catalogue()) {
        if (!isVectorProduct(f)) continue;
        for (int rows = 1; rows <= 9; ++rows)
            for (int gap2 : {1, 2})
                for (bool planes : {false, true}) {
                    Case c{.rows = rows, .terms = rows == 8 ? 3 : rows, .count = f.isArray() ? 9 : 1};
                    c.src1.gap2 = c.src2.gap2 = c.dst.gap2 = gap2;
                    c.src1.planes = c.src2.planes = c.dst.planes = planes;
                    c.values = Values::negativeZeros;
                    checkCaseOfType(f, c, random);
                    if (HasFatalFailure()) return;
                }
    }
}

// Results that overlap each other are written in ascending order of the objects, and the last one wins.
TEST_F(VectorProducts, OverlappingDestinationsInAscendingOrder)
{
    for (const Function& f : catalogue()) {
        if (!isVectorProduct(f) || !f.isArray()) continue;
        for (int rows : {2, 3, 4, 5, 6, 9, 13})
            for (int terms : {rows, 7})
                for (int apart : {0, 1, 2, 3}) {  // 0: in planes
                    const bool planes = apart == 0;
                    Case c{.rows = rows, .terms = terms, .count = 11};
                    c.src1.planes = c.src2.planes = c.dst.planes = planes;
                    c.dst.overlapping = apart;
                    if (planes && f.layout == "P") c.dst.padObject = -pick(random, 1, 10);  // planes share memory
                    checkCaseOfType(f, c, random);
                    if (HasFatalFailure()) return;
                }
    }
}

// More objects than are done at once, in planes at even and uneven distances.
TEST_F(VectorProducts, LongPlanes)
{
    for (const Function& f : catalogue()) {
        if (!isVectorProduct(f) || f.layout != "P" || !f.isArray()) continue;
        const int oneRun = 32768 / f.elementSize();
        for (int rows = 2; rows <= 6; ++rows)
            for (bool shuffled : {false, true}) {
                Case c{.rows = rows, .terms = rows, .count = rows > 3 && !shuffled ? oneRun + 3 : 1063};
                c.src1.planes = c.src2.planes = c.dst.planes = true;
                c.src1.shuffled = c.src2.shuffled = c.dst.shuffled = shuffled;
                checkCaseOfType(f, c, random);
                if (HasFatalFailure()) return;
            }
    }
}

// The measure of the work in 32 bits, and the largest value of it that stays serial.
std::int32_t workOf(const Function& f, std::uint32_t width, std::uint32_t height, std::uint32_t count)
{
    std::uint32_t work = (width * (height + 1) + height) * count;  // mava, tava
    if (f.shape.substr(1) == "va") work = width * height + (width + height) * count;
    if (f.shape == "mav") work = height * (width + 1) * count + width;
    if (f.shape == "tav") work = width * (height + 1) * count + height;
    return static_cast<std::int32_t>(work);
}

TEST_F(VectorProducts, TeamsAtTheLimitAndAbove)
{
    for (const Function& f : catalogue()) {
        if (!isVectorProduct(f) || !f.isArray()) continue;
        for (const auto& [rows, terms] : {std::pair{3, 3}, {4, 4}, {2, 7}, {5, 3}})
            for (int whose : {0, 1, 2, 3}) {  // the operand with a gap between its elements, 0 for none
                const bool contiguous = whose == 0 && f.layout != "P";
                const int limit = !contiguous ? 1440 : f.layout == "L" || f.type == "64f" ? 3600 : 2500;
                const auto work = [&, r = std::uint32_t(rows), t = std::uint32_t(terms)](int count) {
                    return f.shape[0] == 't' ? workOf(f, r, t, std::uint32_t(count))
                                             : workOf(f, t, r, std::uint32_t(count));
                };
                int count = 1;  // the first one above the limit
                while (work(count) <= limit) ++count;
                Case c{.rows = rows, .terms = terms, .count = count - 1};
                (whose == 1 ? c.src1 : whose == 2 ? c.src2 : c.dst).gap2 = whose ? 2 : 1;
                EXPECT_EQ(askedBy(f, 2, c), 0) << f.name;
                c.count = count;
                EXPECT_EQ(askedBy(f, 1, c), 1) << f.name << ", one thread";
                EXPECT_EQ(askedBy(f, count + 1, c), 1) << f.name << ", fewer objects than threads";
                for (int threads : {2, 3, 8}) EXPECT_EQ(askedBy(f, threads, c), 2) << f.name;
                if (HasFatalFailure()) return;
            }
        // With as many objects as threads there is a fork.
        EXPECT_EQ(askedBy(f, 3, {.rows = 60, .terms = 70, .count = 3}), 2) << f.name;
    }
    // A measure of exactly the limit is serial: (2 (2 + 1) + 2) 180 = 1440.
    EXPECT_EQ(askedBy(functionNamed("vormMul_mava_64f_P"), 2, {.rows = 2, .terms = 2, .count = 180}), 0);
    EXPECT_EQ(askedBy(functionNamed("vormMul_mava_64f_P"), 2, {.rows = 2, .terms = 2, .count = 181}), 2);
}

}  // namespace
