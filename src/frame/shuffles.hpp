// Lanes moved about within and between registers, in every part of 128 bits by itself.
#pragma once

#include <type_traits>

#include "frame/lanes.hpp"

namespace vorm {

// Lanes of a and b in turn: a0 b0 a1 b1 and a2 b2 a3 b3, or a0 b0 and a1 b1.
template <class T, int W>
VORM_INLINE Lanes<T, W> interleaveLow(Lanes<T, W> a, Lanes<T, W> b)
{
    return Register<T, W>::low(a.v, b.v);
}
template <class T, int W>
VORM_INLINE Lanes<T, W> interleaveHigh(Lanes<T, W> a, Lanes<T, W> b)
{
    return Register<T, W>::high(a.v, b.v);
}
// a0 a1 b0 b1 and a2 a3 b2 b3.
template <int W>
VORM_INLINE Lanes<float, W> lowPairs(Lanes<float, W> a, Lanes<float, W> b)
{
    return Register<float, W>::lowPairs(a.v, b.v);
}
template <int W>
VORM_INLINE Lanes<float, W> highPairs(Lanes<float, W> a, Lanes<float, W> b)
{
    return Register<float, W>::highPairs(a.v, b.v);
}

// a(i) a(j) b(k) b(l), or a(i) b(j).
template <int i, int j, int k, int l, int W>
VORM_INLINE Lanes<float, W> shuffle(Lanes<float, W> a, Lanes<float, W> b)
{
    return Register<float, W>::template shuffle<i | j << 2 | k << 4 | l << 6>(a.v, b.v);
}
template <int i, int j, int W>
VORM_INLINE Lanes<double, W> shuffle(Lanes<double, W> a, Lanes<double, W> b)
{
    return Register<double, W>::template shuffle<i | j << 1>(a.v, b.v);
}
// a(i) a(j) a(k) a(l), or a(i) a(j).
template <int i, int j, int k, int l, int W>
VORM_INLINE Lanes<float, W> permute(Lanes<float, W> a)
{
    return Register<float, W>::template permute<i | j << 2 | k << 4 | l << 6>(a.v);
}
template <int i, int j, int W>
VORM_INLINE Lanes<double, W> permute(Lanes<double, W> a)
{
    return Register<double, W>::template permute<i | j << 1>(a.v);
}

// Lane k in all lanes.
template <int k, int W>
VORM_INLINE Lanes<float, W> splat(Lanes<float, W> a)
{
    return permute<k, k, k, k>(a);
}
template <int k, int W>
VORM_INLINE Lanes<double, W> splat(Lanes<double, W> a)
{
    return permute<k, k>(a);
}

template <int W>
VORM_INLINE float firstLane(Lanes<float, W> a)
{
    return _mm_cvtss_f32(Register<float, W>::template part<0>(a.v));
}
template <int W>
VORM_INLINE double firstLane(Lanes<double, W> a)
{
    return _mm_cvtsd_f64(Register<double, W>::template part<0>(a.v));
}
template <int k, class T, int W>
VORM_INLINE T lane(Lanes<T, W> a)
{
    const Lanes<T> part = Register<T, W>::template part<k / narrow<T>>(a.v);
    if constexpr (k % narrow<T> == 0) return firstLane(part);
    return firstLane(splat<k % narrow<T>>(part));
}

// The integer of a lane of two; and those of four or eight lanes in half the register.
template <int k>
VORM_INLINE int integerInLane(Lanes<double> a)
{
    return _mm_cvtsi128_si32(_mm_castpd_si128(k == 0 ? a.v : interleaveHigh(a, a).v));
}
template <int W>
VORM_INLINE Lanes<float, W> lowHalves(Lanes<double, W> a)
{
    Lanes<float> parts[W / 2];
    eachPart(a, [&](int q, Lanes<double> part) VORM_INLINE_LAMBDA { parts[q] = _mm_castpd_ps(part.v); });
    return joined<Lanes<float, W>>(
        [&](int q) VORM_INLINE_LAMBDA { return shuffle<0, 2, 0, 2>(parts[2 * q], parts[2 * q + 1]); });
}

// b with the first lane of a.
VORM_INLINE Lanes<float> withFirst(Lanes<float> a, Lanes<float> b) { return _mm_move_ss(b.v, a.v); }
VORM_INLINE Lanes<double> withFirst(Lanes<double> a, Lanes<double> b) { return _mm_move_sd(b.v, a.v); }

// a1 a2 a3 0: the lanes behind the first.
VORM_INLINE Lanes<float> behindFirst(Lanes<float> a)
{
    return _mm_castsi128_ps(_mm_srli_si128(_mm_castps_si128(a.v), 4));
}

// Sums of neighbours: a0+a1 a2+a3 b0+b1 b2+b3, or a0+a1 b0+b1.
VORM_INLINE Lanes<float> pairSums(Lanes<float> a, Lanes<float> b) { return _mm_hadd_ps(a.v, b.v); }
VORM_INLINE Lanes<double> pairSums(Lanes<double> a, Lanes<double> b) { return _mm_hadd_pd(a.v, b.v); }

// A register of element(0), element(1), ...; of 128 bits, or one that is named.
template <class T, class Element>
requires std::is_floating_point_v<T> VORM_INLINE Lanes<T> lanes(const Element& element)
{
    if constexpr (narrow<T> == 4)
        return _mm_setr_ps(element(0), element(1), element(2), element(3));
    else
        return _mm_setr_pd(element(0), element(1));
}
template <class L, class Element>
requires(L::width > 0) VORM_INLINE L lanes(const Element& element)
{
    using T = vorm::Element<L>;
    return joined<L>([&](int q) VORM_INLINE_LAMBDA {
        return lanes<T>([&](int l) VORM_INLINE_LAMBDA { return element(q * narrow<T> + l); });
    });
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
// The first two of a, then two at q.
VORM_INLINE Lanes<float> withPair(Lanes<float> a, const float* q)
{
    return _mm_loadh_pi(a.v, reinterpret_cast<const __m64*>(q));
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
