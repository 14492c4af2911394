// Every function of the catalogue once in every way its operands can lie, flush against unmapped pages: what the
// sanitizers are to look at, in seconds. What is computed is compared with the models as everywhere.

#include <gtest/gtest.h>

#include "limits.hpp"

namespace {

struct Way {
    const char* name;
    Lie lie;
    bool inPlace = false;
};

// Lists and tables in order and in disorder, elements of tables scattered and in planes.
const Way ways[] = {
    {"packed to the end of a page", {}},
    {"packed from the front of a page", {.shuffled = true, .atFront = true}},
    {"in planes", {.planes = true}},
    {"in planes with gaps, of any order", {.padObject = 3, .planes = true, .shuffled = true, .shift = 8}},
    {"rows and objects with gaps", {.padRow = 1, .padObject = 1, .slot = 16, .shift = 16}},
    {"elements with gaps", {.gap2 = 2, .padRow = 1, .padObject = 1, .shuffled = true}},
    {"misaligned", {.atFront = true, .misaligned = 1}},
    {"in place", {}, true},
};

void expectModel(const Function& f, const Problem& problem, const char* way)
{
    static Random random(20120924);
    EXPECT_EQ(check(Call(f, problem, random)), "") << way;
}

// Orders with bodies of their own, and some for the general ones, with rests and without.
TEST(Sweep, EveryFunction)
{
    int functions = 0, calls = 0;
    for (const Function& f : catalogue()) {
        ASSERT_NE(familyOf(f), nullptr) << f.name << " has no model";
        ++functions;
        for (int order : {1, 2, 3, 4, 5, 6, 8, 9, 17}) {
            if (f.isFixed() && order != 3) continue;
            for (const Way& way : ways) {
                const std::vector<Lie> lies(f.operands.size(), way.lie);
                for (int count : {1, 4, 7}) {
                    if (count > 1 && !f.isArray()) continue;
                    expectModel(f, {{order, order, order}, count, 1, 0, lies, Values::ordinary, way.inPlace}, way.name);
                    ++calls;
                }
            }
        }
    }
    std::printf("%d functions, %d calls\n", functions, calls);
}

// And every driver, with chunks of different sizes.
TEST(Sweep, EveryDriver)
{
    for (const Function& f : catalogue())
        for (int order : {3, 9}) {
            if (!f.isArray()) continue;
            int count = 7;
            while (count < 5000 && !limitOf(f, {order, order, order}, count, true).isReached()) count += 2;
            if (count < 5000) expectModel(f, {{order, order, order}, count, 2}, "on two threads");
        }
}

}  // namespace
