// Lanes<T>: a 128-bit register of numbers, four floats or two doubles, with the vocabulary of a
// single number, so that a body written over a number type runs one object or a register of them.
// Each lane does exactly the operation the scalar would.
#pragma once

#include <tmmintrin.h>

#include <cmath>

#include "frame/memory.hpp"

namespace vorm {

template <class T>
struct Lanes;
template <class T>
struct LaneMask;

template <>
struct LaneMask<float> {
    __m128 bits;
    friend LaneMask operator&(LaneMask a, LaneMask b) { return {_mm_and_ps(a.bits, b.bits)}; }
    friend LaneMask operator|(LaneMask a, LaneMask b) { return {_mm_or_ps(a.bits, b.bits)}; }
};

template <>
struct Lanes<float> {
    static constexpr int width = 4;
    __m128 v;

    Lanes() = default;
    Lanes(__m128 register_) : v(register_) {}
    Lanes(float all) : v(_mm_set1_ps(all)) {}
    static Lanes load(const float* p) { return _mm_loadu_ps(p); }
    void store(float* p) const { _mm_storeu_ps(p, v); }

    friend Lanes operator+(Lanes a, Lanes b) { return _mm_add_ps(a.v, b.v); }
    friend Lanes operator-(Lanes a, Lanes b) { return _mm_sub_ps(a.v, b.v); }
    friend Lanes operator*(Lanes a, Lanes b) { return _mm_mul_ps(a.v, b.v); }
    friend Lanes operator/(Lanes a, Lanes b) { return _mm_div_ps(a.v, b.v); }
    friend LaneMask<float> operator<(Lanes a, Lanes b) { return {_mm_cmplt_ps(a.v, b.v)}; }
    friend LaneMask<float> operator<=(Lanes a, Lanes b) { return {_mm_cmple_ps(a.v, b.v)}; }
    friend LaneMask<float> operator>(Lanes a, Lanes b) { return {_mm_cmpgt_ps(a.v, b.v)}; }
    friend LaneMask<float> operator>=(Lanes a, Lanes b) { return {_mm_cmpge_ps(a.v, b.v)}; }
    friend LaneMask<float> operator==(Lanes a, Lanes b) { return {_mm_cmpeq_ps(a.v, b.v)}; }
    friend Lanes sqrt(Lanes a) { return _mm_sqrt_ps(a.v); }
    friend Lanes abs(Lanes a) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), a.v); }
};

template <>
struct LaneMask<double> {
    __m128d bits;
    friend LaneMask operator&(LaneMask a, LaneMask b) { return {_mm_and_pd(a.bits, b.bits)}; }
    friend LaneMask operator|(LaneMask a, LaneMask b) { return {_mm_or_pd(a.bits, b.bits)}; }
};

template <>
struct Lanes<double> {
    static constexpr int width = 2;
    __m128d v;

    Lanes() = default;
    Lanes(__m128d register_) : v(register_) {}
    Lanes(double all) : v(_mm_set1_pd(all)) {}
    static Lanes load(const double* p) { return _mm_loadu_pd(p); }
    void store(double* p) const { _mm_storeu_pd(p, v); }

    friend Lanes operator+(Lanes a, Lanes b) { return _mm_add_pd(a.v, b.v); }
    friend Lanes operator-(Lanes a, Lanes b) { return _mm_sub_pd(a.v, b.v); }
    friend Lanes operator*(Lanes a, Lanes b) { return _mm_mul_pd(a.v, b.v); }
    friend Lanes operator/(Lanes a, Lanes b) { return _mm_div_pd(a.v, b.v); }
    friend LaneMask<double> operator<(Lanes a, Lanes b) { return {_mm_cmplt_pd(a.v, b.v)}; }
    friend LaneMask<double> operator<=(Lanes a, Lanes b) { return {_mm_cmple_pd(a.v, b.v)}; }
    friend LaneMask<double> operator>(Lanes a, Lanes b) { return {_mm_cmpgt_pd(a.v, b.v)}; }
    friend LaneMask<double> operator>=(Lanes a, Lanes b) { return {_mm_cmpge_pd(a.v, b.v)}; }
    friend LaneMask<double> operator==(Lanes a, Lanes b) { return {_mm_cmpeq_pd(a.v, b.v)}; }
    friend Lanes sqrt(Lanes a) { return _mm_sqrt_pd(a.v); }
    friend Lanes abs(Lanes a) { return _mm_andnot_pd(_mm_set1_pd(-0.0), a.v); }
};

