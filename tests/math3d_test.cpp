// The fixed-size vector operations: every bit against the documented order of operations, exactly the
// documented elements written, at the end of a page and at any alignment.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <map>

#include "operands.hpp"

namespace {

using V = std::vector<float>;

float dot(const V& a, const V& b)
{
    float sum = a[0] * b[0];
    for (std::size_t i = 1; i < a.size(); ++i) sum += a[i] * b[i];
    return sum;
}

V cross4(const V& a, const V& b, const V& c)
{
    const auto m = [](const V& p, const V& q, int i, int j) {
        return p[std::size_t(i)] * q[std::size_t(j)] - p[std::size_t(j)] * q[std::size_t(i)];
    };
    return {m(b, c, 2, 3) * a[1] - m(c, b, 3, 1) * a[2] + m(c, b, 2, 1) * a[3],
            0 - (m(b, c, 2, 3) * a[0] - m(c, b, 3, 0) * a[2] + m(c, b, 2, 0) * a[3]),
            m(c, b, 3, 1) * a[0] - m(c, b, 3, 0) * a[1] + m(c, b, 1, 0) * a[3],
            0 - (m(c, b, 2, 1) * a[0] - m(c, b, 2, 0) * a[1] + m(c, b, 1, 0) * a[2])};
}

V model(const std::string& family, const V& a, const V& b, const V& c, float val)
{
    const auto each = [&](auto op) {
        V d;
        for (std::size_t i = 0; i < a.size(); ++i) d.push_back(op(a[i], b[i]));
        return d;
    };
    if (family == "Add") return each([](float x, float y) { return x + y; });
    if (family == "Sub") return each([](float x, float y) { return x - y; });
    if (family == "Min") return each([](float x, float y) { return x < y ? x : y; });
    if (family == "Max") return each([](float x, float y) { return x > y ? x : y; });
    if (family == "MulC") return each([&](float x, float) { return x * val; });
    if (family == "DotProduct") return {dot(a, b)};
    if (family == "LenSqr") return {dot(a, a)};
    if (family == "Len") return {std::sqrt(dot(a, a))};
    if (family == "Normalize") {
        // v4 adds x last.
        const V ordered = a.size() == 4 ? V{a[1], a[2], a[3], a[0]} : a;
        const float length = std::sqrt(dot(ordered, ordered));
        return each([&](float x, float) { return x / length; });
    }
    if (a.size() == 2) return {a[0] * b[1] - a[1] * b[0]};
    if (a.size() == 3) return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    return cross4(a, b, c);
}

TEST(FixedVectors, EveryFunction)
{
    Random random(7);
    int functions = 0;
    for (const Function& f : catalogue()) {
        if (f.shape.size() != 2 || f.shape[0] != 'v' || !f.isFixed()) continue;
        ++functions;
        const int len = f.shape[1] - '0';
        const bool elementwise = model(f.family, V(4), V(4), V(4), 0).size() == 4 && f.family != "CrossProduct";
        for (int round = 0; round < 400; ++round) {
            std::map<std::string, Placed<float>> placed;
            std::vector<Argument> arguments;
            const float val = someValue<float>(random);
            V sources[3] = {V(std::size_t(len)), V(std::size_t(len)), V(std::size_t(len))};
            const V shape = model(f.family, sources[0], sources[1], sources[2], val);
            int source = 0;
            for (const Parameter& p : f.parameters) {
                if (p.role == Role::value) {
                    arguments.push_back({0, val});
                    continue;
                }
                Lie lie{.columns = p.operand == "dst" ? int(shape.size()) : len};
                lie.atFront = chance(random, 50), lie.misaligned = chance(random, 50) ? pick(random, 0, 15) : 0;
                // In place where that is promised: the destination then has the elements of the first source.
                const bool inPlace = p.operand == "dst" && elementwise && chance(random, 30);
                const auto operand = inPlace ? placed.begin()->second : place<float>(random, lie);
                placed[p.operand] = operand;
                if (p.operand != "dst")
                    for (int i = 0; i < len; ++i) sources[source][std::size_t(i)] = operand.found(0, i);
                source += p.operand != "dst";
                arguments.push_back(argumentFor(p, operand));
            }
            for (auto& [name, operand] : placed) operand.room->shade();
            const V expected = model(f.family, sources[0], sources[1], sources[2], val);
            for (std::size_t i = 0; i < expected.size(); ++i) placed["dst"].set(0, int(i), expected[i]);
            ASSERT_EQ(f.call(arguments), StatusOk);
            placed["dst"].acceptAnyNan(1);
            for (auto& [name, operand] : placed) ASSERT_TRUE(operand.room->agrees()) << f.name << ": " << name;
        }
    }
    EXPECT_EQ(functions, 30);
}

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

}  // namespace
