// One matrix product of any size with contiguous rows; the order of its sums is that of matrix_tiles.hpp.
#pragma once

#include "frame/lanes.hpp"
#include "frame/layers.hpp"
#include "products/matrix_kinds.hpp"

// The operands of the mm shape, in the order and with the names of the exported prototypes.
#define MM_PARAMS(T)                                                                                                  \
    const T *pSrc1, int src1Stride1, int src1Stride2, int src1Width, int src1Height, const T *pSrc2, int src2Stride1, \
        int src2Stride2, int src2Width, int src2Height, T *pDst, int dstStride1, int dstStride2
#define MM_ARGS                                                                                                     \
    pSrc1, src1Stride1, src1Stride2, src1Width, src1Height, pSrc2, src2Stride1, src2Stride2, src2Width, src2Height, \
        pDst, dstStride1, dstStride2

namespace vorm::products {

// Products with eight terms, four rows or a multiple, and columns that fill registers in pairs; and all
// products. A kernel passes its arguments on with a jump, hence the strides that are not looked at.
template <class Kind, class T>
VORM_HIDDEN VormStatus eightTerms(MM_PARAMS(T));
template <class Kind, class T>
VORM_HIDDEN VormStatus anyLengths(MM_PARAMS(T));

template <class Kind, class T>
VORM_INLINE VormStatus generalProduct(MM_PARAMS(T))
{
    if constexpr (!Kind::transposed2) {
        const auto [m, n, k] = Kind::lengths(src1Width, src1Height, src2Width, src2Height);
        const int other = (k ^ 8) | (m & 3) | (n & (2 * Lanes<T>::width - 1));
        if (opaque(other) == 0) return eightTerms<Kind>(MM_ARGS);
    }
    return anyLengths<Kind>(MM_ARGS);
}

#define VORM_GENERAL_PRODUCT(name, Kind, T) \
    template VormStatus name<Kind>(const T*, int, int, int, int, const T*, int, int, int, int, T*, int, int)
#define VORM_EACH_GENERAL_PRODUCT(prefix)                \
    prefix VORM_GENERAL_PRODUCT(eightTerms, Mm, float);  \
    prefix VORM_GENERAL_PRODUCT(eightTerms, Tm, float);  \
    prefix VORM_GENERAL_PRODUCT(eightTerms, Mm, double); \
    prefix VORM_GENERAL_PRODUCT(eightTerms, Tm, double); \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Mm, float);  \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Mt, float);  \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Tm, float);  \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Tt, float);  \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Mm, double); \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Mt, double); \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Tm, double); \
    prefix VORM_GENERAL_PRODUCT(anyLengths, Tt, double)
VORM_EACH_GENERAL_PRODUCT(extern);

}  // namespace vorm::products
