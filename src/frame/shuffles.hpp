// Lanes moved about within and between registers.
#pragma once

#include "frame/lanes.hpp"

namespace vorm {

// Lane k in all lanes.
template <int k>
VORM_INLINE Lanes<float> laneEverywhere(Lanes<float> a)
{
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a.v), k * 0x55));
}
template <int k>
VORM_INLINE Lanes<double> laneEverywhere(Lanes<double> a)
{
    return _mm_shuffle_pd(a.v, a.v, k * 3);
}

VORM_INLINE float lane0(Lanes<float> a) { return _mm_cvtss_f32(a.v); }
VORM_INLINE double lane0(Lanes<double> a) { return _mm_cvtsd_f64(a.v); }
template <int k, class T>
VORM_INLINE T lane(Lanes<T> a)
{
    if constexpr (k == 0) return lane0(a);
    return lane0(laneEverywhere<k>(a));
}

// A register of element(0), element(1), ...
template <class T, class Element>
VORM_INLINE Lanes<T> gather(const Element& element)
{
    if constexpr (Lanes<T>::width == 4)
        return _mm_setr_ps(element(0), element(1), element(2), element(3));
    else
        return _mm_setr_pd(element(0), element(1));
}

// Two floats at p and two at q.
VORM_INLINE Lanes<float> loadPairs(const float* p, const float* q)
{
    return _mm_loadh_pi(loadFirst<2>(p).v, reinterpret_cast<const __m64*>(q));
}
VORM_INLINE void storePairs(float* p, float* q, Lanes<float> a)
{
    _mm_storel_pi(reinterpret_cast<__m64*>(p), a.v);
    _mm_storeh_pi(reinterpret_cast<__m64*>(q), a.v);
}

// Three floats in lanes 0 to 2.
VORM_INLINE Lanes<float> loadThree(const float* p) { return _mm_movelh_ps(loadFirst<2>(p).v, loadFirst<1>(p + 2).v); }
VORM_INLINE void storeThree(float* p, Lanes<float> a)
{
    storeFirst<2>(p, a);
    storeFirst<1>(p + 2, _mm_movehl_ps(a.v, a.v));
}

}  // namespace vorm
