// Cholesky decomposition and substitution, against Eigen (fixed-size, object by object), LAPACK and the loop a user
// would write with the order known to the compiler. Everyone starts from packed objects that are to be kept; Eigen's
// and LAPACK's own decompositions are made before their solving is measured.
#pragma once

#include <lapacke.h>

#include <Eigen/Cholesky>

#include "layouts.hpp"

namespace bench::cholesky {

inline lapack_int potrf(int n, float* a) { return LAPACKE_spotrf_work(LAPACK_COL_MAJOR, 'U', n, a, n); }
inline lapack_int potrf(int n, double* a) { return LAPACKE_dpotrf_work(LAPACK_COL_MAJOR, 'U', n, a, n); }
inline lapack_int potrs(int n, int many, const float* a, float* x)
{
    return LAPACKE_spotrs_work(LAPACK_COL_MAJOR, 'U', n, many, a, n, x, n);
}
inline lapack_int potrs(int n, int many, const double* a, double* x)
{
    return LAPACKE_dpotrs_work(LAPACK_COL_MAJOR, 'U', n, many, a, n, x, n);
}

template <int n, class T>
[[gnu::noinline]] bool plainDecomposition(const T* __restrict a, T* __restrict l)
{
    for (int i = 0; i < n; ++i) {
        T t = a[i * n + i];
        for (int j = 0; j < i; ++j) {
            T value = a[i * n + j];
            for (int k = 0; k < j; ++k) value -= l[i * n + k] * l[j * n + k];
            value *= l[j * n + j];
            l[i * n + j] = value;
            t -= value * value;
        }
        if (t <= 0) return false;
        l[i * n + i] = 1 / std::sqrt(t);
    }
    return true;
}
template <int n, class T>
[[gnu::noinline]] void plainSolution(const T* __restrict l, const T* __restrict b, T* __restrict x, int count,
                                     bool ownMatrices)
{
    for (int object = 0; object < count; ++object, b += n, x += n) {
        for (int i = 0; i < n; ++i) {
            T value = b[i];
            for (int j = 0; j < i; ++j) value -= l[i * n + j] * x[j];
            x[i] = value * l[i * n + i];
        }
        for (int i = n - 1; i >= 0; --i) {
            T value = x[i];
            for (int j = i + 1; j < n; ++j) value -= l[j * n + i] * x[j];
            x[i] = value * l[i * n + i];
        }
        if (ownMatrices) l += n * n;
    }
}

// Eigen's code takes long to compile: it stands once for each order, the same for all layouts.
template <int n, class T, int kept = Eigen::ColMajor>
using Decomposition = Eigen::LLT<Eigen::Matrix<T, n, n, kept>>;
template <int n, int kept, class T>
Decomposition<n, T, kept> eigenDecomposition(const T* a)
{
    return Decomposition<n, T, kept>(Eigen::Map<const Eigen::Matrix<T, n, n, kept>>(a));
}
template <int n, int kept, class T>
[[gnu::noinline]] void eigenDecompositions(const Array<T>& a, const Array<T>& l, int count, Layout layout)
{
    for (int object = 0; object < count; ++object)
        Eigen::Map<Eigen::Matrix<T, n, n, kept>>(l.at(object, layout)) =
            eigenDecomposition<n, kept>(a.at(object, layout)).matrixLLT();
}
template <int n, class T>
[[gnu::noinline]] void eigenDecompositions(const T* packed, int count, std::vector<Decomposition<n, T>>& to)
{
    for (int object = 0; object < count; ++object)
        to.push_back(eigenDecomposition<n, Eigen::ColMajor>(packed + object * n * n));
}
template <int n, class T>
[[gnu::noinline]] void eigenSolution(const Decomposition<n, T>* llt, int step, const Array<T>& b, const Array<T>& x,
                                     int count, Layout layout)
{
    using Vector = Eigen::Vector<T, n>;
    for (int object = 0; object < count; ++object, llt += step)
        Eigen::Map<Vector>(x.at(object, layout)) = llt->solve(Eigen::Map<const Vector>(b.at(object, layout)));
}

// What fill leaves in an array, with a diagonal that makes it positive definite, and symmetric.
template <int n, class T>
void makeDefinite(const Array<T>& a, int count, Layout layout)
{
    const auto element = [&](int object, int k) -> T& {
        return layout == Layout::planes ? a.table[k][object] : a.at(object, layout)[k];
    };
    for (int object = 0; object < count; ++object)
        for (int r = 0; r < n; ++r) {
            element(object, r * n + r) += 2 * n;
            for (int c = r + 1; c < n; ++c) element(object, r * n + c) = element(object, c * n + r);
        }
}

template <int n, class T, Layout layout>
Task decomposition(auto members, int count)
{
    const Array<T> a(n, n, count, layout, 387), l(n, n, count, layout, 621);
    makeDefinite<n>(a, count, layout);
    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = [=](const Array<T>& from, const Array<T>& to, auto as) {
        return std::tuple_cat(matrixArguments(from, as), matrixArguments(to, as), std::tuple(n, count));
    };
    if (addOurs<layout>(task, members, arguments(a, l, LayoutOf<layout>{}), [&] {
            const Array<T> aPacked(n, n, count, Layout::packed, 1), lPacked(n, n, count, Layout::packed, 1);
            makeDefinite<n>(aPacked, count, Layout::packed);
            return arguments(aPacked, lPacked, LayoutOf<Layout::packed>{});
        }))
        return task;
    add("Eigen", [=] { eigenDecompositions<n, Eigen::ColMajor>(a, l, count, layout); });
    add("Eigen by rows", [=] { eigenDecompositions<n, Eigen::RowMajor>(a, l, count, layout); });
    add("LAPACK", [=] {
        for (int object = 0; object < count; ++object) {
            std::copy_n(a.at(object, layout), n * n, l.at(object, layout));
            potrf(n, l.at(object, layout));
        }
    });
    add("plain loop", [=] {
        for (int object = 0; object < count; ++object)
            plainDecomposition<n>(a.at(object, layout), l.at(object, layout));
    });
    return task;
}

// With a matrix for each vector (mava), or one for all of them (mva).
template <int n, class T, Layout layout, bool ownMatrices>
Task solution(auto members, int count)
{
    const int matrices = ownMatrices ? count : 1;
    const Array<T> a(n, n, matrices, layout, 387), b(1, n, count, layout, 621), x(1, n, count, layout, 783);
    const Array<T> packedA(n, n, matrices, Layout::packed, 1), l(n, n, matrices, Layout::packed, 1);
    makeDefinite<n>(packedA, matrices, Layout::packed);
    auto decompositions = std::make_shared<std::vector<Decomposition<n, T>>>();
    eigenDecompositions<n>(packedA.data, matrices, *decompositions);
    for (int object = 0; object < matrices; ++object) {
        const T* const matrix = packedA.data + object * n * n;
        plainDecomposition<n>(matrix, l.data + object * n * n);
        for (int k = 0; k < n * n; ++k)
            (layout == Layout::planes ? a.table[k][object] : a.at(object, layout)[k]) = l.data[object * n * n + k];
    }

    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = [=](const Array<T>& m, const Array<T>& from, const Array<T>& to, auto as) {
        const auto vectors = std::tuple_cat(vectorArguments(from, as), vectorArguments(to, as), std::tuple(n, count));
        if constexpr (ownMatrices)
            return std::tuple_cat(matrixArguments(m, as), vectors);
        else
            return std::tuple_cat(commonArguments(m, as), vectors);
    };
    if (addOurs<layout>(task, members, arguments(a, b, x, LayoutOf<layout>{}), [&] {
            const Array<T> bPacked(1, n, count, Layout::packed, 1), xPacked(1, n, count, Layout::packed, 1);
            return arguments(l, bPacked, xPacked, LayoutOf<Layout::packed>{});
        }))
        return task;
    add("Eigen", [=] { eigenSolution<n, T>(decompositions->data(), ownMatrices, b, x, count, layout); });
    // LAPACK has the true diagonal.
    const Array<T> theirs(n, n, matrices, Layout::packed, 1);
    for (int object = 0; object < matrices; ++object) {
        std::copy_n(packedA.data + object * n * n, n * n, theirs.data + object * n * n);
        potrf(n, theirs.data + object * n * n);
    }
    add("LAPACK", [=] {
        if (!ownMatrices && layout == Layout::packed) {
            std::copy_n(b.data, std::ptrdiff_t{count} * n, x.data);
            potrs(n, count, theirs.data, x.data);
            return;
        }
        for (int object = 0; object < count; ++object) {
            std::copy_n(b.at(object, layout), n, x.at(object, layout));
            potrs(n, 1, theirs.data + (ownMatrices ? object : 0) * n * n, x.at(object, layout));
        }
    });
    if constexpr (layout == Layout::packed) {
        add("plain loop", [=] { plainSolution<n>(l.data, b.data, x.data, count, ownMatrices); });
        if constexpr (!ownMatrices)
            add("Eigen, all at once", [=] {
                using Columns = Eigen::Matrix<T, n, Eigen::Dynamic>;
                Eigen::Map<Columns>(x.data, n, count) =
                    decompositions->front().solve(Eigen::Map<const Columns>(b.data, n, count));
            });
    }
    return task;
}

template <class T, int... n>
void addOrders(LayoutSections& s, auto decompose, auto solveVectors, auto solvePairs)
{
    (..., [&] {
        constexpr bool isFloat = sizeof(T) == 4;
        constexpr double wantedDecomposition = n > 6 ? (isFloat ? 1.2 : 1) : n == 3 || !isFloat ? 2 : 4;
        constexpr double wantedSolutions = n > 6 ? 1 : isFloat ? 4 : 3;
        constexpr double wantedPlanes = n > 6 ? 1 : isFloat ? 1.3 : 1.1;
        const auto add = [&](auto members, double wanted, auto taskOf) {
            addInLayouts<T>(s, members.name, n, n, {wanted, wantedPlanes}, taskOf);
        };
        add(decompose, wantedDecomposition,
            [=](auto layout, int count) { return decomposition<n, T, layout()>(decompose, count); });
        add(solvePairs, wantedSolutions,
            [=](auto layout, int count) { return solution<n, T, layout(), true>(solvePairs, count); });
        add(solveVectors, wantedSolutions,
            [=](auto layout, int count) { return solution<n, T, layout(), false>(solveVectors, count); });
    }());
}

// Each element type in its own file.
void addAll32f(LayoutSections& s);
void addAll64f(LayoutSections& s);

}  // namespace bench::cholesky
