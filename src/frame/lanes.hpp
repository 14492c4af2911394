// Lanes<T, W>: a register of W numbers, with the vocabulary of a single number, so that a body written over a number
// type runs one object or a register of them. Each lane does exactly the operation the scalar would.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/memory.hpp"
#include "frame/minmax.hpp"
#include "frame/registers.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// For each lane whether a comparison holds; for single numbers that is a bool.
template <class T, int W = narrow<T>>
struct LaneMask {
    using R = Register<T, W>;
    typename R::Mask bits;
    friend LaneMask operator&(LaneMask a, LaneMask b) { return {R::both(a.bits, b.bits)}; }
    friend LaneMask operator|(LaneMask a, LaneMask b) { return {R::either(a.bits, b.bits)}; }
    friend LaneMask without(LaneMask a, LaneMask b) { return {R::without(a.bits, b.bits)}; }  // a and not b
    friend bool any(LaneMask mask) { return R::maskBits(mask.bits) != 0; }
    friend bool all(LaneMask mask) { return R::maskBits(mask.bits) == (1 << W) - 1; }
    // A bit for each lane.
    friend unsigned laneBits(LaneMask mask) { return static_cast<unsigned>(R::maskBits(mask.bits)); }
};

// Integers as large as an element.
template <class T>
using Integer = std::conditional_t<sizeof(T) == 4, std::int32_t, std::int64_t>;

// Without W it has 128 bits, as everything must whose results depend on the number of lanes.
template <class T, int W = narrow<T>>
struct Lanes {
    using R = Register<T, W>;
    using Mask = LaneMask<T, W>;
    static constexpr int width = W, parts = W / narrow<T>;
    typename R::V v;

    Lanes() = default;
    Lanes(typename R::V register_) : v(register_) {}
    Lanes(T all) : v(R::all(all)) {}
    static Lanes load(const T* p) { return R::load(p); }
    void store(T* p) const { R::store(p, v); }

    friend Lanes operator+(Lanes a, Lanes b) { return R::add(a.v, b.v); }
    friend Lanes operator-(Lanes a, Lanes b) { return R::sub(a.v, b.v); }
    friend Lanes operator*(Lanes a, Lanes b) { return R::mul(a.v, b.v); }
    friend Lanes operator/(Lanes a, Lanes b) { return R::div(a.v, b.v); }
    friend Lanes operator-(Lanes a) { return R::differing(a.v, R::all(-T(0))); }
    friend Mask operator<(Lanes a, Lanes b) { return {R::less(a.v, b.v)}; }
    friend Mask operator<=(Lanes a, Lanes b) { return {R::lessOrEqual(a.v, b.v)}; }
    friend Mask operator>(Lanes a, Lanes b) { return {R::less(b.v, a.v)}; }
    friend Mask operator>=(Lanes a, Lanes b) { return {R::lessOrEqual(b.v, a.v)}; }
    friend Mask operator==(Lanes a, Lanes b) { return {R::equal(a.v, b.v)}; }

    friend Lanes sqrt(Lanes a) { return R::root(a.v); }
    friend Lanes abs(Lanes a) { return R::without(a.v, R::all(-T(0))); }
    // a if it is larger, b otherwise: as the first a NaN displaces nothing, as the second nothing displaces it.
    friend Lanes larger(Lanes a, Lanes b) { return R::larger(a.v, b.v); }
    // a with its sign changed where that of b is set.
    friend Lanes timesSignOf(Lanes a, Lanes b) { return R::differing(a.v, R::both(b.v, R::all(-T(0)))); }
    // Lane by lane: a where the mask is set, b elsewhere.
    friend Lanes select(Mask mask, Lanes a, Lanes b) { return R::select(mask.bits, a.v, b.v); }
    friend Lanes where(Mask mask, Lanes a) { return R::where(mask.bits, a.v); }  // zero elsewhere

    // To exchange numbers where a mask is set: the bits in which they differ, to be united with those of other masks,
    // and a number with such bits changed.
    friend Lanes difference(Mask mask, Lanes a, Lanes b) { return R::difference(mask.bits, a.v, b.v); }
    friend Lanes united(Lanes difference, Lanes other) { return R::either(difference.v, other.v); }
    friend Lanes changed(Lanes a, Lanes difference) { return R::differing(a.v, difference.v); }
    // Small integers of no sign, which are only moved, selected and compared with each other.
    static Lanes integer(int x) { return R::bits(x); }
    friend Lanes largerInteger(Lanes a, Lanes b) { return R::largerInteger(a.v, b.v); }
    friend void storeIntegers(Lanes a, Integer<T>* to) { a.store(reinterpret_cast<T*>(to)); }

    // 1/a and 1/sqrt(a) to about twelve bits, which are the processor's own; single precision only.
    friend Lanes estimateReciprocal(Lanes a) { return R::estimateReciprocal(a.v); }
    friend Lanes estimateReciprocalRoot(Lanes a) { return R::estimateReciprocalRoot(a.v); }
};

// As wide as the build has registers: for objects side by side, whose results are the same at any width.
template <class T>
using Wide = Lanes<T, widest<T>>;
// No wider than some parts of 128 bits, where wider registers would be filled too slowly.
template <class T, int parts>
using UpTo = Lanes<T, min(widest<T>, parts* narrow<T>)>;

// What a number is made of, one or a register of them.
template <class Number>
struct ElementOf {
    using Type = Number;
};
template <class T, int W>
struct ElementOf<Lanes<T, W>> {
    using Type = T;
};
template <class Number>
using Element = typename ElementOf<Number>::Type;

