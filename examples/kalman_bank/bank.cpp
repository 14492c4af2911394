// The Kalman filter, in calls that do one step of it for the whole bank.
//
// A measurement is the first half of a state, H = (1 0). So nothing is ever multiplied by H: H x is the first three
// elements of x, H P the upper three rows of P, P H^T its left three columns, and H P H^T its upper left block.
#include "kalman_bank/bank.hpp"

#include <algorithm>

#include "kalman_bank/members.hpp"

namespace kalman {
namespace {

// So many filters go through a whole step before the next ones do, that what a call leaves is still in the cache for
// the next call.
constexpr int group = 512;

}  // namespace

template <class Layout>
Bank<Layout>::Bank(const Start& start)
    : count_(start.count()),
      x_(arrayOf<Layout>(1, states, start.guesses)),
      p_(states, states, count_),
      r_(arrayOf<Layout>(seen, seen, start.measurementNoise)),
      y_(1, seen, count_),
      s_(seen, seen, count_),
      factors_(seen, seen, group),
      gain_(states, seen, group),
      rest_(states, states, group),
      predicted_(1, states, group),
      correction_(1, states, group),
      product_(states, states, group),
      block_(seen, seen, group),
      pivots_(static_cast<std::size_t>(seen * group))
{
    for (std::size_t i = 0; i < seen; ++i) selection_[seen * i + i] = 1;
    for (int i = 0; i < states; ++i) {
        const double sd = i < seen ? start.positionSd : start.velocitySd;
        for (int n = 0; n < count_; ++n) p_.at(n, i * states + i) = static_cast<Element>(sd * sd);
        for (int n = 0; n < group; ++n) rest_.at(n, i * states + i) = 1;  // the right half stays so
    }
}

template <class Layout>
void Bank<Layout>::step(const Array& control, const Array& measurements)
{
    for (int first = 0; first < count_; first += group) {
        const int count = std::min(group, count_ - first);
        predict(control, first, count);
        update(measurements, first, count);
    }
}

// x = F x + G a, P = F P F^T + Q.
template <class Layout>
void Bank<Layout>::predict(const Array& control, int first, int count)
{
    using M = Members<Layout>;
    const auto f = Layout::common(transition_.data(), states, states);
    const auto q = Layout::common(processNoise_.data(), states, states);
    const auto p = p_.matrices(first), product = product_.matrices(0);

    M::vormGaxpy_mva(f, states, states, x_.vectors(first), states, control.vectors(first), states,
                     predicted_.vectors(0), count);
    M::vormMul_mma(f, states, states, p, states, states, product, count);
    M::vormMul_mat(product, states, states, f, states, states, p, count);
    M::vormAdd_mam(p, q, p, states, states, count);
}

template <class Layout>
void Bank<Layout>::update(const Array& measurements, int first, int count)
{
    using M = Members<Layout>;
    const auto p = p_.matrices(first), r = r_.matrices(first), s = s_.matrices(first);
    const auto rest = rest_.matrices(0), product = product_.matrices(0);

    // y = z - H x, S = H P H^T + R.
    const auto y = y_.vectors(first);
    M::vormSub_vava(measurements.vectors(first), predicted_.stretch(0, 0, seen), y, seen, count);
    M::vormAdd_mama(p_.block(first, 0, 0, seen, seen), r, s, seen, seen, count);

    // K = P H^T S^-1. As S is symmetric, row i of K is the solution k of S k = row i of P H^T: S is decomposed
    // once, and no inverse is formed.
    const auto factors = factors_.matrices(0);
    M::vormLUDecomp_ma(s, pivots_.data(), factors, seen, count);
    for (int i = 0; i < states; ++i)
        M::vormLUBackSubst_mava(factors, pivots_.data(), p_.stretch(first, i * states, seen),
                                gain_.stretch(0, i * seen, seen), seen, count);

    // x = x + K y. Orders 3 to 6 have the fastest products, so K is taken in its two blocks of order 3.
    const auto gain = [this](int half) { return gain_.block(0, half * seen, 0, seen, seen); };
    for (const int half : {0, 1})
        M::vormMul_mava(gain(half), seen, seen, y, seen, correction_.stretch(0, half * seen, seen), count);
    M::vormAdd_vava(predicted_.vectors(0), correction_.vectors(0), x_.vectors(first), states, count);

    // P = (1 - K H) P (1 - K H)^T + K R K^T, Joseph's form: a sum of two matrices that have no negative eigenvalues.
    // The short form, (1 - K H) P, is a difference of nearly equal ones where P is much larger than R.
    M::vormSub_mma(Layout::common(selection_.data(), states, seen), gain_.matrices(0),
                   rest_.block(0, 0, 0, states, seen), seen, states, count);
    M::vormMul_mama(rest, states, states, p, states, states, product, count);
    M::vormMul_mata(product, states, states, rest, states, states, p, count);
    const auto block = block_.matrices(0);
    for (const int row : {0, 1}) {
        M::vormMul_mama(gain(row), seen, seen, r, seen, seen, block, count);
        for (const int column : {0, 1})
            M::vormMul_mata(block, seen, seen, gain(column), seen, seen,
                            product_.block(0, row * seen, column * seen, seen, seen), count);
    }
    M::vormAdd_mama(p, product, p, states, states, count);
}

template class Bank<Packed<float>>;
template class Bank<Packed<double>>;
template class Bank<StructureOfArrays<float>>;
template class Bank<StructureOfArrays<double>>;

}  // namespace kalman
