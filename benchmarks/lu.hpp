// LU decomposition and substitution, against Eigen (fixed-size, object by object), LAPACK and the loop
// a user would write with the order known to the compiler. Everyone starts from packed objects that
// are to be kept; Eigen's and LAPACK's own decompositions are made before their solving is measured.
#pragma once

#include <lapacke.h>

#include <Eigen/LU>

#include "layouts.hpp"

namespace bench::lu {

inline lapack_int getrf(int n, float* a, int* rows) { return LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, n, n, a, n, rows); }
inline lapack_int getrf(int n, double* a, int* rows) { return LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, n, n, a, n, rows); }
inline lapack_int getrs(int n, int many, const float* a, const int* rows, float* x)
{
    return LAPACKE_sgetrs_work(LAPACK_COL_MAJOR, 'N', n, many, a, n, rows, x, n);
}
inline lapack_int getrs(int n, int many, const double* a, const int* rows, double* x)
{
    return LAPACKE_dgetrs_work(LAPACK_COL_MAJOR, 'N', n, many, a, n, rows, x, n);
}

template <int n, class T>
[[gnu::noinline]] void plainDecomposition(const T* __restrict a, T* __restrict lu, int* __restrict rows)
{
    std::copy(a, a + n * n, lu);
    std::iota(rows, rows + n, 0);
    for (int k = 0; k < n; ++k) {
        int p = k;
        for (int i = k + 1; i < n; ++i)
            if (std::abs(lu[i * n + k]) > std::abs(lu[p * n + k])) p = i;
        if (lu[p * n + k] == 0) return;
        std::swap(rows[k], rows[p]);
        if (p != k)
            for (int c = 0; c < n; ++c) std::swap(lu[k * n + c], lu[p * n + c]);
        const T reciprocal = 1 / lu[k * n + k];
        for (int i = k + 1; i < n; ++i) {
            const T factor = lu[i * n + k] *= reciprocal;
            for (int c = k + 1; c < n; ++c) lu[i * n + c] -= factor * lu[k * n + c];
        }
    }
}
template <int n, class T>
[[gnu::noinline]] void plainSolution(const T* __restrict lu, const int* __restrict rows, const T* __restrict b,
                                     T* __restrict x, int count, bool ownMatrices)
{
    for (int object = 0; object < count; ++object, b += n, x += n) {
        for (int i = 0; i < n; ++i) {
            T value = b[rows[i]];
            for (int j = 0; j < i; ++j) value -= lu[i * n + j] * x[j];
            x[i] = value;
        }
        for (int i = n - 1; i >= 0; --i) {
            T value = x[i];
            for (int j = i + 1; j < n; ++j) value -= lu[i * n + j] * x[j];
            x[i] = value / lu[i * n + i];
        }
        if (ownMatrices) lu += n * n, rows += n;
    }
}

// Eigen's code takes long to compile: it stands once for each order, the same for all layouts.
template <int n, class T, int kept>
using Factors = Eigen::PartialPivLU<Eigen::Matrix<T, n, n, kept>>;
template <int n, class T>
using Decomposition = Factors<n, T, Eigen::RowMajor>;
template <int n, int kept, class T>
Factors<n, T, kept> eigenDecomposition(const T* a)
{
    return Factors<n, T, kept>(Eigen::Map<const Eigen::Matrix<T, n, n, kept>>(a));
}
template <int n, int kept, class T>
[[gnu::noinline]] void eigenDecompositions(const Array<T>& a, const Array<T>& lu, int* rows, int count, Layout layout)
{
    for (int object = 0; object < count; ++object) {
        const auto result = eigenDecomposition<n, kept>(a.at(object, layout));
        Eigen::Map<Eigen::Matrix<T, n, n, kept>>(lu.at(object, layout)) = result.matrixLU();
        Eigen::Map<Eigen::Vector<int, n>>(rows + object * n) = result.permutationP().indices();
    }
}
template <int n, class T>
[[gnu::noinline]] void eigenDecompositions(const T* packed, int count, std::vector<Decomposition<n, T>>& to)
{
    for (int object = 0; object < count; ++object)
        to.push_back(eigenDecomposition<n, Eigen::RowMajor>(packed + object * n * n));
}
template <int n, class T>
[[gnu::noinline]] void eigenSolution(const Decomposition<n, T>* lu, int step, const Array<T>& b, const Array<T>& x,
                                     int count, Layout layout)
{
    using Vector = Eigen::Vector<T, n>;
    for (int object = 0; object < count; ++object, lu += step)
        Eigen::Map<Vector>(x.at(object, layout)) = lu->solve(Eigen::Map<const Vector>(b.at(object, layout)));
}

template <class T>
double wantedDecomposition(int n)
{
    return sizeof(T) == 4 ? (n <= 6 ? 3 : 1.5) : (n <= 6 ? 2 : 1.2);
}
template <class T>
double wantedOfPlanes(int n)
{
    return n > 6 ? 1 : sizeof(T) == 4 ? 1.3 : 1.2;
}

