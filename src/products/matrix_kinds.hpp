// The four kinds of matrix product, D = A B with either operand read transposed. The size arguments
// are those of the stored matrices, so that a kind says what they mean.
#pragma once

#include "frame/operands.hpp"
#include "frame/wrapping.hpp"

namespace vorm {

// The shape of a product: D has m rows and n columns, each element is a sum of k terms.
struct Lengths {
    int m, n, k;
};

template <bool isTransposed1, bool isTransposed2>
struct Kind {
    static constexpr bool transposed1 = isTransposed1, transposed2 = isTransposed2;

    // The inner sizes have to be equal.
    static constexpr Fit fit(int src1Width, int src1Height, int src2Width, int src2Height)
    {
        return {transposed1 ? src1Height : src1Width, transposed2 ? src2Width : src2Height};
    }
    static constexpr Lengths lengths(int src1Width, int src1Height, int src2Width, int src2Height)
    {
        return {transposed1 ? src1Width : src1Height, transposed2 ? src2Height : src2Width,
                transposed1 ? src1Height : src1Width};
    }
    // And back.
    static constexpr int width1(Lengths l) { return transposed1 ? l.m : l.k; }
    static constexpr int height1(Lengths l) { return transposed1 ? l.k : l.m; }
    static constexpr int width2(Lengths l) { return transposed2 ? l.k : l.n; }
    static constexpr int height2(Lengths l) { return transposed2 ? l.n : l.k; }

    // The stored operands as the product reads them: A(i, k) and B(k, j).
    template <class Stored>
    static auto first(const Stored& stored)
    {
        return asUsed<transposed1>(stored);
    }
    template <class Stored>
    static auto second(const Stored& stored)
    {
        return asUsed<transposed2>(stored);
    }

private:
    template <bool transposed, class Stored>
    static auto asUsed(const Stored& stored)
    {
        if constexpr (transposed)
            return Transposed{stored};
        else
            return stored;
    }
};

using Mm = Kind<false, false>;
using Mt = Kind<false, true>;
using Tm = Kind<true, false>;
using Tt = Kind<true, true>;

}  // namespace vorm
