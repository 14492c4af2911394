// The two forms of a product of a matrix and a vector: the matrix as stored (m) or read transposed
// (t). The size arguments are those of the stored matrix in both.
#pragma once

#include "frame/operands.hpp"
#include "products/paths.hpp"

namespace vorm {

struct AsStored {  // y(i) = sum over k of A(i, k) x(k)
    static constexpr bool isTurned = false;
    static constexpr Fit fit(int src1Width, int, int src2Len) { return {src1Width, src2Len}; }
    static constexpr int rows(int, int src1Height) { return src1Height; }
    template <class Stored>
    static Stored used(const Stored& stored)
    {
        return stored;
    }
};

struct Turned {  // y(i) = sum over k of A(k, i) x(k)
    static constexpr bool isTurned = true;
    static constexpr Fit fit(int, int src1Height, int src2Len) { return {src1Height, src2Len}; }
    static constexpr int rows(int src1Width, int) { return src1Width; }
    template <class Stored>
    static Transposed<Stored> used(const Stored& stored)
    {
        return {stored};
    }
};

}  // namespace vorm
