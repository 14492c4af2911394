// The motion and the measurement that every filter of the bank assumes, and that the simulation obeys.
//
// A state holds position and velocity, x = (p, v). In one step x becomes F x + G (a + w): a is the acceleration
// that was asked for, which the filter knows, and w a random one with the standard deviation `disturbance` in every
// direction. A measurement is the position with an error of covariance R, which each filter has its own of.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace kalman {

constexpr int states = 6, seen = 3;  // elements of a state, and of a measurement
constexpr double interval = 0.1;     // seconds from step to step
constexpr double disturbance = 0.2;  // scans are scaled to a box of edge 2, which the accelerations refer to

using Doubles = std::vector<double>;  // of all filters, packed

template <class T, int Rows, int Columns>
using Matrix = std::array<T, static_cast<std::size_t>(Rows* Columns)>;

template <class T>
constexpr Matrix<T, states, states> transition()
{
    Matrix<T, states, states> f{};
    for (std::size_t i = 0; i < states; ++i) f[states * i + i] = 1;
    for (std::size_t i = 0; i < seen; ++i) f[states * i + seen + i] = static_cast<T>(interval);
    return f;
}

// What an acceleration does to position and velocity within a step: G.
template <class T>
constexpr Matrix<T, states, seen> acceleration()
{
    Matrix<T, states, seen> g{};
    for (std::size_t i = 0; i < seen; ++i) {
        g[seen * i + i] = static_cast<T>(interval * interval / 2);
        g[seen * (seen + i) + i] = static_cast<T>(interval);
    }
    return g;
}

// The covariance of G w: Q.
template <class T>
constexpr Matrix<T, states, states> processNoise()
{
    const auto g = acceleration<double>();
    Matrix<T, states, states> q{};
    for (std::size_t i = 0; i < states; ++i)
        for (std::size_t j = 0; j < states; ++j) {
            double sum = 0;
            for (std::size_t k = 0; k < seen; ++k) sum += g[seen * i + k] * g[seen * j + k];
            q[states * i + j] = static_cast<T>(disturbance * disturbance * sum);
        }
    return q;
}

// float or double as the library's names have it.
template <class T>
constexpr const char* typeName()
{
    return sizeof(T) == sizeof(float) ? "32f" : "64f";
}

}  // namespace kalman
