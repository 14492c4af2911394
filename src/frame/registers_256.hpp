// Registers of 256 bits, two parts each: see registers.hpp, which includes this where there are any.
#pragma once

namespace vorm {

template <>
struct Register<float, 8> {
    using V = __m256;
    using Mask = __m256;

    static V all(float x) { return _mm256_set1_ps(x); }
    static V bits(int x) { return _mm256_castsi256_ps(_mm256_set1_epi32(x)); }
    static V load(const float* p) { return _mm256_loadu_ps(p); }
    static void store(float* p, V a) { _mm256_storeu_ps(p, a); }

    static V add(V a, V b) { return _mm256_add_ps(a, b); }
    static V sub(V a, V b) { return _mm256_sub_ps(a, b); }
    static V mul(V a, V b) { return _mm256_mul_ps(a, b); }
    static V div(V a, V b) { return _mm256_div_ps(a, b); }
    static V root(V a) { return _mm256_sqrt_ps(a); }
    static V larger(V a, V b) { return _mm256_max_ps(a, b); }
    static V largerInteger(V a, V b)
    {
        return _mm256_castsi256_ps(_mm256_max_epi16(_mm256_castps_si256(a), _mm256_castps_si256(b)));
    }
    static V estimateReciprocal(V a) { return _mm256_rcp_ps(a); }
    static V estimateReciprocalRoot(V a) { return _mm256_rsqrt_ps(a); }

    static V both(V a, V b) { return _mm256_and_ps(a, b); }
    static V either(V a, V b) { return _mm256_or_ps(a, b); }
    static V differing(V a, V b) { return _mm256_xor_ps(a, b); }
    static V without(V a, V b) { return _mm256_andnot_ps(b, a); }

    static Mask less(V a, V b) { return _mm256_cmp_ps(a, b, _CMP_LT_OS); }
    static Mask lessOrEqual(V a, V b) { return _mm256_cmp_ps(a, b, _CMP_LE_OS); }
    static Mask equal(V a, V b) { return _mm256_cmp_ps(a, b, _CMP_EQ_OQ); }
    static int maskBits(Mask m) { return _mm256_movemask_ps(m); }
    static V select(Mask m, V a, V b) { return _mm256_blendv_ps(b, a, m); }
    static V where(Mask m, V a) { return both(m, a); }
    static V difference(Mask m, V a, V b) { return both(m, differing(a, b)); }

    static V low(V a, V b) { return _mm256_unpacklo_ps(a, b); }
    static V high(V a, V b) { return _mm256_unpackhi_ps(a, b); }
    static V lowPairs(V a, V b) { return _mm256_shuffle_ps(a, b, 0x44); }
    static V highPairs(V a, V b) { return _mm256_shuffle_ps(a, b, 0xee); }
    template <int order>
    static V shuffle(V a, V b)
    {
        return _mm256_shuffle_ps(a, b, order);
    }
    template <int order>
    static V permute(V a)
    {
        return _mm256_permute_ps(a, order);
    }

    template <class Part>
    VORM_INLINE static V join(const Part& part)
    {
        return _mm256_insertf128_ps(_mm256_castps128_ps256(part(0)), part(1), 1);
    }
    template <int q>
    static __m128 part(V a)
    {
        if constexpr (q == 0)
            return _mm256_castps256_ps128(a);
        else
            return _mm256_extractf128_ps(a, q);
    }
};

template <>
struct Register<double, 4> {
    using V = __m256d;
    using Mask = __m256d;

    static V all(double x) { return _mm256_set1_pd(x); }
    static V bits(int x) { return _mm256_castsi256_pd(_mm256_set1_epi64x(x)); }
    static V load(const double* p) { return _mm256_loadu_pd(p); }
    static void store(double* p, V a) { _mm256_storeu_pd(p, a); }

    static V add(V a, V b) { return _mm256_add_pd(a, b); }
    static V sub(V a, V b) { return _mm256_sub_pd(a, b); }
    static V mul(V a, V b) { return _mm256_mul_pd(a, b); }
    static V div(V a, V b) { return _mm256_div_pd(a, b); }
    static V root(V a) { return _mm256_sqrt_pd(a); }
    static V larger(V a, V b) { return _mm256_max_pd(a, b); }
    static V largerInteger(V a, V b)
    {
        return _mm256_castsi256_pd(_mm256_max_epi16(_mm256_castpd_si256(a), _mm256_castpd_si256(b)));
    }

    static V both(V a, V b) { return _mm256_and_pd(a, b); }
    static V either(V a, V b) { return _mm256_or_pd(a, b); }
    static V differing(V a, V b) { return _mm256_xor_pd(a, b); }
    static V without(V a, V b) { return _mm256_andnot_pd(b, a); }

    static Mask less(V a, V b) { return _mm256_cmp_pd(a, b, _CMP_LT_OS); }
    static Mask lessOrEqual(V a, V b) { return _mm256_cmp_pd(a, b, _CMP_LE_OS); }
    static Mask equal(V a, V b) { return _mm256_cmp_pd(a, b, _CMP_EQ_OQ); }
    static int maskBits(Mask m) { return _mm256_movemask_pd(m); }
    static V select(Mask m, V a, V b) { return _mm256_blendv_pd(b, a, m); }
    static V where(Mask m, V a) { return both(m, a); }
    static V difference(Mask m, V a, V b) { return both(m, differing(a, b)); }

    static V low(V a, V b) { return _mm256_unpacklo_pd(a, b); }
    static V high(V a, V b) { return _mm256_unpackhi_pd(a, b); }
    template <int order>
    static V shuffle(V a, V b)  // the same order in both parts
    {
        return _mm256_shuffle_pd(a, b, order | order << 2);
    }
    template <int order>
    static V permute(V a)
    {
        return _mm256_permute_pd(a, order | order << 2);
    }

    template <class Part>
    VORM_INLINE static V join(const Part& part)
    {
        return _mm256_insertf128_pd(_mm256_castpd128_pd256(part(0)), part(1), 1);
    }
    template <int q>
    static __m128d part(V a)
    {
        if constexpr (q == 0)
            return _mm256_castpd256_pd128(a);
        else
            return _mm256_extractf128_pd(a, q);
    }
};

}  // namespace vorm