// Lane by lane: a where the mask is set, b elsewhere.
inline Lanes<float> select(LaneMask<float> mask, Lanes<float> a, Lanes<float> b)
{
    return _mm_or_ps(_mm_and_ps(mask.bits, a.v), _mm_andnot_ps(mask.bits, b.v));
}
inline Lanes<double> select(LaneMask<double> mask, Lanes<double> a, Lanes<double> b)
{
    return _mm_or_pd(_mm_and_pd(mask.bits, a.v), _mm_andnot_pd(mask.bits, b.v));
}
inline bool any(LaneMask<float> mask) { return _mm_movemask_ps(mask.bits) != 0; }
inline bool any(LaneMask<double> mask) { return _mm_movemask_pd(mask.bits) != 0; }

// The same vocabulary for one number.
template <class T>
constexpr T select(bool mask, T a, T b)
{
    return mask ? a : b;
}
constexpr bool any(bool mask) { return mask; }
inline float sqrt(float a) { return std::sqrt(a); }
inline double sqrt(double a) { return std::sqrt(a); }
inline float abs(float a) { return std::fabs(a); }
inline double abs(double a) { return std::fabs(a); }

// The first Count elements of a register, which touch no other memory. Three floats lie in lanes 0,
// 2 and 3, so that a pair is loaded and stored at once.
template <int Count>
VORM_INLINE Lanes<float> loadFirst(const float* p)
{
    const auto pair = [](const float* q) { return reinterpret_cast<const __m64*>(q); };
    if constexpr (Count == 1) return _mm_set_ss(elementAt(p, 0));
    if constexpr (Count == 2) return _mm_loadl_pi(_mm_setzero_ps(), pair(p));
    if constexpr (Count == 3) return _mm_loadh_pi(_mm_set_ss(elementAt(p, 0)), pair(p + 1));
    if constexpr (Count == 4) return _mm_loadu_ps(p);
}
template <int Count>
VORM_INLINE void storeFirst(float* p, Lanes<float> a)
{
    const auto pair = [](float* q) { return reinterpret_cast<__m64*>(q); };
    if constexpr (Count == 1) elementAt(p, 0) = _mm_cvtss_f32(a.v);
    if constexpr (Count == 2) _mm_storel_pi(pair(p), a.v);
    if constexpr (Count == 3) {
        elementAt(p, 0) = _mm_cvtss_f32(a.v);
        _mm_storeh_pi(pair(p + 1), a.v);
    }
    if constexpr (Count == 4) _mm_storeu_ps(p, a.v);
}
template <int Count>
VORM_INLINE Lanes<double> loadFirst(const double* p)
{
    if constexpr (Count == 1) return _mm_set_sd(elementAt(p, 0));
    if constexpr (Count == 2) return _mm_loadu_pd(p);
}
template <int Count>
VORM_INLINE void storeFirst(double* p, Lanes<double> a)
{
    if constexpr (Count == 1) elementAt(p, 0) = _mm_cvtsd_f64(a.v);
    if constexpr (Count == 2) _mm_storeu_pd(p, a.v);
}

// Turns a square block of objects into lanes: register k holds element k of every object where it
// held the elements of object k; and back.
VORM_INLINE void transpose(Lanes<float> (&rows)[4])
{
    const __m128 low01 = _mm_unpacklo_ps(rows[0].v, rows[1].v);   // a0 b0 a1 b1
    const __m128 high01 = _mm_unpackhi_ps(rows[0].v, rows[1].v);  // a2 b2 a3 b3
    const __m128 low23 = _mm_unpacklo_ps(rows[2].v, rows[3].v);   // c0 d0 c1 d1
    const __m128 high23 = _mm_unpackhi_ps(rows[2].v, rows[3].v);  // c2 d2 c3 d3
    rows[0] = _mm_movelh_ps(low01, low23);                        // a0 b0 c0 d0
    rows[1] = _mm_movehl_ps(low23, low01);                        // a1 b1 c1 d1
    rows[2] = _mm_movelh_ps(high01, high23);                      // a2 b2 c2 d2
    rows[3] = _mm_movehl_ps(high23, high01);                      // a3 b3 c3 d3
}
VORM_INLINE void transpose(Lanes<double> (&rows)[2])
{
    const __m128d low = _mm_unpacklo_pd(rows[0].v, rows[1].v);  // a0 b0
    rows[1] = _mm_unpackhi_pd(rows[0].v, rows[1].v);            // a1 b1
    rows[0] = low;
}

}  // namespace vorm