template <int n, class T, Layout layout>
Task decomposition(auto members, int count)
{
    const Array<T> a(n, n, count, layout, 387), lu(n, n, count, layout, 621);
    int* const rows = Memory::region<int>(std::ptrdiff_t{count} * n);
    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = [=](const Array<T>& from, const Array<T>& to, auto as) {
        return std::tuple_cat(matrixArguments(from, as), std::tuple(rows), matrixArguments(to, as),
                              std::tuple(n, count));
    };
    if (addOurs<layout>(task, members, arguments(a, lu, LayoutOf<layout>{}), [&] {
            const Array<T> aPacked(n, n, count, Layout::packed, 1), luPacked(n, n, count, Layout::packed, 1);
            return arguments(aPacked, luPacked, LayoutOf<Layout::packed>{});
        }))
        return task;
    add("Eigen", [=] { eigenDecompositions<n, Eigen::ColMajor>(a, lu, rows, count, layout); });
    add("Eigen by rows", [=] { eigenDecompositions<n, Eigen::RowMajor>(a, lu, rows, count, layout); });
    add("LAPACK", [=] {
        for (int object = 0; object < count; ++object) {
            std::copy_n(a.at(object, layout), n * n, lu.at(object, layout));
            getrf(n, lu.at(object, layout), rows + object * n);
        }
    });
    add("plain loop", [=] {
        for (int object = 0; object < count; ++object)
            plainDecomposition<n>(a.at(object, layout), lu.at(object, layout), rows + object * n);
    });
    return task;
}

// With a matrix for each vector (mava), or one for all of them (mva).
template <int n, class T, Layout layout, bool ownMatrices>
Task solution(auto members, int count)
{
    const int matrices = ownMatrices ? count : 1;
    const Array<T> a(n, n, matrices, layout, 387), b(1, n, count, layout, 621), x(1, n, count, layout, 783);
    const Array<T> lu(n, n, matrices, Layout::packed, 1);
    int* const rows = Memory::region<int>(std::ptrdiff_t{matrices} * n);
    auto decompositions = std::make_shared<std::vector<Decomposition<n, T>>>();
    eigenDecompositions<n>(a.data, matrices, *decompositions);
    for (int object = 0; object < matrices; ++object) {
        plainDecomposition<n>(a.data + object * n * n, lu.data + object * n * n, rows + object * n);
    }
    // Ours keep their rows where the source had them.
    for (int object = 0; object < matrices; ++object)
        for (int k = 0; k < n; ++k)
            for (int c = 0; c < n; ++c) {
                const int to = rows[object * n + k] * n + c;
                (layout == Layout::planes ? a.table[to][object] : a.at(object, layout)[to]) =
                    lu.data[(object * n + k) * n + c];
            }

    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = [=](const Array<T>& m, const Array<T>& from, const Array<T>& to, auto as) {
        const auto vectors =
            std::tuple_cat(std::tuple(rows), vectorArguments(from, as), vectorArguments(to, as), std::tuple(n, count));
        if constexpr (ownMatrices)
            return std::tuple_cat(matrixArguments(m, as), vectors);
        else
            return std::tuple_cat(commonArguments(m, as), vectors);
    };
    if (addOurs<layout>(task, members, arguments(a, b, x, LayoutOf<layout>{}), [&] {
            const Array<T> aPacked(n, n, matrices, Layout::packed, 1), bPacked(1, n, count, Layout::packed, 1),
                xPacked(1, n, count, Layout::packed, 1);
            return arguments(aPacked, bPacked, xPacked, LayoutOf<Layout::packed>{});
        }))
        return task;
    add("Eigen", [=] { eigenSolution<n, T>(decompositions->data(), ownMatrices, b, x, count, layout); });
    // The same rows as the exchanges LAPACK makes one after the other.
    int* const exchanges = Memory::region<int>(std::ptrdiff_t{matrices} * n);
    for (int object = 0; object < matrices; ++object) {
        std::vector<int> order(n);
        std::iota(order.begin(), order.end(), 0);
        for (int k = 0; k < n; ++k) {
            const auto p = std::find(order.begin() + k, order.end(), rows[object * n + k]);
            exchanges[object * n + k] = static_cast<int>(p - order.begin()) + 1;
            std::swap(order[static_cast<std::size_t>(k)], *p);
        }
    }
    add("LAPACK", [=] {
        if (!ownMatrices && layout == Layout::packed) {
            std::copy_n(b.data, std::ptrdiff_t{count} * n, x.data);
            getrs(n, count, lu.data, exchanges, x.data);
            return;
        }
        for (int object = 0; object < count; ++object) {
            std::copy_n(b.at(object, layout), n, x.at(object, layout));
            const int own = ownMatrices ? object : 0;
            getrs(n, 1, lu.data + own * n * n, exchanges + own * n, x.at(object, layout));
        }
    });
    if constexpr (layout == Layout::packed) {
        add("plain loop", [=] { plainSolution<n>(lu.data, rows, b.data, x.data, count, ownMatrices); });
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
        constexpr double wantedPairs = n > 6 ? 1 : isFloat ? 1.6 : 1.2;
        constexpr double wantedVectors = n == 4 || n == 6 ? (isFloat ? 5 : 4) : 1;
        const auto add = [&](auto members, double wanted, auto taskOf) {
            addInLayouts<T>(s, members.name, n, n, {wanted, wantedOfPlanes<T>(n), n <= 6}, taskOf);
        };
        add(decompose, wantedDecomposition<T>(n),
            [=](auto layout, int count) { return decomposition<n, T, layout()>(decompose, count); });
        add(solvePairs, wantedPairs,
            [=](auto layout, int count) { return solution<n, T, layout(), true>(solvePairs, count); });
        add(solveVectors, wantedVectors,
            [=](auto layout, int count) { return solution<n, T, layout(), false>(solveVectors, count); });
    }());
}

// Each element type in its own file.
void addAll32f(LayoutSections& s);
void addAll64f(LayoutSections& s);

}  // namespace bench::lu
