// Every argument of every general function, spoilt alone and in pairs, gives the status that the
// documented order of tests says, with nothing read or written: all pointers lead to unmapped pages.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <map>
#include <set>

#include "catalogue.hpp"
#include "guarded.hpp"

namespace {

enum class Fault { null, count, size, fit, stride, shift };
using Order = std::vector<Fault>;

// Shift and strides of one operand after those of the other.
bool isTestedPartByPart(const Function& f)
{
    return f.family == "Copy" || f.family == "LoadIdentity" || f.family == "EigenValuesVectors" ||
           f.family == "EigenValuesVectorsLeft" || f.family == "EigenValuesVectorsRight";
}

Order orderOf(const Function& f)
{
    using enum Fault;
    const bool vectorSum = f.family == "Add" || f.family == "Sub";
    if (vectorSum && f.shape == "vav") {
        if (f.layout == "L") return {null, size, stride, shift, count};
        return {null, size, stride, count, shift};
    }
    if (f.family == "CrossProduct" && f.shape == "vav")
        return f.layout == "L" ? Order{null, stride, shift, count} : Order{null, stride, count, shift};
    if (f.family == "Extract" && !f.isArray() && f.layout == "P") return {size, null, shift};
    if (f.layout.empty() && ((vectorSum && f.shape == "mam") || (f.family == "Sub" && f.shape == "mma")))
        return {null, count, stride, size};
    if (f.family == "CholeskyBackSubst" && f.shape == "mva" && f.layout == "L")
        return {null, stride, shift, size, count};
    if (f.family.starts_with("QR")) return {null, count, size, stride, shift, fit};
    if (isTestedPartByPart(f) || f.family == "Extract" || f.family.starts_with("EigenValues"))
        return {null, size, count, shift, stride};
    return {null, count, size, fit, stride, shift};
}

// What a member deliberately leaves untested.
const std::map<std::string, std::set<std::string>> gaps = {
    {"vormAdd_vaca_32f_P", {"srcStride0"}},
    {"vormAdd_vca_64f_P", {"srcShift", "dstShift"}},
    {"vormSub_cav_32f_P", {"srcShift", "dstShift"}},
};

// The size of a source that has to be the inner size of a product, by the letter of the source; where a vector is
// added, its length too. Or the one that must not be above the other.
std::set<std::string> innerSizes(const Function& f)
{
    if (f.family.starts_with("QR")) return {"width"};
    if (!f.isProduct()) return {};
    if (f.indexOf("src3Len") >= 0) return {"src1Width", "src2Len", "src1Height", "src3Len"};
    const char kind1 = f.operands[0].kind, kind2 = f.operands[1].kind;
    return {kind1 == 'm' ? "src1Width" : "src1Height", kind2 == 'v'   ? "src2Len"
                                                       : kind2 == 'm' ? "src2Height"
                                                                      : "src2Width"};
}

struct Spoilt {
    std::size_t parameter;
    std::intptr_t value;
    Fault fault;
    VormStatus status;
    bool tested;
};

std::vector<Spoilt> spoiltArguments(const Function& f)
{
    std::vector<Spoilt> all;
    const std::intptr_t e = f.elementSize();
    const auto inner = innerSizes(f);
    const auto gap = gaps.find(f.name);
    for (std::size_t i = 0; i < f.parameters.size(); ++i) {
        const Parameter& p = f.parameters[i];
        const bool tested = gap == gaps.end() || !gap->second.contains(p.name);
        const auto spoil = [&](Fault fault, VormStatus status, std::initializer_list<std::intptr_t> values) {
            for (std::intptr_t value : values) all.push_back({i, value, fault, status, tested});
        };
        switch (p.role) {
        case Role::pointer:
        case Role::table: spoil(Fault::null, StatusNullPointer, {0}); break;
        case Role::stride: spoil(Fault::stride, StatusBadStride, {0, -e, e + 2, e + e / 2, 1, INT_MIN}); break;
        case Role::shift: spoil(Fault::shift, StatusBadShift, {-e, 2, e / 2, INT_MIN}); break;
        case Role::count: spoil(Fault::count, StatusBadCount, {0, -1, INT_MIN}); break;
        case Role::size:
            spoil(Fault::size, StatusBadSize, {0, -1, INT_MIN});
            if (inner.contains(p.name)) spoil(Fault::fit, StatusSizeMismatch, {4});
            break;
        case Role::value: break;
        }
    }
    return all;
}

TEST(Arguments, SpoiltSinglyAndInPairs)
{
    const Guarded unmapped(0);
    std::size_t calls = 0;
    for (const Function& f : catalogue()) {
        if (f.isFixed()) continue;
        std::vector<Argument> good;
        for (const Parameter& p : f.parameters)
            good.push_back({p.role == Role::pointer || p.role == Role::table ? unmapped.begin()
                            : p.role == Role::stride                         ? f.elementSize()
                            : p.role == Role::shift                          ? 0
                                                                             : 3});
        const Order order = orderOf(f);
        const auto rank = [&](const Spoilt& s) {
            const auto place = std::find(order.begin(), order.end(), s.fault) - order.begin();
            const bool isLater = isTestedPartByPart(f) && (s.fault == Fault::shift || s.fault == Fault::stride) &&
                                 !f.parameters[s.parameter].operand.starts_with("src");
            return isLater ? place + std::ptrdiff_t(order.size()) : place;
        };
        const std::vector<Spoilt> spoilt = spoiltArguments(f);
        for (const Spoilt& a : spoilt)
            for (const Spoilt& b : spoilt) {
                if (&b < &a || (a.parameter == b.parameter && &a != &b)) continue;
                // Two spoilt inner sizes may fit each other again.
                if (a.fault == Fault::fit && b.fault == Fault::fit && &a != &b) continue;
                const Spoilt* first = nullptr;
                for (const Spoilt* s : {&a, &b})
                    if (s->tested && (!first || rank(*s) < rank(*first))) first = s;
                if (!first) continue;
                auto arguments = good;
                arguments[a.parameter].bits = a.value;
                arguments[b.parameter].bits = b.value;
                ASSERT_EQ(f.call(arguments), first->status)
                    << f.name << ": " << f.parameters[a.parameter].name << " " << a.value << ", "
                    << f.parameters[b.parameter].name << " " << b.value;
                ++calls;
            }
    }
    std::printf("%zu calls\n", calls);
}

TEST(Arguments, GapsAreAccepted)
{
    float src[9] = {1, 2, 3}, vals[3] = {10, 20, 30}, dst[9] = {};
    const float* srcTable[3] = {src, src + 1, src + 2};
    float* dstTable[3] = {dst, dst + 1, dst + 2};
    EXPECT_EQ(vormAdd_vaca_32f_P(srcTable, 0, 0, vals, 4, dstTable, 0, 12, 3, 3), StatusOk);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(dst[i], src[i % 3] + vals[i / 3]);

    // A shift that is no multiple of the element size reads and writes between the elements.
    alignas(8) char source[24] = {}, destination[24] = {};
    const double one = 1, val = 2;
    std::memcpy(source + 4, &one, 8);
    const auto* table = reinterpret_cast<const double*>(source);
    auto* out = reinterpret_cast<double*>(destination);
    EXPECT_EQ(vormAdd_vca_64f_P(&table, 4, &val, 8, &out, 4, 8, 1, 1), StatusOk);
    double sum;
    std::memcpy(&sum, destination + 4, 8);
    EXPECT_EQ(sum, 3);
    const auto* oddTable = reinterpret_cast<const float*>(source);
    auto* oddOut = reinterpret_cast<float*>(destination);
    EXPECT_EQ(vormSub_cav_32f_P(&oddTable, 2, vals, 4, &oddOut, 2, 4, 1, 1), StatusOk);
}

// The fixed forms are left out above; this keeps the exclusion from growing by itself.
TEST(Arguments, CatalogueIsRead)
{
    std::map<std::string, int> members;
    for (const Function& f : catalogue())
        if (f.shape.find_first_of("mt") == std::string::npos) ++members[f.family + (f.isFixed() ? " fixed" : "")];
    EXPECT_EQ(members["Add"], 38);
    EXPECT_EQ(members["Sub"], 66);
    EXPECT_EQ(members["Saxpy"], 22);
    EXPECT_EQ(members["LComb"], 16);
    EXPECT_EQ(members["Mul"], 22);
    EXPECT_EQ(members["CrossProduct"], 22);
    EXPECT_EQ(members["Extract"], 10);
    EXPECT_EQ(members["Normalize fixed"], 3);
    const Function& f = functionNamed("vormAdd_vav_32f_L");
    EXPECT_EQ(f.family + f.shape + f.type + f.layout, "Addvav32fL");
    EXPECT_EQ(f.parameters[1].operand, "src1");
    EXPECT_EQ(f.parameters.size(), 10u);
    ASSERT_EQ(f.operands.size(), 3u);
    EXPECT_TRUE(f.operands[0].isArray && f.operands[0].layout == "L" && !f.operands[1].isArray);
}

}  // namespace
