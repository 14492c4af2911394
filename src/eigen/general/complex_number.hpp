// Complex numbers as far as the substitution needs them, so that its steps stand once for real and complex solutions.
#pragma once

#include "eigen/general/rounded.hpp"
#include "frame/lanes.hpp"

namespace vorm::eigen {

template <class T>
struct Complex {
    T re, im;
    VORM_INLINE friend Complex operator+(Complex a, Complex b) { return {a.re + b.re, a.im + b.im}; }
    VORM_INLINE friend Complex operator-(Complex a, Complex b) { return {a.re - b.re, a.im - b.im}; }
    VORM_INLINE friend Complex operator*(Complex a, T b) { return {a.re * b, a.im * b}; }
    VORM_INLINE friend Complex operator*(Complex a, Complex b)
    {
        return {rounded(a.re * b.re) - rounded(a.im * b.im), rounded(a.re * b.im) + rounded(a.im * b.re)};
    }
    // R. L. Smith, Algorithm 116: Complex division, Communications of the ACM 5 (1962).
    VORM_INLINE friend Complex operator/(Complex a, Complex b)
    {
        if (abs(b.im) < abs(b.re)) {
            const T ratio = b.im / b.re, divisor = b.re + rounded(b.im * ratio);
            return {(a.re + rounded(a.im * ratio)) / divisor, (a.im - rounded(a.re * ratio)) / divisor};
        }
        const T ratio = b.re / b.im, divisor = b.im + rounded(b.re * ratio);
        return {(rounded(a.re * ratio) + a.im) / divisor, (rounded(a.im * ratio) - a.re) / divisor};
    }
    VORM_INLINE friend Complex operator-(Complex a) { return {-a.re, -a.im}; }
};

// The size of a number as the substitution measures it.
VORM_INLINE float magnitude(float a) { return abs(a); }
VORM_INLINE double magnitude(double a) { return abs(a); }
template <class T>
VORM_INLINE T magnitude(Complex<T> a)
{
    return abs(a.re) + abs(a.im);
}

}  // namespace vorm::eigen
