// The filter as one would write it with Eigen for a single track, and an array of such objects.
#include "kalman_bank/eigen_bank.hpp"

#include <Eigen/LU>
#include <string>
#include <type_traits>

#include "common/stages.hpp"

namespace kalman {
namespace {

template <class T>
using State = Eigen::Matrix<T, states, 1>;
template <class T>
using StateMatrix = Eigen::Matrix<T, states, states>;
template <class T>
using Measurement = Eigen::Matrix<T, seen, 1>;
template <class T>
using MeasurementMatrix = Eigen::Matrix<T, seen, seen>;

template <class T>
class Filter {
public:
    Filter(const State<T>& guess, const StateMatrix<T>& covariance, const MeasurementMatrix<T>& noise)
        : x_(guess), p_(covariance), r_(noise)
    {
    }

    void predict(const StateMatrix<T>& f, const StateMatrix<T>& q, const State<T>& control)
    {
        x_ = f * x_ + control;
        p_ = f * p_ * f.transpose() + q;
    }

    void update(const Measurement<T>& z)
    {
        // Eigen's inverse of this order is a closed form, and several times as fast as its decompositions.
        const MeasurementMatrix<T> s = p_.template topLeftCorner<seen, seen>() + r_;
        const Eigen::Matrix<T, states, seen> gain = p_.template leftCols<seen>() * s.inverse();
        x_ += gain * (z - x_.template head<seen>());
        StateMatrix<T> rest = StateMatrix<T>::Identity();
        rest.template leftCols<seen>() -= gain;
        p_ = rest * p_ * rest.transpose() + gain * r_ * gain.transpose();
    }

    const State<T>& estimate() const { return x_; }

private:
    State<T> x_;
    StateMatrix<T> p_;
    MeasurementMatrix<T> r_;
};

// Object n of an array of packed vectors or matrices.
template <class Object, class T>
auto objectAt(const std::vector<T>& packed, std::size_t n)
{
    return Eigen::Map<const Object>(&packed[n * Object::SizeAtCompileTime]);
}

// F and Q are in row order.
template <class T>
StateMatrix<T> fromRows(const Matrix<T, states, states>& rows)
{
    return Eigen::Map<const Eigen::Matrix<T, states, states, Eigen::RowMajor>>(rows.data());
}

}  // namespace

template <class T>
EigenResult followedWithEigen(const Start& start, const Flight& flight)
{
    StateMatrix<T> covariance = StateMatrix<T>::Zero();
    for (int i = 0; i < states; ++i) {
        const double sd = i < seen ? start.positionSd : start.velocitySd;
        covariance(i, i) = static_cast<T>(sd * sd);
    }
    const auto count = static_cast<std::size_t>(start.count());
    std::vector<Filter<T>> filters;
    for (std::size_t n = 0; n < count; ++n)
        filters.emplace_back(objectAt<State<double>>(start.guesses, n).template cast<T>(), covariance,
                             objectAt<MeasurementMatrix<double>>(start.measurementNoise, n).template cast<T>());

    const StateMatrix<T> f = fromRows(transition<T>()), q = fromRows(processNoise<T>());
    std::vector<T> controls, measurements;
    const auto step = [&] {
        for (std::size_t n = 0; n < count; ++n) {
            filters[n].predict(f, q, objectAt<State<T>>(controls, n));
            filters[n].update(objectAt<Measurement<T>>(measurements, n));
        }
    };
    for (std::size_t k = 0; k < flight.controls.size(); ++k) {
        controls.assign(flight.controls[k].begin(), flight.controls[k].end());
        measurements.assign(flight.measurements[k].begin(), flight.measurements[k].end());
        step();
    }

    EigenResult result;
    for (const Filter<T>& filter : filters)
        for (const T element : filter.estimate()) result.estimates.push_back(static_cast<double>(element));
    const std::string what = std::string(typeName<T>()) + "  Eigen, one object after the other";
    result.nanoseconds = examples::timed(what.c_str(), start.count(), {1}, step);
    return result;
}

template EigenResult followedWithEigen<float>(const Start&, const Flight&);
template EigenResult followedWithEigen<double>(const Start&, const Flight&);

}  // namespace kalman
