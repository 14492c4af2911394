// Matrices with spectra of many kinds, for the tests of eigenproblems.
#pragma once

#include "operands.hpp"

enum class Spectrum { random, symmetric, orthogonal, companion, graded, unbalanced, stochastic, skew };
constexpr Spectrum spectra[] = {Spectrum::random, Spectrum::symmetric,  Spectrum::orthogonal, Spectrum::companion,
                                Spectrum::graded, Spectrum::unbalanced, Spectrum::stochastic, Spectrum::skew};

template <class T>
int orderOf(const std::vector<T>& a)
{
    return int(std::lround(std::sqrt(double(a.size()))));
}
template <class T>
long double frobenius(const std::vector<T>& a)
{
    long double sum = 0;
    for (T element : a) sum += static_cast<long double>(element) * element;
    return std::sqrt(sum);
}

// Packed, with elements of about 1.
template <class T>
std::vector<T> matrixOf(int n, Spectrum spectrum, Random& random)
{
    std::vector<double> a(std::size_t(n * n));
    const auto at = [&](int r, int c) -> double& { return a[std::size_t(r * n + c)]; };
    for (double& element : a) element = uniform(random, -1, 1);
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) switch (spectrum) {
            case Spectrum::symmetric:
                if (c < r) at(r, c) = at(c, r);
                break;
            case Spectrum::companion:
                if (r < n - 1) at(r, c) = c == r + 1;
                break;
            case Spectrum::graded: at(r, c) = std::ldexp(at(r, c), -2 * (r + c) * 6 / n); break;
            case Spectrum::unbalanced: at(r, c) = std::ldexp(at(r, c), (r - c) * 8 / n); break;
            case Spectrum::stochastic: at(r, c) = std::fabs(at(r, c)); break;
            case Spectrum::skew:
                if (c <= r) at(r, c) = c == r ? 0 : -at(c, r);
                break;
            default: break;
            }
    if (spectrum == Spectrum::stochastic)
        for (int r = 0; r < n; ++r) {
            double sum = 0;
            for (int c = 0; c < n; ++c) sum += at(r, c);
            for (int c = 0; c < n; ++c) at(r, c) /= sum;
        }
    if (spectrum == Spectrum::orthogonal)  // rows made orthogonal one after the other, twice
        for (int r = 0; r < n; ++r) {
            for (int again = 0; again < 2; ++again)
                for (int before = 0; before < r; ++before) {
                    double dot = 0;
                    for (int c = 0; c < n; ++c) dot += at(r, c) * at(before, c);
                    for (int c = 0; c < n; ++c) at(r, c) -= dot * at(before, c);
                }
            double squares = 0;
            for (int c = 0; c < n; ++c) squares += at(r, c) * at(r, c);
            for (int c = 0; c < n; ++c) at(r, c) /= std::sqrt(squares);
        }
    return std::vector<T>(a.begin(), a.end());
}
