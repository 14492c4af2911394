// Packed square matrices, and the errors that are measured of them.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

template <class T>
struct Matrix {
    int n;
    std::vector<T> a;
    explicit Matrix(int order) : n(order), a(std::size_t(order * order)) {}
    T& operator()(int r, int c) { return a[std::size_t(r * n + c)]; }
    T operator()(int r, int c) const { return a[std::size_t(r * n + c)]; }
    long double largest() const
    {
        long double most = 0;
        for (T x : a) most = std::fmax(most, std::fabs(static_cast<long double>(x)));
        return most;
    }
};

// The larger of two errors. Unlike std::max it lets no NaN pass for a small one.
template <class Real>
Real worse(Real error, Real other)
{
    return other > error || std::isnan(other) ? other : error;
}
