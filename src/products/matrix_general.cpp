// The general path of the matrix products with contiguous rows, once for each kind and element type.

#include "products/matrix_general.hpp"

#include "products/matrix_tiles.hpp"

namespace vorm::products {

// Eight terms and whole tiles only: a product in which calls and loops cost as much as the sums.
template <class Kind, class T>
VormStatus eightTerms(MM_PARAMS(T))
{
    const Lengths lengths = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    fullTilesHere<T>(Kind::first(Matrix{pSrc1, src1Stride1, adjacent}), Matrix{pSrc2, src2Stride1, adjacent},
                     Matrix{pDst, dstStride1, adjacent}, lengths.m, lengths.n, std::integral_constant<int, 8>{});
    return StatusOk;
}

template <class Kind, class T>
VormStatus anyLengths(MM_PARAMS(T))
{
    const Matrix stored1{pSrc1, src1Stride1, adjacent}, stored2{pSrc2, src2Stride1, adjacent};
    const Matrix dst{pDst, dstStride1, adjacent};
    const auto [m, n, terms] = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
    const int tiled = m & ~3, left = m & 3;

    if constexpr (Kind::transposed1 && Kind::transposed2) {
        // Whole registers lie along the rows of the stored A only, that is along the columns of D.
        const Transposed columns{dst};
        const int fours = n & ~3;
        if (tiled != 0) {
            tiles<T>(stored2, stored1, columns, fours, tiled, terms);
            strips<T, SumOrder::running, 1>(stored2, stored1, columns, fours, n, 0, tiled, terms);
        }
        if (left == 3)
            strips<T, SumOrder::running, 1>(stored2, stored1, columns, 0, n, tiled, m, terms);
        else if (left != 0)
            strips<T, SumOrder::evenAndOdd, 1>(stored2, stored1, columns, 0, n, tiled, m, terms);
    } else if constexpr (Kind::transposed2) {
        if constexpr (sizeof(T) == sizeof(double)) {
            tiles<T>(stored1, Transposed{stored2}, dst, tiled, n, terms);
        } else {
            for (int i = 0; i < tiled; i += 4) {
                int j = 0;
                for (; j + 2 <= n; j += 2)
                    dots<T, 1, 4, 2>(from(stored1, i, 0), from(stored2, j, 0), from(dst, i, j), terms);
                if (j < n) dots<T, 1, 4, 1>(from(stored1, i, 0), from(stored2, j, 0), from(dst, i, j), terms);
            }
        }
        for (int i = tiled; i < m; ++i)
            for (int j = 0; j < n; ++j)
                dots<T, 8 / Lanes<T>::width, 1, 1>(from(stored1, i, 0), from(stored2, j, 0), from(dst, i, j), terms);
    } else {
        const auto a = Kind::first(stored1);
        if (tiled != 0) tiles<T>(a, stored2, dst, tiled, n, terms);
        if (left == 1) strips<T, SumOrder::evenAndOdd, 1>(a, stored2, dst, tiled, m, 0, n, terms);
        if (left == 2) strips<T, SumOrder::evenAndOdd, 2>(a, stored2, dst, tiled, m, 0, n, terms);
        if (left == 3) strips<T, SumOrder::running, 3>(a, stored2, dst, tiled, m, 0, n, terms);
    }
    return StatusOk;
}

VORM_EACH_GENERAL_PRODUCT();

}  // namespace vorm::products
