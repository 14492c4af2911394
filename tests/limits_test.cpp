// When the drivers run, seen from outside by the number of times a stand-in core library is asked for its
// threads: at the limit and one above, for every function that has a driver.

#include "limits.hpp"

#include <gtest/gtest.h>

#include <random>

namespace {

class Limits : public testing::Test {
protected:
    Random random{20160229};

    // How often one call asks, with one operand's elements apart or with none (-1).
    int askedBy(const Function& f, const Sizes& s, int count, int threads, int spread = -1)
    {
        Problem p{.sizes = s, .count = count, .threads = threads, .lies = std::vector<Lie>(f.operands.size())};
        for (Lie& lie : p.lies) lie.planes = true;
        if (spread >= 0) p.lies[std::size_t(spread)].gap2 = 2;
        const Call call(f, p, random);
        call.make();
        return call.asked();
    }
};

// A size that takes no more than a moment.
int sizeUpTo(int most, const Function& f)
{
    const Family* const family = familyOf(f);
    return family ? std::min(most, family->largest) : most;
}

struct Hit {
    Sizes sizes;
    int count;
    std::int32_t measure;
};

// QR wants no more columns than rows.
Sizes accepted(const Function& f, Sizes s)
{
    if (f.family.starts_with("QR") && s.columns > s.rows) std::swap(s.columns, s.rows);
    return s;
}

// The largest measure below the limit and the smallest from it on, over sizes worth trying.
std::pair<Hit, Hit> searched(const Function& f, bool isContiguous)
{
    Hit below{{}, 0, INT32_MIN}, above{{}, 0, INT32_MAX};
    const bool isProduct = f.isProduct(), isMatrix = f.indexOf("height") >= 0, isSquare = f.indexOf("order") >= 0;
    const int most = isProduct ? 9 : isMatrix || isSquare ? 40 : 220;
    for (int n = 1; n <= most; ++n)
        for (int m = isProduct || isMatrix ? 1 : n; m <= (isProduct || isMatrix ? most : n); ++m)
            for (int k = isProduct ? 1 : n; k <= (isProduct ? most : n); ++k) {
                const Sizes s = accepted(f, {m, n, k});
                int low = 0, high = 50000;  // reached with high objects, not with low
                while (high - low > 1) {
                    const int middle = (low + high) / 2;
                    (limitOf(f, s, middle, isContiguous).isReached() ? high : low) = middle;
                }
                if (const auto l = limitOf(f, s, low, isContiguous); low > 0 && l.measure > below.measure)
                    below = {s, low, l.measure};
                if (const auto l = limitOf(f, s, high, isContiguous);
                    high > 1 && l.isReached() && l.measure < above.measure)
                    above = {s, high, l.measure};
            }
    return {below, above};
}
// Members with the same measure and limit have the same.
const std::pair<Hit, Hit>& nearest(const Function& f, bool isContiguous)
{
    static std::map<std::pair<std::string, int>, std::pair<Hit, Hit>> known;
    const auto key = std::pair(f.family + f.shape, limitOf(f, {}, 1, isContiguous).from);
    const auto [found, isNew] = known.try_emplace(key);
    if (isNew) found->second = searched(f, isContiguous);
    return found->second;
}

// By how much the measure grows with an object of the smallest size that has work.
std::int32_t smallestStep(const Function& f)
{
    std::int32_t step = 0;
    for (int size = 1; step == 0; ++size)
        step = limitOf(f, {size, size, size}, 2, true).measure - limitOf(f, {size, size, size}, 1, true).measure;
    return step;
}

TEST_F(Limits, AtTheLimitAndAbove)
{
    int drivers = 0, exact = 0, hits = 0;
    for (const Function& f : catalogue()) {
        if (!f.isArray() || f.isFixed() || limitOf(f, {}, 1, true).from == INT32_MAX) continue;
        ++drivers;
        for (int spread = -1; spread < int(f.operands.size()); ++spread) {
            if (spread >= 0 && (f.layout == "P" || !f.operands[std::size_t(spread)].hasStride[2])) continue;
            const bool isContiguous = spread < 0 && f.layout != "P";
            const auto& [below, above] = nearest(f, isContiguous);
            const int from = limitOf(f, {}, 1, isContiguous).from;
            exact += (below.measure == from - 1) + (above.measure == from), hits += 2;
            // Some measures are always even, or multiples of nine: as near as calls can come on both sides, a limit
            // that is off by one in any call is seen.
            EXPECT_LE(above.measure - below.measure, smallestStep(f)) << f.name << ", tried too few sizes";
            EXPECT_EQ(askedBy(f, below.sizes, below.count, 2, spread), 0) << f.name << ", measure " << below.measure;
            EXPECT_EQ(askedBy(f, above.sizes, above.count, 2, spread), 2) << f.name << ", measure " << above.measure;
            // The measure is the same function of all sizes: near the limit elsewhere.
            for (const Sizes& s : {Sizes{2, 3, 4}, {5, 2, 3}, {7, 7, 7}}) {
                const Sizes square{s.columns, s.columns, s.columns},
                    sizes = accepted(f, f.isProduct() || f.indexOf("height") >= 0 ? s : square);
                int count = 1;
                while (!limitOf(f, sizes, count, isContiguous).isReached()) ++count;
                EXPECT_EQ(askedBy(f, sizes, count - 1, 2, spread), 0) << f.name;
                EXPECT_EQ(askedBy(f, sizes, count, 2, spread), 2) << f.name;
            }
        }
        // One thread, and fewer objects than threads, do not fork; as many do.
        const int size = sizeUpTo(40, f);
        const Sizes s{size, size, size};
        int count = 2;
        while (!limitOf(f, s, count, false).isReached() || !limitOf(f, s, count, true).isReached()) ++count;
        EXPECT_EQ(askedBy(f, s, count, 1), 1) << f.name;
        EXPECT_EQ(askedBy(f, s, count, -1), 1) << f.name;
        EXPECT_EQ(askedBy(f, s, count, count + 1), 1) << f.name;
        if (count <= 60) {
            EXPECT_EQ(askedBy(f, s, count, count), 2) << f.name;
        }
    }
    std::printf("%d functions with a driver, %d of %d measures exactly at the limit or one above\n", drivers, exact,
                hits);
}

// A single object never forks, however large it is, nor does what has no driver.
TEST_F(Limits, OthersNeverAsk)
{
    for (const Function& f : catalogue()) {
        const bool drives = f.isArray() && !f.isFixed() && limitOf(f, {}, 1, true).from < INT32_MAX;
        const int size = sizeUpTo(60, f);
        EXPECT_TRUE(drives || askedBy(f, {size, size, size}, f.isArray() ? 50 : 1, 4) == 0) << f.name;
    }
}

// Every chunk has its own stretch of a caller's buffer, as long as one call alone needs: the last one is used to its
// end.
TEST_F(Limits, EveryChunkHasItsOwnBuffer)
{
    constexpr int threads = 3, order = 17, height = 20, determinants = 900, inverses = 80, decompositions = 4;
    constexpr double unused = 1e300;
    std::mt19937 numbers{7};
    std::vector<double> src(height * height + determinants);  // objects begin one element apart
    for (double& element : src) element = std::uniform_real_distribution<double>(-1, 1)(numbers);
    std::vector<double> dst(std::max(inverses * order * order, decompositions * height * height));
    constexpr int e = sizeof(double);
    const auto expectUsed = [&](const char* name, int stretch, int used, const auto& call) {
        std::vector<double> buffer(std::size_t(threads * stretch), unused);
        EXPECT_EQ(askedDuring(threads, [&] { EXPECT_EQ(call(buffer.data()), StatusOk) << name; }), 2) << name;
        for (int t = 0; t < threads; ++t)
            EXPECT_NE(buffer[std::size_t(t * stretch + used - 1)], unused) << name << ", chunk " << t;
    };
    expectUsed("vormDet_ma_64f", order * (order + 1), order * order, [&](double* buffer) {
        return vormDet_ma_64f(src.data(), e, order * e, e, order, buffer, dst.data(), determinants);
    });
    expectUsed("vormInvert_ma_64f", order * (order + 1), order * order, [&](double* buffer) {
        return vormInvert_ma_64f(src.data(), e, order * e, e, buffer, dst.data(), order * order * e, order * e, e,
                                 order, inverses);
    });
    expectUsed("vormQRDecomp_ma_64f", height, height, [&](double* buffer) {
        return vormQRDecomp_ma_64f(src.data(), e, height * e, e, buffer, dst.data(), height * height * e, height * e, e,
                                   height, height, decompositions);
    });
}

// A measure that wraps to a negative number stays serial. The objects lie over each other.
TEST_F(Limits, WrappedMeasureIsSerial)
{
    const int size = 1 << 15;
    const std::vector<float> src(2 * size, 0.5f);
    std::vector<float> dst(2 * size);
    ASSERT_LT(limitOf(functionNamed("vormAdd_vac_32f"), {1, size, 1}, size, true).measure, 0);
    EXPECT_EQ(askedDuring(2, [&] { vormAdd_vac_32f(src.data(), 4, 4, 2, dst.data(), 4, 4, size, size); }), 0);
    EXPECT_EQ(dst[2 * size - 2], 2.5f);
    ASSERT_LT(limitOf(functionNamed("vormSaxpy_vava_32f"), {1, size, 1}, size, true).measure, 0);
    EXPECT_EQ(askedDuring(
                  2, [&] { vormSaxpy_vava_32f(src.data(), 4, 4, 2, src.data(), 4, 4, dst.data(), 4, 4, size, size); }),
              0);
    EXPECT_EQ(dst[2 * size - 2], 1.5f);
    ASSERT_LT(limitOf(functionNamed("vormMul_vac_32f"), {1, size, 1}, size, true).measure, 0);
    EXPECT_EQ(askedDuring(2, [&] { vormMul_vac_32f(src.data(), 4, 4, 2, dst.data(), 4, 4, size, size); }), 0);
    EXPECT_EQ(dst[2 * size - 2], 1);
    ASSERT_LT(limitOf(functionNamed("vormMul_mama_32f"), {1, 1, size}, size, true).measure, 0);
    EXPECT_EQ(askedDuring(2,
                          [&] {
                              vormMul_mama_32f(src.data(), 4, 4 * size, 4, size, 1, src.data(), 4, 4, 4, 1, size,
                                               dst.data(), 4, 4, 4, size);
                          }),
              0);
    EXPECT_EQ(dst[size - 1], 0.25f * size);
    ASSERT_LT(limitOf(functionNamed("vormSub_tama_32f"), {size, size, 1}, 1, true).measure, 0);
    EXPECT_EQ(
        askedDuring(
            2, [&] { vormSub_tama_32f(src.data(), 4, 4, 4, src.data(), 4, 4, 4, dst.data(), 4, 4, 4, size, size, 1); }),
        0);
    EXPECT_EQ(dst[size - 1], 0);
}

}  // namespace
