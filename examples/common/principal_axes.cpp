// The principal axes of 3x3 covariances: symmetric eigenproblems, scaled, shifted, and checked.
#include "common/principal_axes.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <type_traits>

namespace examples {
namespace {

// The function for T out of those for float and double.
template <class T, class Single, class Double>
constexpr auto of(Single single, Double full)
{
    if constexpr (std::is_same_v<T, float>)
        return single;
    else
        return full;
}

// A turn about no axis of symmetry that anything is likely to have.
template <class T>
constexpr T turn[9] = {T(-2) / 3, T(2) / 15, T(11) / 15, T(2) / 3, T(-1) / 3,
                       T(2) / 3,  T(1) / 3,  T(14) / 15, T(2) / 15};

// The sum of the values is the trace, and each vector v with its value has C v = value v. What is right misses that by
// some tens of epsilons, as no value is larger than 2; NaNs do not fit.
template <class T>
bool fits(const T* matrix, const T* vectors, const T* values)
{
    constexpr T bound = 64 * std::numeric_limits<T>::epsilon();
    T sums = 0;
    for (int i = 0; i < 3; ++i) sums += matrix[4 * i] - values[i];
    bool good = std::abs(sums) <= bound;
    for (int k = 0; k < 3; ++k) {
        const T* const v = vectors + 3 * k;
        for (int i = 0; i < 3; ++i) {
            const T* const row = matrix + 3 * i;
            good = good && std::abs(row[0] * v[0] + row[1] * v[1] + row[2] * v[2] - values[k] * v[i]) <= bound;
        }
    }
    return good;
}

// One object by itself, turned once more each time that its values are wrong: R C R^T has the values of C, and its
// vectors, as rows, times R are those of C. The result is how often it was turned.
template <class T>
int solveAlone(const T* matrix, T* vectors, T* values)
{
    constexpr int element = sizeof(T), row3 = 3 * element;
    T turned[9], product[9], buffer[9];
    std::copy_n(matrix, 9, turned);
    for (int turns = 0; turns < 8; ++turns) {
        const VormStatus status = of<T>(vormEigenValuesVectorsSym_m_32f, vormEigenValuesVectorsSym_m_64f)(
            turned, row3, element, buffer, vectors, element, row3, values, 3);
        if (status == StatusOk && fits(turned, vectors, values)) {
            for (int k = 0; k < turns; ++k) {
                expectOk(of<T>(vormMul_mm_32f, vormMul_mm_64f)(vectors, row3, element, 3, 3, turn<T>, row3, element, 3,
                                                               3, product, row3, element),
                         "vormMul_mm");
                std::copy_n(product, 9, vectors);
            }
            return turns;
        }
        expectOk(of<T>(vormMul_mm_32f, vormMul_mm_64f)(turn<T>, row3, element, 3, 3, turned, row3, element, 3, 3,
                                                       product, row3, element),
                 "vormMul_mm");
        expectOk(of<T>(vormMul_mt_32f, vormMul_mt_64f)(product, row3, element, 3, 3, turn<T>, row3, element, 3, 3,
                                                       turned, row3, element),
                 "vormMul_mt");
    }
    throw std::runtime_error("a covariance has no eigenvalues");
}

}  // namespace

// The tolerances of the library are epsilons, whatever the size of a matrix, and an array ends at the first object
// whose eigenvalues have a product within one. Covariances may be as small as they like, and those of points in a plane
// have a value of zero: so each is divided by its trace, and gets the identity added. That leaves the vectors as they
// are and adds 1 to the values, which are then between 1 and 2.
template <class T>
PrincipalAxes<T> principalAxes(const std::vector<T>& covariances, Stage stage)
{
    constexpr int element = sizeof(T), row3 = 3 * element, matrix3 = 3 * row3;
    const std::size_t objects = covariances.size() / 9;
    const int count = static_cast<int>(objects);
    std::vector<T> factors(objects), scaled(covariances.size()), shifted(covariances.size()), buffer(9);
    expectOk(
        of<T>(vormTrace_ma_32f, vormTrace_ma_64f)(covariances.data(), matrix3, row3, element, factors.data(), 3, count),
        "vormTrace_ma");
    for (T& factor : factors) factor = std::isfinite(1 / factor) ? 1 / factor : 0;
    // A packed matrix is a vector of nine, too.
    expectOk(of<T>(vormMul_vaca_32f, vormMul_vaca_64f)(covariances.data(), matrix3, element, factors.data(), element,
                                                       scaled.data(), matrix3, element, 9, count),
             "vormMul_vaca");
    const T identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    expectOk(of<T>(vormAdd_mam_32f, vormAdd_mam_64f)(scaled.data(), matrix3, row3, element, identity, row3, element,
                                                     shifted.data(), matrix3, row3, element, 3, 3, count),
             "vormAdd_mam");

    // The vectors are the columns: strides that are exchanged store them as rows.
    PrincipalAxes<T> axes{std::vector<T>(3 * objects), std::vector<T>(9 * objects)};
    const char* const what =
        of<T>("eigenvectors vormEigenValuesVectorsSym_ma_32f", "eigenvectors vormEigenValuesVectorsSym_ma_64f");
    stage(what, count, {1, 0}, [&] {
        std::fill(axes.shares.begin(), axes.shares.end(), std::numeric_limits<T>::quiet_NaN());
        // Whether a call failed, and which objects it came to before, the values tell.
        of<T>(vormEigenValuesVectorsSym_ma_32f, vormEigenValuesVectorsSym_ma_64f)(
            shifted.data(), matrix3, row3, element, buffer.data(), axes.vectors.data(), matrix3, element, row3,
            axes.shares.data(), 3, count);
    });
    for (std::size_t n = 0; n < objects; ++n) {
        const T* const matrix = &shifted[9 * n];
        T* const values = &axes.shares[3 * n];
        T* const vectors = &axes.vectors[9 * n];
        if (!fits(matrix, vectors, values)) axes.doneAgain += solveAlone(matrix, vectors, values) > 0;
        for (int i = 0; i < 3; ++i) values[i] = std::max(values[i] - 1, T(0));
    }
    return axes;
}

template PrincipalAxes<float> principalAxes(const std::vector<float>&, Stage);
template PrincipalAxes<double> principalAxes(const std::vector<double>&, Stage);

}  // namespace examples
