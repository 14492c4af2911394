// A bank of Kalman filters: every step of the method is one call of the library for all filters.
#pragma once

#include <vector>

#include "kalman_bank/layouts.hpp"
#include "kalman_bank/model.hpp"

namespace kalman {

// Where a filter starts: the guess and the covariance of its error, and the covariance of its measurements.
struct Start {
    Doubles guesses;                // states of each filter
    Doubles measurementNoise;       // R: seen x seen of each filter
    double positionSd, velocitySd;  // standard deviations of the guesses, in every direction

    int count() const { return static_cast<int>(guesses.size() / states); }
};

// Layout is Packed or StructureOfArrays, of float or double.
template <class Layout>
class Bank {
public:
    using Element = typename Layout::Element;
    using Array = typename Layout::Array;

    explicit Bank(const Start& start);

    // One step of all filters; control is what the known acceleration does to each state, G a.
    void step(const Array& control, const Array& measurements);

    Doubles estimates() const { return packedNumbers(x_, count_); }
    Doubles covariances() const { return packedNumbers(p_, count_); }
    Doubles innovations() const { return packedNumbers(y_, count_); }
    Doubles innovationCovariances() const { return packedNumbers(s_, count_); }

private:
    void predict(const Array& control, int first, int count);
    void update(const Array& measurements, int first, int count);

    int count_;
    Matrix<Element, states, states> transition_ = kalman::transition<Element>();
    Matrix<Element, states, states> processNoise_ = kalman::processNoise<Element>();
    Matrix<Element, states, seen> selection_{};  // H transposed: 1 above 0

    Array x_, p_, r_;  // estimates, their covariances, those of the measurements
    Array y_, s_;      // innovations and their covariances
    // Of a group of filters: S decomposed, K, 1 - K H, and intermediate results.
    Array factors_, gain_, rest_, predicted_, correction_, product_, block_;
    std::vector<int> pivots_;
};

extern template class Bank<Packed<float>>;
extern template class Bank<Packed<double>>;
extern template class Bank<StructureOfArrays<float>>;
extern template class Bank<StructureOfArrays<double>>;

}  // namespace kalman
