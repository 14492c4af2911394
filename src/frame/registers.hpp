// The registers of the instruction set the library is compiled for, one description each: what differs from width to
// width. What moves lanes does so within parts of 128 bits, so that a body for one part runs in all of them.
#pragma once

#ifdef __AVX2__
#pragma GCC diagnostic push  // g++ 12 warns of undefined registers that its own header means to be undefined
#pragma GCC diagnostic ignored "-Wuninitialized"
#ifndef __clang__
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <immintrin.h>
#pragma GCC diagnostic pop
#else
#include <tmmintrin.h>
#endif

#include "frame/layers.hpp"

namespace vorm {

// As many lanes as 128 bits have, the width that results are defined by; and as many as this build has.
template <class T>
constexpr int narrow = 16 / int{sizeof(T)};
#if defined(__AVX512BW__) && defined(__AVX512DQ__) && defined(__AVX512VL__)
#define VORM_WIDER_REGISTERS
constexpr int registerBytes = 64;
#elif defined(__AVX2__)
#define VORM_WIDER_REGISTERS
constexpr int registerBytes = 32;
#else
constexpr int registerBytes = 16;
#endif
template <class T>
constexpr int widest = registerBytes / int{sizeof(T)};

// V holds numbers; Mask says for each lane whether a comparison holds.
template <class T, int width>
struct Register;

template <>
struct Register<float, 4> {
    using V = __m128;
    using Mask = __m128;

    static V all(float x) { return _mm_set1_ps(x); }
    static V bits(int x) { return _mm_castsi128_ps(_mm_set1_epi32(x)); }
    static V load(const float* p) { return _mm_loadu_ps(p); }
    static void store(float* p, V a) { _mm_storeu_ps(p, a); }

    static V add(V a, V b) { return _mm_add_ps(a, b); }
    static V sub(V a, V b) { return _mm_sub_ps(a, b); }
    static V mul(V a, V b) { return _mm_mul_ps(a, b); }
    static V div(V a, V b) { return _mm_div_ps(a, b); }
    static V root(V a) { return _mm_sqrt_ps(a); }
    static V larger(V a, V b) { return _mm_max_ps(a, b); }
    static V largerInteger(V a, V b)
    {
        return _mm_castsi128_ps(_mm_max_epi16(_mm_castps_si128(a), _mm_castps_si128(b)));
    }
    static V estimateReciprocal(V a) { return _mm_rcp_ps(a); }
    static V estimateReciprocalRoot(V a) { return _mm_rsqrt_ps(a); }

    static V both(V a, V b) { return _mm_and_ps(a, b); }
    static V either(V a, V b) { return _mm_or_ps(a, b); }
    static V differing(V a, V b) { return _mm_xor_ps(a, b); }
    static V without(V a, V b) { return _mm_andnot_ps(b, a); }

    static Mask less(V a, V b) { return _mm_cmplt_ps(a, b); }
    static Mask lessOrEqual(V a, V b) { return _mm_cmple_ps(a, b); }
    static Mask equal(V a, V b) { return _mm_cmpeq_ps(a, b); }
    static int maskBits(Mask m) { return _mm_movemask_ps(m); }
    static V select(Mask m, V a, V b) { return _mm_or_ps(_mm_and_ps(m, a), _mm_andnot_ps(m, b)); }
    static V where(Mask m, V a) { return both(m, a); }
    static V difference(Mask m, V a, V b) { return both(m, differing(a, b)); }

    static V low(V a, V b) { return _mm_unpacklo_ps(a, b); }
    static V high(V a, V b) { return _mm_unpackhi_ps(a, b); }
    static V lowPairs(V a, V b) { return _mm_movelh_ps(a, b); }
    static V highPairs(V a, V b) { return _mm_movehl_ps(b, a); }
    template <int order>
    static V shuffle(V a, V b)
    {
        return _mm_shuffle_ps(a, b, order);
    }
    template <int order>
    static V permute(V a)  // into a register of its own
    {
        return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a), order));
    }

    template <class Part>
    VORM_INLINE static V join(const Part& part)
    {
        return part(0);
    }
    template <int q>
    static __m128 part(V a)
    {
        return a;
    }
};

template <>
struct Register<double, 2> {
    using V = __m128d;
    using Mask = __m128d;

    static V all(double x) { return _mm_set1_pd(x); }
    static V bits(int x) { return _mm_castsi128_pd(_mm_set1_epi64x(x)); }
    static V load(const double* p) { return _mm_loadu_pd(p); }
    static void store(double* p, V a) { _mm_storeu_pd(p, a); }

    static V add(V a, V b) { return _mm_add_pd(a, b); }
    static V sub(V a, V b) { return _mm_sub_pd(a, b); }
    static V mul(V a, V b) { return _mm_mul_pd(a, b); }
    static V div(V a, V b) { return _mm_div_pd(a, b); }
    static V root(V a) { return _mm_sqrt_pd(a); }
    static V larger(V a, V b) { return _mm_max_pd(a, b); }
    static V largerInteger(V a, V b)
    {
        return _mm_castsi128_pd(_mm_max_epi16(_mm_castpd_si128(a), _mm_castpd_si128(b)));
    }

    static V both(V a, V b) { return _mm_and_pd(a, b); }
    static V either(V a, V b) { return _mm_or_pd(a, b); }
    static V differing(V a, V b) { return _mm_xor_pd(a, b); }
    static V without(V a, V b) { return _mm_andnot_pd(b, a); }

    static Mask less(V a, V b) { return _mm_cmplt_pd(a, b); }
    static Mask lessOrEqual(V a, V b) { return _mm_cmple_pd(a, b); }
    static Mask equal(V a, V b) { return _mm_cmpeq_pd(a, b); }
    static int maskBits(Mask m) { return _mm_movemask_pd(m); }
    static V select(Mask m, V a, V b) { return _mm_or_pd(_mm_and_pd(m, a), _mm_andnot_pd(m, b)); }
    static V where(Mask m, V a) { return both(m, a); }
    static V difference(Mask m, V a, V b) { return both(m, differing(a, b)); }

    static V low(V a, V b) { return _mm_unpacklo_pd(a, b); }
    static V high(V a, V b) { return _mm_unpackhi_pd(a, b); }
    template <int order>
    static V shuffle(V a, V b)
    {
        return _mm_shuffle_pd(a, b, order);
    }
    template <int order>
    static V permute(V a)
    {
        return _mm_shuffle_pd(a, a, order);
    }

    template <class Part>
    VORM_INLINE static V join(const Part& part)
    {
        return part(0);
    }
    template <int q>
    static __m128d part(V a)
    {
        return a;
    }
};

}  // namespace vorm

#ifdef __AVX2__
#include "frame/registers_256.hpp"
#endif
#if defined(__AVX512BW__) && defined(__AVX512DQ__) && defined(__AVX512VL__)
#include "frame/registers_512.hpp"
#endif
