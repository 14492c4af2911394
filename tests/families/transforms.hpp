// 4x4 matrices of the models, row after row.
#pragma once

#include <array>

#include "harness.hpp"

struct Model4 {
    std::array<float, 16> m = {};
    float& operator()(int r, int c) { return m[std::size_t(4 * r + c)]; }
    float operator()(int r, int c) const { return m[std::size_t(4 * r + c)]; }

    static Model4 of(const Placed& p)
    {
        Model4 a;
        for (int e = 0; e < 16; ++e) a.m[std::size_t(e)] = p.get<float>(0, e);
        return a;
    }
    void to(const Placed& p) const
    {
        for (int e = 0; e < 16; ++e) p.set(0, e, m[std::size_t(e)]);
    }
    friend Model4 operator*(const Model4& a, const Model4& b)
    {
        Model4 product;
        for (int r = 0; r < 4; ++r)
            for (int c = 0; c < 4; ++c)
                product(r, c) = ((a(r, 0) * b(0, c) + a(r, 1) * b(1, c)) + a(r, 2) * b(2, c)) + a(r, 3) * b(3, c);
        return product;
    }
};

// How the operands of the fixed forms are stored, by their names; results by the family.
Stored storedFixed(const Operand& o, const Function& f, const Problem&);
