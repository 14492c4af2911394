// One call of a vector addition or subtraction with operands placed somehow, beside the naive loop.
#pragma once

#include <gtest/gtest.h>

#include <map>

#include "operands.hpp"

struct Case {
    int len = 3, count = 1;
    Lie src1 = {}, src2 = {}, dst = {};  // lengths, counts and layouts are filled in
    bool inPlace = false;                // dst is the first source of its kind
};

// Whether the function is one of the families told here.
inline bool isVectorSum(const Function& f)
{
    return (f.family == "Add" || f.family == "Sub") && !f.isFixed() && f.shape.find_first_of("mt") == std::string::npos;
}

// Makes the call and the loop dst[n][i] = a[n][i] op b[n][i] over ascending objects and elements;
// everything the call may touch must then be as the loop left it.
template <class T>
void checkCase(const Function& f, Case c, Random& random)
{
    const auto kinds = f.kinds();
    const bool constants[2] = {kinds[0][0] == 'c', kinds[1][0] == 'c'};
    const auto countOf = [&](const std::string& kind) { return kind.size() > 1 ? c.count : 0; };
    std::map<std::string, Placed<T>> placed;
    std::string names[2];
    for (int k = 0; k < 2; ++k) {
        Lie lie = k == 0 ? c.src1 : c.src2;
        lie.columns = constants[k] ? 1 : c.len;
        lie.count = countOf(kinds[std::size_t(k)]);
        // Single operands of the list layout, and constants but for lists, are laid out in the standard way.
        lie.layout = f.layout == "L" && !lie.count ? "" : constants[k] && f.layout == "P" ? "" : f.layout;
        if (constants[k]) lie.gap2 = 1;
        names[k] = constants[k] ? "val" : constants[1 - k] ? "src" : k == 0 ? "src1" : "src2";
        placed[names[k]] = place<T>(random, lie);
    }
    // In place means a source of the destination's own kind.
    const std::string* mould = nullptr;
    for (int k = 1; k >= 0; --k)
        if (!constants[k] && (kinds[std::size_t(k)].size() > 1) == f.isArray()) mould = &names[k];
    if (c.inPlace && mould) {
        placed["dst"] = placed[*mould];
    } else {
        Lie lie = c.dst;
        lie.columns = c.len, lie.count = f.isArray() ? c.count : 0, lie.layout = f.layout;
        placed["dst"] = place<T>(random, lie);
    }

    std::vector<Argument> arguments;
    const T val = placed[names[constants[0] ? 0 : 1]].found(0, 0);
    for (const Parameter& p : f.parameters) {
        if (p.role == Role::value)
            arguments.push_back({0, double(val)});
        else if (p.operand.empty())
            arguments.push_back({p.role == Role::count ? c.count : c.len});
        else
            arguments.push_back(argumentFor(p, placed[p.operand]));
    }

    for (auto& [name, operand] : placed) operand.room->shade();
    const Placed<T>&a = placed[names[0]], &b = placed[names[1]], &dst = placed["dst"];
    for (int n = 0; n < c.count; ++n)
        for (int i = 0; i < c.len; ++i) {
            const T x = a.get(n, constants[0] ? 0 : i), y = b.get(n, constants[1] ? 0 : i);
            dst.set(n, i, f.family == "Add" ? x + y : x - y);
        }

    ASSERT_EQ(f.call(arguments), StatusOk) << f.name;
    dst.acceptAnyNan(c.count);
    for (auto& [name, operand] : placed)
        ASSERT_TRUE(operand.room->agrees())
            << f.name << ", len " << c.len << ", count " << c.count << ": " << name << " of strides " << operand.stride0
            << ", " << operand.stride2 << (c.inPlace ? ", in place" : "");
}

inline void checkCaseOfType(const Function& f, const Case& c, Random& random)
{
    f.type == "32f" ? checkCase<float>(f, c, random) : checkCase<double>(f, c, random);
}
