// The Kalman filter, in calls that do one step of it for the whole bank.
//
// A measurement is the first half of a state, H = (1 0). So nothing is ever multiplied by H: H x is the first three
// elements of x, H P the upper three rows of P, P H^T its left three columns, and H P H^T its upper left block.
#include "kalman_bank/bank.hpp"

#include <algorithm>

#include "common/stages.hpp"

using examples::expectOk;

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
    const auto f = Layout::common(transition_.data(), states, states);
    const auto q = Layout::common(processNoise_.data(), states, states);

    expectOk(
        call(Layout::pick(vormGaxpy_mva_32f, vormGaxpy_mva_64f, vormGaxpy_mva_32f_P, vormGaxpy_mva_64f_P), f, states,
             states, x_.vectors(first), states, control.vectors(first), states, predicted_.vectors(0), count),
        "vormGaxpy_mva");
    expectOk(call(Layout::pick(vormMul_mma_32f, vormMul_mma_64f, vormMul_mma_32f_P, vormMul_mma_64f_P), f, states,
                  states, p_.matrices(first), states, states, product_.matrices(0), count),
             "vormMul_mma");
    expectOk(call(Layout::pick(vormMul_mat_32f, vormMul_mat_64f, vormMul_mat_32f_P, vormMul_mat_64f_P),
                  product_.matrices(0), states, states, f, states, states, p_.matrices(first), count),
             "vormMul_mat");
    expectOk(call(Layout::pick(vormAdd_mam_32f, vormAdd_mam_64f, vormAdd_mam_32f_P, vormAdd_mam_64f_P),
                  p_.matrices(first), q, p_.matrices(first), states, states, count),
             "vormAdd_mam");
}

template <class Layout>
void Bank<Layout>::update(const Array& measurements, int first, int count)
{
    // y = z - H x, S = H P H^T + R.
    expectOk(call(Layout::pick(vormSub_vava_32f, vormSub_vava_64f, vormSub_vava_32f_P, vormSub_vava_64f_P),
                  measurements.vectors(first), predicted_.stretch(0, 0, seen), y_.vectors(first), seen, count),
             "vormSub_vava");
    const auto sum = Layout::pick(vormAdd_mama_32f, vormAdd_mama_64f, vormAdd_mama_32f_P, vormAdd_mama_64f_P);
    expectOk(call(sum, p_.block(first, 0, 0, seen, seen), r_.matrices(first), s_.matrices(first), seen, seen, count),
             "vormAdd_mama");

    // K = P H^T S^-1. As S is symmetric, row i of K is the solution k of S k = row i of P H^T: S is decomposed
    // once, and no inverse is formed.
    expectOk(call(Layout::pick(vormLUDecomp_ma_32f, vormLUDecomp_ma_64f, vormLUDecomp_ma_32f_P, vormLUDecomp_ma_64f_P),
                  s_.matrices(first), pivots_.data(), factors_.matrices(0), seen, count),
             "vormLUDecomp_ma");
    for (int i = 0; i < states; ++i)
        expectOk(call(Layout::pick(vormLUBackSubst_mava_32f, vormLUBackSubst_mava_64f, vormLUBackSubst_mava_32f_P,
                                   vormLUBackSubst_mava_64f_P),
                      factors_.matrices(0), pivots_.data(), p_.stretch(first, i * states, seen),
                      gain_.stretch(0, i * seen, seen), seen, count),
                 "vormLUBackSubst_mava");

    // x = x + K y. Orders 3 to 6 have the fastest products, so K is taken in its two blocks of order 3.
    const auto gain = [this](int half) { return gain_.block(0, half * seen, 0, seen, seen); };
    for (const int half : {0, 1})
        expectOk(
            call(Layout::pick(vormMul_mava_32f, vormMul_mava_64f, vormMul_mava_32f_P, vormMul_mava_64f_P), gain(half),
                 seen, seen, y_.vectors(first), seen, correction_.stretch(0, half * seen, seen), count),
            "vormMul_mava");
    expectOk(call(Layout::pick(vormAdd_vava_32f, vormAdd_vava_64f, vormAdd_vava_32f_P, vormAdd_vava_64f_P),
                  predicted_.vectors(0), correction_.vectors(0), x_.vectors(first), states, count),
             "vormAdd_vava");

    // P = (1 - K H) P (1 - K H)^T + K R K^T, Joseph's form: a sum of two matrices that have no negative eigenvalues.
    // The short form, (1 - K H) P, is a difference of nearly equal ones where P is much larger than R.
    expectOk(call(Layout::pick(vormSub_mma_32f, vormSub_mma_64f, vormSub_mma_32f_P, vormSub_mma_64f_P),
                  Layout::common(selection_.data(), states, seen), gain_.matrices(0),
                  rest_.block(0, 0, 0, states, seen), seen, states, count),
             "vormSub_mma");
    const auto multiply = Layout::pick(vormMul_mama_32f, vormMul_mama_64f, vormMul_mama_32f_P, vormMul_mama_64f_P);
    const auto multiplyTransposed =
        Layout::pick(vormMul_mata_32f, vormMul_mata_64f, vormMul_mata_32f_P, vormMul_mata_64f_P);
    expectOk(call(multiply, rest_.matrices(0), states, states, p_.matrices(first), states, states, product_.matrices(0),
                  count),
             "vormMul_mama");
    expectOk(call(multiplyTransposed, product_.matrices(0), states, states, rest_.matrices(0), states, states,
                  p_.matrices(first), count),
             "vormMul_mata");
    for (const int row : {0, 1}) {
        expectOk(call(multiply, gain(row), seen, seen, r_.matrices(first), seen, seen, block_.matrices(0), count),
                 "vormMul_mama");
        for (const int column : {0, 1})
            expectOk(call(multiplyTransposed, block_.matrices(0), seen, seen, gain(column), seen, seen,
                          product_.block(0, row * seen, column * seen, seen, seen), count),
                     "vormMul_mata");
    }
    expectOk(call(sum, p_.matrices(first), product_.matrices(0), p_.matrices(first), states, states, count),
             "vormAdd_mama");
}

template class Bank<Packed<float>>;
template class Bank<Packed<double>>;
template class Bank<StructureOfArrays<float>>;
template class Bank<StructureOfArrays<double>>;

}  // namespace kalman
