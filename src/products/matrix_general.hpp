// One matrix product of any size with contiguous rows; the order of its sums is that of matrix_tiles.hpp.
#pragma once

#include "products/matrix_kinds.hpp"

namespace vorm {

template <class Kind, class T>
VORM_HIDDEN void generalProduct(const T* pSrc1, int src1Stride1, const T* pSrc2, int src2Stride1, T* pDst,
                                int dstStride1, Lengths lengths);

#define VORM_GENERAL_PRODUCT(Kind, T) template void generalProduct<Kind>(const T*, int, const T*, int, T*, int, Lengths)
#define VORM_EACH_GENERAL_PRODUCT(prefix)    \
    prefix VORM_GENERAL_PRODUCT(Mm, float);  \
    prefix VORM_GENERAL_PRODUCT(Mt, float);  \
    prefix VORM_GENERAL_PRODUCT(Tm, float);  \
    prefix VORM_GENERAL_PRODUCT(Tt, float);  \
    prefix VORM_GENERAL_PRODUCT(Mm, double); \
    prefix VORM_GENERAL_PRODUCT(Mt, double); \
    prefix VORM_GENERAL_PRODUCT(Tm, double); \
    prefix VORM_GENERAL_PRODUCT(Tt, double)
VORM_EACH_GENERAL_PRODUCT(extern);

}  // namespace vorm
