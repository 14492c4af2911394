// The same filters as objects with Eigen's matrices, one after the other.
#pragma once

#include "kalman_bank/bank.hpp"
#include "kalman_bank/simulation.hpp"

namespace kalman {

struct EigenResult {
    Doubles estimates;   // after the whole flight
    double nanoseconds;  // of one filter for one step
};

// T is float or double.
template <class T>
EigenResult followedWithEigen(const Start& start, const Flight& flight);

extern template EigenResult followedWithEigen<float>(const Start&, const Flight&);
extern template EigenResult followedWithEigen<double>(const Start&, const Flight&);

}  // namespace kalman
