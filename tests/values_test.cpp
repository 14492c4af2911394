// What every function of the families computes, in every way its operands may lie, beside the model of its
// family: bit by bit, and no byte written between the elements. Every operand lies for itself.

#include <gtest/gtest.h>

#include <array>

#include "limits.hpp"

namespace {

class AllFamilies : public testing::TestWithParam<const Family*> {
protected:
    static constexpr std::uint64_t seed = 20120924;
    Random random{seed};
    int calls = 0;

    std::vector<const Function*> members(bool arraysOnly) const
    {
        std::vector<const Function*> found;
        for (const Function& f : catalogue())
            if (familyOf(f) == GetParam() && (f.isArray() || !arraysOnly)) found.push_back(&f);
        return found;
    }
    std::vector<Sizes> sizesOf(const Function& f, int most) const
    {
        std::vector<Sizes> sizes = GetParam()->sizes(f), some;
        for (const Sizes& s : sizes)
            if (std::max({s.rows, s.columns, s.terms}) <= most) some.push_back(s);
        return some;
    }
    // The smallest count that enters the driver, with elements adjacent or not.
    static int countOfDriver(const Function& f, const Sizes& s)
    {
        if (!f.hasDriver()) return 40;
        int count = 1;
        while (count < 8000 && !limitOf(f, s, count, true).isReached()) ++count;
        return count;
    }
    void expectModel(const Function& f, const Problem& p)
    {
        ++calls;
        const std::string wrong = check(Call(f, p, random));
        ASSERT_EQ(wrong, "") << "call " << calls << " of seed " << seed;
    }
};

TEST_P(AllFamilies, EveryPlacement)
{
    constexpr int counts[] = {1, 2, 3, 4, 5, 7, 8, 9, 11, 13, 33, 40};
    for (const Function* f : members(false))
        for (const Sizes& s : GetParam()->sizes(*f))
            for (int repeat = 0; repeat < 5; ++repeat) {
                Problem p = someProblem(*f, s, random);
                if (f->isArray()) p.count = counts[pick(random, 0, s.rows * s.columns * s.terms < 250 ? 11 : 8)];
                expectModel(*f, p);
                if (HasFatalFailure()) return;
            }
    std::printf("%d calls\n", calls);
}

TEST_P(AllFamilies, Teams)
{
    for (const Function* f : members(true)) {
        if (limitOf(*f, {}, 1, true).from == INT32_MAX) continue;  // no driver
        const auto sizes = sizesOf(*f, 9);
        for (int threads : {2, 3, 8})
            for (int repeat = 0; repeat < 6; ++repeat) {
                const Sizes& s = sizes[random() % sizes.size()];
                Problem p = someProblem(*f, s, random);
                p.count = std::max(countOfDriver(*f, s), threads) + pick(random, 0, 3);
                p.threads = threads;
                expectModel(*f, p);
                if (HasFatalFailure()) return;
            }
    }
}

// Results that share memory are written in ascending order of the objects, and the last one wins.
TEST_P(AllFamilies, OverlappingResults)
{
    if (GetParam()->movesBits) return;
    for (const Function* f : members(true))
        for (const Sizes& s : sizesOf(*f, 13))
            for (int way = f->layout == "P" ? 0 : 1; way <= 4; ++way) {
                Problem p = someProblem(*f, s, random);
                p.count = pick(random, 5, 19);
                letResultsOverlap(*f, p, way, random);
                expectModel(*f, p);
                if (HasFatalFailure()) return;
            }
}

// More objects than are done at once, and none of them fills the last register.
TEST_P(AllFamilies, LongPlanes)
{
    for (const Function* f : members(true)) {
        if (!f->isInPointerLayout()) continue;
        const int oneRun = 32768 / f->elementSize();
        for (int order = 2; order <= 6; ++order) {
            Problem p = someProblem(*f, {order, order, order}, random);
            const bool isEven = chance(random, 50);
            for (Lie& lie : p.lies) lie.planes = true, lie.shuffled = lie.shuffled && !isEven;
            p.count = order == 4 ? oneRun + 3 : 1063;
            expectModel(*f, p);
            if (HasFatalFailure()) return;
        }
    }
}

// A call of more threads than objects at the second question has chunks without objects.
TEST_P(AllFamilies, ThreadsThatBecomeMore)
{
    for (const Function* f : members(true)) {
        int size = 3;
        const int largest = GetParam()->largest;
        while (size < largest && !limitOf(*f, {size, size, size}, 3, true).isReached()) size += 4;
        if (size >= largest) continue;
        Problem p = someProblem(*f, {size, size, size}, random);
        for (Lie& lie : p.lies) lie.atFront = false, lie.misaligned = 0;
        p.count = 3, p.threads = 2, p.later = 8;
        expectModel(*f, p);
        if (HasFatalFailure()) return;
    }
}

// Objects, rows or elements a gigabyte apart.
TEST_P(AllFamilies, BeyondTwoGiB)
{
    for (const Function* f : members(false))
        for (int order : {3, 4, 5, 6, 7, 9})
            for (std::size_t k = 0; k < f->operands.size(); ++k) {
                const Operand& o = f->operands[k];
                const int way = pick(random, 0, 2);
                if (!o.hasStride[way]) continue;
                Problem p = someProblem(*f, {order, order, order}, random);
                p.lies[k] = {.far = std::array{Far::objects, Far::rows, Far::elements}[std::size_t(way)]};
                p.count = f->isArray() ? pick(random, 5, 9) : 1;
                expectModel(*f, p);
                if (HasFatalFailure()) return;
            }
}

// Objects that fail, at each place: in blocks of lanes, in the rest, and in every thread's part.
TEST_P(AllFamilies, FailuresAtEveryPlace)
{
    if (!GetParam()->spoil) return;
    for (const Function* f : members(true))
        for (int order = 1; order <= 8; ++order)
            for (int threads : {1, 2, 3, 8}) {
                if (threads > 1 && order != 3 && order != 6 && order != 7) continue;
                const Sizes s{order, order, order};
                const int count = threads == 1 ? 11 : countOfDriver(*f, s) + threads % 3;
                for (int place = 0; place < count;
                     place += threads == 1 ? 1 : pick(random, 1, std::max(4, count / 12))) {
                    Problem p = someProblem(*f, s, random);
                    p.values = Values::ordinary, p.count = count, p.threads = threads;
                    p.failing = {place};
                    if (chance(random, 30)) p.failing.push_back(pick(random, 0, count - 1));
                    expectModel(*f, p);
                    if (HasFatalFailure()) return;
                }
            }
}

INSTANTIATE_TEST_SUITE_P(Values, AllFamilies, testing::ValuesIn(families()),
                         [](const auto& family) { return std::string(family.param->name); });

}  // namespace
