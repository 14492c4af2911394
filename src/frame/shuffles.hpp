// Lanes moved about within and between registers.
#pragma once

#include "frame/lanes.hpp"

namespace vorm {

// Lane k in all lanes.
template <int k>
VORM_INLINE Lanes<float> splat(Lanes<float> a)
{
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a.v), k * 0x55));
}
template <int k>
VORM_INLINE Lanes<double> splat(Lanes<double> a)
{
    return _mm_shuffle_pd(a.v, a.v, k * 3);
}

VORM_INLINE float firstLane(Lanes<float> a) { return _mm_cvtss_f32(a.v); }
VORM_INLINE double firstLane(Lanes<double> a) { return _mm_cvtsd_f64(a.v); }
template <int k, class T>
VORM_INLINE T lane(Lanes<T> a)
{
    if constexpr (k == 0) return firstLane(a);
    return firstLane(splat<k>(a));
}

// A register of element(0), element(1), ...
template <class T, class Element>
VORM_INLINE Lanes<T> lanes(const Element& element)
{
    if constexpr (Lanes<T>::width == 4)
        return _mm_setr_ps(element(0), element(1), element(2), element(3));
    else
        return _mm_setr_pd(element(0), element(1));
}

// Two floats, repeated.
VORM_INLINE Lanes<float> loadTwice(const float* p)
{
    return _mm_castpd_ps(_mm_set1_pd(elementAt(reinterpret_cast<const double*>(p), 0)));
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
// The lower or the upper two lanes.
template <int half>
VORM_INLINE void storeHalf(float* p, Lanes<float> a)
{
    if constexpr (half == 0)
        _mm_storel_pi(reinterpret_cast<__m64*>(p), a.v);
    else
        _mm_storeh_pi(reinterpret_cast<__m64*>(p), a.v);
}

// Three floats in lanes 0 to 2.
VORM_INLINE Lanes<float> loadThree(const float* p) { return _mm_movelh_ps(loadFirst<2>(p).v, loadFirst<1>(p + 2).v); }
VORM_INLINE void storeThree(float* p, Lanes<float> a)
{
    storeFirst<2>(p, a);
    storeFirst<1>(p + 2, _mm_movehl_ps(a.v, a.v));
}

// The first elements, fewer than a register has, in its first lanes; the other lanes are zero.
VORM_INLINE Lanes<float> loadFirst(const float* p, int count)
{
    return count == 1 ? loadFirst<1>(p) : count == 2 ? loadFirst<2>(p) : loadThree(p);
}
VORM_INLINE Lanes<double> loadFirst(const double* p, int) { return loadFirst<1>(p); }
VORM_INLINE void storeFirst(float* p, Lanes<float> a, int count)
{
    count == 1 ? storeFirst<1>(p, a) : count == 2 ? storeFirst<2>(p, a) : storeThree(p, a);
}
VORM_INLINE void storeFirst(double* p, Lanes<double> a, int) { storeFirst<1>(p, a); }

}  // namespace vorm
