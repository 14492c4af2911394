// The functions of fixed size: cases known without a model, and a product that overlaps its sources.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "vorm/vorm.h"

namespace {

TEST(FixedVectors, KnownCases)
{
    const float nan = std::nanf(""), zero3[3] = {}, tiny[2] = {1e-30f, 0}, threeFour[2] = {3, 4};
    float d[4];
    EXPECT_EQ(vormNormalize_v3_32f(zero3, d), StatusOk);
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(std::isnan(d[i]));
    vormNormalize_v2_32f(tiny, d);
    EXPECT_EQ(d[0], INFINITY);
    EXPECT_TRUE(std::isnan(d[1]));
    vormLen_v2_32f(threeFour, d);
    EXPECT_EQ(d[0], 5);
    // The second operand wins where elements are equal or unordered.
    const float a[4] = {nan, 1, 0.0f, -0.0f}, b[4] = {1, nan, -0.0f, 0.0f};
    for (auto* f : {vormMin_v4_32f, vormMax_v4_32f}) {
        f(a, b, d);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(std::bit_cast<std::uint32_t>(d[i]), std::bit_cast<std::uint32_t>(b[i]));
    }
    // A bracket of exact zero is subtracted from zero, which gives +0.
    const float e[4] = {1, 0, 0, 0}, g[4] = {0, 1, 0, 0}, h[4] = {0, 0, 1, 0};
    vormCrossProduct_v4_32f(e, g, h, d);
    EXPECT_EQ(std::signbit(d[1]), false);
    EXPECT_EQ(d[3], -1);
    const float w[4] = {0, 0, 0, 1};
    vormCrossProduct_v4_32f(e, g, w, d);
    EXPECT_EQ(d[2], 1);
    EXPECT_EQ(std::signbit(d[3]), false);
}

TEST(FixedMatrices, ProductOverItsSources)
{
    float source[48], a[16], b[16], wanted[16];
    for (int k = 0; k < 48; ++k) source[k] = static_cast<float>(k * k % 17) - 8;
    EXPECT_EQ(vormMul_mm4x4_32f(nullptr, source, source), StatusNullPointer);
    EXPECT_EQ(vormMul_mm4x4_32f(source, nullptr, source), StatusNullPointer);
    EXPECT_EQ(vormMul_mm4x4_32f(source, source, nullptr), StatusNullPointer);

    // The destination anywhere over the sources, apart, in place or overlapping in part.
    for (int to = 0; to <= 32; ++to) {
        float memory[48];
        std::memcpy(memory, source, sizeof memory);
        std::memcpy(a, memory + 1, sizeof a), std::memcpy(b, memory + 17, sizeof b);
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 4; ++j)
                wanted[4 * i + j] =
                    a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j] + a[4 * i + 2] * b[8 + j] + a[4 * i + 3] * b[12 + j];
        ASSERT_EQ(vormMul_mm4x4_32f(memory + 1, memory + 17, memory + to), StatusOk);
        EXPECT_EQ(std::memcmp(memory + to, wanted, sizeof wanted), 0) << to;
    }
}

}  // namespace
