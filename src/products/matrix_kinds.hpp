// The four kinds of matrix product, D = A B with either operand read transposed. The size arguments
// are those of the stored matrices, so that a kind says what they mean.
#pragma once

#include "frame/operands.hpp"
#include "frame/pin.hpp"

namespace vorm::products {

// The shape of a product: D has m rows and n columns, each element is a sum of k terms.
struct Lengths {
    int m, n, k;
};

template <class First, class Second>
struct Kind {
    static constexpr bool transposed1 = First::isTransposed, transposed2 = Second::isTransposed;

    // The inner sizes have to be equal.
    static constexpr Fit fit(int src1Width, int src1Height, int src2Width, int src2Height)
    {
        return {First::columns(src1Width, src1Height), Second::rows(src2Width, src2Height)};
    }
    static constexpr Lengths lengths(int src1Width, int src1Height, int src2Width, int src2Height)
    {
        return {First::rows(src1Width, src1Height), Second::columns(src2Width, src2Height),
                First::columns(src1Width, src1Height)};
    }
    // And back.
    static constexpr int width1(Lengths l) { return First::columns(l.k, l.m); }
    static constexpr int height1(Lengths l) { return First::rows(l.k, l.m); }
    static constexpr int width2(Lengths l) { return Second::columns(l.n, l.k); }
    static constexpr int height2(Lengths l) { return Second::rows(l.n, l.k); }

    // The stored operands as the product reads them: A(i, k) and B(k, j).
    template <class Stored>
    static auto first(const Stored& stored)
    {
        return First::used(stored);
    }
    template <class Stored>
    static auto second(const Stored& stored)
    {
        return Second::used(stored);
    }
};

using Mm = Kind<AsStored, AsStored>;
using Mt = Kind<AsStored, AsTransposed>;
using Tm = Kind<AsTransposed, AsStored>;
using Tt = Kind<AsTransposed, AsTransposed>;

}  // namespace vorm::products
