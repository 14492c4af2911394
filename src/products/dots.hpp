// Sums along contiguous rows, in lanes that are folded pairwise at the end: (l0 + l1) + (l2 + l3), or
// l0 + l1 in double precision. Sums start at zero; what is left over behind the last whole register is
// added to the total one by one.
#pragma once

#include "frame/memory.hpp"
#include "frame/shuffles.hpp"

namespace vorm::products {

VORM_INLINE float foldLanes(Lanes<float> s)
{
    const __m128 pairs = _mm_hadd_ps(s.v, s.v);
    return firstLane(Lanes<float>(_mm_hadd_ps(pairs, pairs)));
}
VORM_INLINE double foldLanes(Lanes<double> s) { return firstLane(Lanes<double>(_mm_hadd_pd(s.v, s.v))); }

// y[r] = sum over k of row r of a times x, for some rows. The first lead terms are summed on their own,
// the next ones in whole groups of registers, which are added to each other before the fold; then the
// fold is added to the leading sum.
template <class T, int rows, int registers>
VORM_INLINE void rowsTimesVector(const T* a, std::ptrdiff_t stride1, const T* x, T* y, int lead, int terms)
{
    constexpr int width = Lanes<T>::width;
    T total[rows] = {};
    const auto addSingly = [&](int k) VORM_INLINE_LAMBDA {
        const T factor = elementAt(x + k, 0);
        for (int r = 0; r < rows; ++r) total[r] += elementAt(a + k, r * stride1) * factor;
    };
    Lanes<T> sum[rows][registers];
    for (auto& row : sum)
        for (auto& s : row) s = T(0);

    int k = 0;
    for (; k < lead; ++k) addSingly(k);
    for (; k + registers * width <= terms; k += registers * width)
        for (int p = 0; p < registers; ++p) {
            const Lanes<T> factor = Lanes<T>::load(x + k + p * width);
            for (int r = 0; r < rows; ++r)
                sum[r][p] = sum[r][p] + Lanes<T>::load(advance(a, r * stride1) + k + p * width) * factor;
        }
    for (int r = 0; r < rows; ++r) {
        if constexpr (registers == 2) sum[r][0] = sum[r][0] + sum[r][1];
        total[r] = total[r] + foldLanes(sum[r][0]);
    }
    for (; k < terms; ++k) addSingly(k);
    for (int r = 0; r < rows; ++r) elementAt(y + r, 0) = total[r];
}

}  // namespace vorm::products