// The same vocabulary for one number.
template <class T>
constexpr T select(bool mask, T a, T b)
{
    return mask ? a : b;
}
template <class T>
constexpr T where(bool mask, T a)
{
    return mask ? a : T(0);
}
constexpr bool any(bool mask) { return mask; }
constexpr bool all(bool mask) { return mask; }
constexpr bool without(bool a, bool b) { return a && !b; }
inline float sqrt(float a) { return __builtin_sqrtf(a); }
inline double sqrt(double a) { return __builtin_sqrt(a); }
inline float abs(float a) { return __builtin_fabsf(a); }
inline double abs(double a) { return __builtin_fabs(a); }
constexpr float larger(float a, float b) { return a > b ? a : b; }
constexpr double larger(double a, double b) { return a > b ? a : b; }
inline float timesSignOf(float a, float b) { return __builtin_signbitf(b) ? -a : a; }
inline double timesSignOf(double a, double b) { return __builtin_signbit(b) ? -a : a; }
inline float estimateReciprocal(float a) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(a))); }
inline float estimateReciprocalRoot(float a) { return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(a))); }

// A few registers as one number, whose operations keep the processor busy where those of one wait for each other.
template <class L, int registers>
struct Several {
    using One = L;
    static constexpr int count = registers;
    L part[registers];

    template <class Each>
    VORM_INLINE static Several each(const Each& register_)
    {
        Several r;
        unrolled<registers>([&](auto k) VORM_INLINE_LAMBDA { r.part[k] = register_(k); });
        return r;
    }
    Several() = default;
    VORM_INLINE Several(const L& all) : Several(each([&](int) VORM_INLINE_LAMBDA { return all; })) {}
    VORM_INLINE friend Several operator+(const Several& a, const Several& b)
    {
        return each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] + b.part[k]; });
    }
    VORM_INLINE friend Several operator-(const Several& a, const Several& b)
    {
        return each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] - b.part[k]; });
    }
    VORM_INLINE friend Several operator*(const Several& a, const Several& b)
    {
        return each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] * b.part[k]; });
    }
    VORM_INLINE friend Several operator/(const Several& a, const Several& b)
    {
        return each([&](auto k) VORM_INLINE_LAMBDA { return a.part[k] / b.part[k]; });
    }
};
template <class L, int registers>
struct ElementOf<Several<L, registers>> : ElementOf<L> {
};

// How many objects, and registers of them, a number holds; its k-th register.
template <class Number>
constexpr int objectsIn = 1;
template <class T, int W>
constexpr int objectsIn<Lanes<T, W>> = W;
template <class L, int registers>
constexpr int objectsIn<Several<L, registers>> = registers* L::width;
template <class Number>
constexpr bool inLanes = (objectsIn<Number> > 1);
template <class Number>
constexpr int registersIn = 1;
template <class L, int registers>
constexpr int registersIn<Several<L, registers>> = registers;
template <class Number>
VORM_INLINE auto& registerOf(Number& a, int k)
{
    if constexpr (registersIn<std::remove_const_t<Number>> == 1)
        return a;
    else
        return a.part[k];
}
template <class Number>
using RegisterIn = std::remove_cvref_t<decltype(registerOf(std::declval<Number&>(), 0))>;

// A register of parts of 128 bits, part(q) being the q-th of them; and each of them by itself, store(q, part).
template <class L, class Part>
VORM_INLINE L joined(const Part& part)
{
    return L::R::join([&](int q) VORM_INLINE_LAMBDA { return part(q).v; });
}
template <class T, int W, class Store>
VORM_INLINE void eachPart(Lanes<T, W> a, const Store& store)
{
    unrolled<Lanes<T, W>::parts>([&](auto q)
                                     VORM_INLINE_LAMBDA { store(q, Lanes<T>(Register<T, W>::template part<q>(a.v))); });
}

// The first lanes of a register that is too wide for a number; anything else as it is.
template <class Number, class Wider>
VORM_INLINE auto narrowed(const Wider& a)
{
    if constexpr (objectsIn < Wider >> objectsIn<Number>)
        return Number(Wider::R::template part<0>(a.v));
    else
        return a;
}

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

// Turns square blocks of objects into lanes, in every part of 128 bits by itself: there register k holds element k of
// every object where it held the elements of object k; and back.
template <int W>
VORM_INLINE void transpose(Lanes<float, W> (&rows)[4])
{
    using R = Register<float, W>;
    const auto low01 = R::low(rows[0].v, rows[1].v);    // a0 b0 a1 b1
    const auto high01 = R::high(rows[0].v, rows[1].v);  // a2 b2 a3 b3
    const auto low23 = R::low(rows[2].v, rows[3].v);    // c0 d0 c1 d1
    const auto high23 = R::high(rows[2].v, rows[3].v);  // c2 d2 c3 d3
    rows[0] = R::lowPairs(low01, low23);                // a0 b0 c0 d0
    rows[1] = R::highPairs(low01, low23);               // a1 b1 c1 d1
    rows[2] = R::lowPairs(high01, high23);              // a2 b2 c2 d2
    rows[3] = R::highPairs(high01, high23);             // a3 b3 c3 d3
}
template <int W>
VORM_INLINE void transpose(Lanes<double, W> (&rows)[2])
{
    using R = Register<double, W>;
    const auto low = R::low(rows[0].v, rows[1].v);  // a0 b0
    rows[1] = R::high(rows[0].v, rows[1].v);        // a1 b1
    rows[0] = low;
}

}  // namespace vorm
