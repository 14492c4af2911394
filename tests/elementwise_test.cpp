// vormAdd and vormSub of vectors: every function, in every way its operands may lie.

#include "elementwise_cases.hpp"

namespace {

constexpr std::uint64_t seed = 20120924;

TEST(VectorSums, EveryPlacement)
{
    Random random(seed);
    int placements = 0;
    for (const Function& f : catalogue()) {
        if (!isVectorSum(f)) continue;
        for (int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17, 31, 40})
            for (int count : {1, 2, 3, 4, 5, 7, 8, 9, 33, 130}) {
                if (!f.isArray() && count > 4) continue;
                Case c{.len = len, .count = f.isArray() ? count : 1};
                c.src1 = someLie(random, "", 1, len, count);
                c.src2 = someLie(random, "", 1, len, count);
                c.dst = someLie(random, "", 1, len, count);
                // Alike in half of the cases, so that kernels for contiguous and packed operands are met often.
                if (chance(random, 50)) c.src1.gap2 = c.src2.gap2 = c.dst.gap2 = 1;
                if (chance(random, 30))
                    c.src1.padObject = c.src2.padObject = c.dst.padObject = c.src1.slot = c.src2.slot = c.dst.slot = 0;
                if (chance(random, 20)) c.src1.slot = c.src2.slot = c.dst.slot = 16;
                c.src1.overlapping = chance(random, 5);  // sources may overlap as they like
                c.inPlace = chance(random, 20) && c.src1.overlapping == 0;
                checkCaseOfType(f, c, random);
                ++placements;
                if (HasFatalFailure()) FAIL() << "seed " << seed << ", placement " << placements;
            }
    }
    std::printf("%d placements, seed %llu\n", placements, static_cast<unsigned long long>(seed));
    EXPECT_GE(placements, 10000);
}

// Objects of a destination that overlap each other are done in ascending order, and the last one wins.
TEST(VectorSums, OverlappingDestinationsInAscendingOrder)
{
    Random random(seed);
    for (const Function& f : catalogue()) {
        if (!isVectorSum(f) || !f.isArray()) continue;
        for (int len : {2, 3, 4, 5, 6, 9, 17})
            for (int planes : {0, 1}) {
                Case c{.len = len, .count = 11};
                c.dst = {.padObject = -pick(random, 1, 10), .planes = planes == 1};  // planes that share memory
                c.dst.overlapping = c.dst.planes ? 0 : pick(random, 1, 3);
                if (f.layout != "P") c.dst.padObject = 0;
                c.src1.planes = c.src2.planes = c.dst.planes;
                checkCaseOfType(f, c, random);
                if (HasFatalFailure()) return;
            }
    }
}

// A single vector that overlaps its source is a loop over ascending elements beyond the small sizes.
TEST(VectorSums, OverlappingSingleVectors)
{
    Random random(seed);
    for (int ahead = -40; ahead <= 40; ++ahead)
        for (int len : {1, 2, 7, 8, 15, 16, 17, 33, 64}) {
            std::vector<float> memory(160), model, other(64, 0.5f);
            for (float& v : memory) v = std::uniform_real_distribution<float>(-1, 1)(random);
            model = memory;
            float* const src = memory.data() + 48;
            ASSERT_EQ(vormAdd_vv_32f(src, 4, other.data(), 4, src + ahead, 4, len), StatusOk);
            for (int i = 0; i < len; ++i) model[std::size_t(48 + ahead + i)] = model[std::size_t(48 + i)] + 0.5f;
            ASSERT_EQ(memory, model) << ahead << " ahead, len " << len;
            ASSERT_EQ(vormSub_cv_32f(src, 4, 3, src + ahead, 4, len), StatusOk);
            for (int i = 0; i < len; ++i) model[std::size_t(48 + ahead + i)] = 3 - model[std::size_t(48 + i)];
            ASSERT_EQ(memory, model) << ahead << " ahead, len " << len;
        }
}

}  // namespace
