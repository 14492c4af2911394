// What the models of data movement do not show: stride0 of a single object, and large transposes, which ask the core
// library for the size of the cache.

#include <gtest/gtest.h>

#include <climits>
#include <numeric>
#include <vector>

#include "catalogue.hpp"
#include "standin_core.hpp"

namespace {

// Copies and identities of one object take any stride0; of two objects, and of a transpose, it is tested.
TEST(Movement, Stride0OfASingleObject)
{
    std::vector<double> src(16), dst(16);
    std::vector<const double*> srcTable(16);
    std::vector<double*> dstTable(16);
    int functions = 0;
    for (const Function& f : catalogue()) {
        if (!f.isMovement() || !f.isArray() || f.indexOf("dstStride0") + f.indexOf("srcStride0") < -1) continue;
        ++functions;
        std::iota(src.begin(), src.end(), 1.0);
        for (std::size_t i = 0; i < 16; ++i) srcTable[i] = &src[i], dstTable[i] = &dst[i];
        for (const int stride0 : {0, -4, 3, INT_MIN})
            for (const int count : {1, 2})
                for (const char* name : {"srcStride0", "dstStride0"}) {
                    if (f.indexOf(name) < 0) continue;
                    std::vector<Argument> arguments;
                    for (const Parameter& p : f.parameters) switch (p.role) {
                        case Role::pointer:
                            arguments.push_back({reinterpret_cast<std::intptr_t>(p.isConst ? src.data() : dst.data())});
                            break;
                        case Role::table:
                            arguments.push_back({p.isConst ? reinterpret_cast<std::intptr_t>(srcTable.data())
                                                           : reinterpret_cast<std::intptr_t>(dstTable.data())});
                            break;
                        case Role::shift: arguments.push_back({0}); break;
                        case Role::stride:
                            arguments.push_back({p.name == name ? stride0 : p.stride == 1 ? 16 : 8});
                            break;
                        case Role::count: arguments.push_back({count}); break;
                        default: arguments.push_back({2}); break;
                        }
                    const bool passes = count == 1 && (f.family == "Copy" || f.family == "LoadIdentity");
                    EXPECT_EQ(f.call(arguments), passes ? StatusOk : StatusBadStride) << f.name << ", " << name;
                }
    }
    EXPECT_GE(functions, 32 + 4 + 4);
}

class LargeTransposes : public testing::Test {
protected:
    ~LargeTransposes() override { standinCache = 1 << 20; }

    // Asks once at most for one or two large matrices, whatever the answer, and moves every element.
    template <class T, class Call>
    void expectTransposed(int width, int height, int count, int asked, const Call& call)
    {
        for (const int cache : {0, -1, INT_MIN, 1, 64 << 10, 1 << 20, INT_MAX}) {
            standinCache = cache, standinCacheAsked = 0;
            const std::size_t elements = std::size_t(width) * std::size_t(height);
            std::vector<T> src(elements * std::size_t(count)), dst(src.size());
            std::iota(src.begin(), src.end(), T(1));
            EXPECT_EQ(call(src.data(), dst.data()), StatusOk);
            EXPECT_EQ(standinCacheAsked, asked) << cache;
            std::size_t wrong = 0;
            for (std::size_t n = 0; n < std::size_t(count); ++n)
                for (std::size_t r = 0; r < std::size_t(height); ++r)
                    for (std::size_t c = 0; c < std::size_t(width); ++c)
                        wrong += dst[n * elements + c * std::size_t(height) + r] !=
                                 src[n * elements + r * std::size_t(width) + c];
            EXPECT_EQ(wrong, 0u) << "cache of " << cache;
        }
    }
};

TEST_F(LargeTransposes, WhateverTheCacheIsSaidToBe)
{
    expectTransposed<float>(601, 557, 1, 1, [](const float* src, float* dst) {
        return vormTranspose_m_32f(src, 601 * 4, 4, dst, 557 * 4, 4, 601, 557);
    });
    expectTransposed<double>(130, 1100, 2, 1, [](const double* src, double* dst) {
        return vormTranspose_ma_64f(src, 130 * 1100 * 8, 130 * 8, 8, dst, 130 * 1100 * 8, 1100 * 8, 8, 130, 1100, 2);
    });
    expectTransposed<float>(2000, 140, 2, 1, [](const float* src, float* dst) {
        const float* const srcList[] = {src, src + 280000};
        float* const dstList[] = {dst, dst + 280000};
        return vormTranspose_ma_32f_L(srcList, 0, 8000, 4, dstList, 0, 560, 4, 2000, 140, 2);
    });
    // Small ones never ask.
    expectTransposed<float>(64, 64, 1, 0, [](const float* src, float* dst) {
        return vormTranspose_m_32f(src, 256, 4, dst, 256, 4, 64, 64);
    });
}

}  // namespace
