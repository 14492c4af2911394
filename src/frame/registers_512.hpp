// Registers of 512 bits, four parts each: see registers.hpp, which includes this where there are any.
#pragma once

namespace vorm {

template <>
struct Register<float, 16> {
    using V = __m512;
    using Mask = __mmask16;

    static V all(float x) { return _mm512_set1_ps(x); }
    static V bits(int x) { return _mm512_castsi512_ps(_mm512_set1_epi32(x)); }
    static V load(const float* p) { return _mm512_loadu_ps(p); }
    static void store(float* p, V a) { _mm512_storeu_ps(p, a); }

    static V add(V a, V b) { return _mm512_add_ps(a, b); }
    static V sub(V a, V b) { return _mm512_sub_ps(a, b); }
    static V mul(V a, V b) { return _mm512_mul_ps(a, b); }
    static V div(V a, V b) { return _mm512_div_ps(a, b); }
    static V root(V a) { return _mm512_sqrt_ps(a); }
    static V larger(V a, V b) { return _mm512_max_ps(a, b); }
    static V largerInteger(V a, V b)
    {
        return _mm512_castsi512_ps(_mm512_max_epi16(_mm512_castps_si512(a), _mm512_castps_si512(b)));
    }
    // By halves: the estimates of 512 bits have other bits.
    static V estimateReciprocal(V a) { return joinHalves(_mm256_rcp_ps(half<0>(a)), _mm256_rcp_ps(half<1>(a))); }
    static V estimateReciprocalRoot(V a)
    {
        return joinHalves(_mm256_rsqrt_ps(half<0>(a)), _mm256_rsqrt_ps(half<1>(a)));
    }

    static V both(V a, V b) { return _mm512_and_ps(a, b); }
    static V either(V a, V b) { return _mm512_or_ps(a, b); }
    static V differing(V a, V b) { return _mm512_xor_ps(a, b); }
    static V without(V a, V b) { return _mm512_andnot_ps(b, a); }
    static Mask both(Mask a, Mask b) { return _kand_mask16(a, b); }
    static Mask either(Mask a, Mask b) { return _kor_mask16(a, b); }
    static Mask without(Mask a, Mask b) { return _kandn_mask16(b, a); }

    static Mask less(V a, V b) { return _mm512_cmp_ps_mask(a, b, _CMP_LT_OS); }
    static Mask lessOrEqual(V a, V b) { return _mm512_cmp_ps_mask(a, b, _CMP_LE_OS); }
    static Mask equal(V a, V b) { return _mm512_cmp_ps_mask(a, b, _CMP_EQ_OQ); }
    static int maskBits(Mask m) { return m; }
    static V select(Mask m, V a, V b) { return _mm512_mask_blend_ps(m, b, a); }
    static V where(Mask m, V a) { return _mm512_maskz_mov_ps(m, a); }
    static V difference(Mask m, V a, V b) { return _mm512_maskz_xor_ps(m, a, b); }

    static V low(V a, V b) { return _mm512_unpacklo_ps(a, b); }
    static V high(V a, V b) { return _mm512_unpackhi_ps(a, b); }
    static V lowPairs(V a, V b) { return _mm512_shuffle_ps(a, b, 0x44); }
    static V highPairs(V a, V b) { return _mm512_shuffle_ps(a, b, 0xee); }
    template <int order>
    static V shuffle(V a, V b)
    {
        return _mm512_shuffle_ps(a, b, order);
    }
    template <int order>
    static V permute(V a)
    {
        return _mm512_permute_ps(a, order);
    }

    static V joinHalves(__m256 front, __m256 back)
    {
        return _mm512_insertf32x8(_mm512_castps256_ps512(front), back, 1);
    }
    template <int h>
    static __m256 half(V a)
    {
        return _mm512_extractf32x8_ps(a, h);
    }
    template <class Part>
    VORM_INLINE static V join(const Part& part)
    {
        return joinHalves(Register<float, 8>::join(part),
                          Register<float, 8>::join([&](int q) VORM_INLINE_LAMBDA { return part(2 + q); }));
    }
    template <int q>
    static __m128 part(V a)
    {
        if constexpr (q == 0)
            return _mm512_castps512_ps128(a);
        else
            return _mm512_extractf32x4_ps(a, q);
    }
};

template <>
struct Register<double, 8> {
    using V = __m512d;
    using Mask = __mmask8;

    static V all(double x) { return _mm512_set1_pd(x); }
    static V bits(int x) { return _mm512_castsi512_pd(_mm512_set1_epi64(x)); }
    static V load(const double* p) { return _mm512_loadu_pd(p); }
    static void store(double* p, V a) { _mm512_storeu_pd(p, a); }

    static V add(V a, V b) { return _mm512_add_pd(a, b); }
    static V sub(V a, V b) { return _mm512_sub_pd(a, b); }
    static V mul(V a, V b) { return _mm512_mul_pd(a, b); }
    static V div(V a, V b) { return _mm512_div_pd(a, b); }
    static V root(V a) { return _mm512_sqrt_pd(a); }
    static V larger(V a, V b) { return _mm512_max_pd(a, b); }
    static V largerInteger(V a, V b)
    {
        return _mm512_castsi512_pd(_mm512_max_epi16(_mm512_castpd_si512(a), _mm512_castpd_si512(b)));
    }

    static V both(V a, V b) { return _mm512_and_pd(a, b); }
    static V either(V a, V b) { return _mm512_or_pd(a, b); }
    static V differing(V a, V b) { return _mm512_xor_pd(a, b); }
    static V without(V a, V b) { return _mm512_andnot_pd(b, a); }
    static Mask both(Mask a, Mask b) { return _kand_mask8(a, b); }
    static Mask either(Mask a, Mask b) { return _kor_mask8(a, b); }
    static Mask without(Mask a, Mask b) { return _kandn_mask8(b, a); }

    static Mask less(V a, V b) { return _mm512_cmp_pd_mask(a, b, _CMP_LT_OS); }
    static Mask lessOrEqual(V a, V b) { return _mm512_cmp_pd_mask(a, b, _CMP_LE_OS); }
    static Mask equal(V a, V b) { return _mm512_cmp_pd_mask(a, b, _CMP_EQ_OQ); }
    static int maskBits(Mask m) { return m; }
    static V select(Mask m, V a, V b) { return _mm512_mask_blend_pd(m, b, a); }
    static V where(Mask m, V a) { return _mm512_maskz_mov_pd(m, a); }
    static V difference(Mask m, V a, V b) { return _mm512_maskz_xor_pd(m, a, b); }

    static V low(V a, V b) { return _mm512_unpacklo_pd(a, b); }
    static V high(V a, V b) { return _mm512_unpackhi_pd(a, b); }
    template <int order>
    static V shuffle(V a, V b)  // the same order in all parts
    {
        return _mm512_shuffle_pd(a, b, order * 0x55);
    }
    template <int order>
    static V permute(V a)
    {
        return _mm512_permute_pd(a, order * 0x55);
    }

    template <class Part>
    VORM_INLINE static V join(const Part& part)
    {
        using Half = Register<double, 4>;
        const __m256d front = Half::join(part);
        const __m256d back = Half::join([&](int q) VORM_INLINE_LAMBDA { return part(2 + q); });
        return _mm512_insertf64x4(_mm512_castpd256_pd512(front), back, 1);
    }
    template <int q>
    static __m128d part(V a)
    {
        if constexpr (q == 0)
            return _mm512_castpd512_pd128(a);
        else
            return _mm512_extractf64x2_pd(a, q);
    }
};

}  // namespace vorm
