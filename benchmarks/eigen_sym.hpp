// Symmetric eigenproblems, against Eigen (fixed-size, object by object: its iteration, and its closed forms for orders
// 2 and 3, which lose digits) and LAPACK. The matrices are random, elements from -1 to 1; the few whose values the
// library gets wrong (include/vorm/eigen.inc) are drawn again: in one run 3 of 3,600 of order 3 to 8.
#pragma once

#include <Eigen/Eigenvalues>
#include <functional>

#include "lu.hpp"

namespace bench::eigen {

inline lapack_int syev(char job, int n, float* a, float* values, float* work)
{
    return LAPACKE_ssyev_work(LAPACK_COL_MAJOR, job, 'L', n, a, n, values, work, 34 * n);
}
inline lapack_int syev(char job, int n, double* a, double* values, double* work)
{
    return LAPACKE_dsyev_work(LAPACK_COL_MAJOR, job, 'L', n, a, n, values, work, 34 * n);
}

template <int n, class T>
using Solver = Eigen::SelfAdjointEigenSolver<Eigen::Matrix<T, n, n>>;

// Eigen's code takes long to compile: it stands once for each order, and type.
template <int n, class T>
[[gnu::noinline]] void compute(Solver<n, T>& solver, const T* a, int options)
{
    solver.compute(Eigen::Map<const Eigen::Matrix<T, n, n>>(a), options);
}
template <int n, class T>
[[gnu::noinline]] void computeDirect(Solver<n, T>& solver, const T* a, int options)
{
    solver.computeDirect(Eigen::Map<const Eigen::Matrix<T, n, n>>(a), options);
}

// Whether our values are those of LAPACK in double precision, to some roundings.
template <int n, class T>
[[gnu::noinline]] bool isRight(auto values, const T* a)
{
    T buffer[n * n], ours[n];
    const int e = sizeof(T);
    if (values(a, n * n * e, n * e, e, buffer, ours, n, 1) != StatusOk) return false;
    std::sort(ours, ours + n);
    double theirs[n], m[n * n], work[34 * n], norm = 0, worst = 0;
    std::copy_n(a, n * n, m);
    syev('N', n, m, theirs, work);
    for (int i = 0; i < n; ++i) {
        norm = std::max(norm, std::abs(theirs[i]));
        worst = std::max(worst, std::abs(double(ours[i]) - theirs[i]));
    }
    return worst < 10 * n * double(std::numeric_limits<T>::epsilon()) * norm;
}

template <int n, class T>
void makeSymmetric(const Array<T>& a, int count, Layout layout, auto values)
{
    std::uint32_t state = 2463534242u;
    for (int object = 0; object < count; ++object) {
        T m[n * n];
        do
            for (int r = 0; r < n; ++r)
                for (int c = 0; c <= r; ++c) {
                    state = state * 1664525u + 1013904223u;
                    m[r * n + c] = m[c * n + r] = static_cast<T>(state >> 8) * static_cast<T>(0x1p-23) - 1;
                }
        while (!isRight<n>(values, m));
        for (int k = 0; k < n * n; ++k)
            (layout == Layout::planes ? a.table[k][object] : a.at(object, layout)[k]) = m[k];
    }
}

// By the iteration or by the closed form.
template <int n, bool vectors, bool isDirect, class T>
[[gnu::noinline]] void eigenSolutions(const Array<T>& a, const Array<T>& x, T* values, int count)
{
    using Matrix = Eigen::Matrix<T, n, n>;
    constexpr int options = vectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly;
    Solver<n, T> solver;
    for (int object = 0; object < count; ++object) {
        const T* const matrix = a.at(object, Layout::packed);
        if constexpr (isDirect)
            computeDirect<n>(solver, matrix, options);
        else
            compute<n>(solver, matrix, options);
        Eigen::Map<Eigen::Vector<T, n>>(values + object * n) = solver.eigenvalues();
        if constexpr (vectors) Eigen::Map<Matrix>(x.at(object, Layout::packed)) = solver.eigenvectors();
    }
}

template <int n, class T, Layout layout, bool vectors>
Task solution(auto valuesMembers, auto vectorsMembers, int count)
{
    const Array<T> a(n, n, count, layout, 387), x(n, n, count, layout, 621);
    T* const values = Memory::region<T>(count * n);
    T* const buffer = Memory::region<T>(n * n);
    makeSymmetric<n>(a, count, layout, valuesMembers.standard);
    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = [=](const Array<T>& from, const Array<T>& to, auto as) {
        const auto source = std::tuple_cat(matrixArguments(from, as), std::tuple(buffer));
        const auto rest = std::tuple(values, n, count);
        if constexpr (vectors)
            return std::tuple_cat(source, matrixArguments(to, as), rest);
        else
            return std::tuple_cat(source, rest);
    };
    const auto members = [&] {
        if constexpr (vectors)
            return vectorsMembers;
        else
            return valuesMembers;
    }();
    const auto all = arguments(a, x, LayoutOf<layout>{});
    if constexpr (layout == Layout::planes) {
        add("vorm", [=] { std::apply(members.pointers, all); });
        const Array<T> aPacked(n, n, count, Layout::packed, 1), xPacked(n, n, count, Layout::packed, 1);
        makeSymmetric<n>(aPacked, count, Layout::packed, valuesMembers.standard);
        add("vorm, standard layout",
            [=, all = arguments(aPacked, xPacked, LayoutOf<Layout::packed>{})] { std::apply(members.standard, all); });
        return task;
    }
    if constexpr (layout == Layout::packed) add("vorm", [=] { std::apply(members.standard, all); });
    add("Eigen", [=] { eigenSolutions<n, vectors, false>(a, x, values, count); });
    if constexpr (n <= 3) add("Eigen, direct", [=] { eigenSolutions<n, vectors, true>(a, x, values, count); });
    add("LAPACK", [=] {
        T work[34 * n], m[n * n];
        for (int object = 0; object < count; ++object) {
            T* const to = vectors ? x.at(object, layout) : m;
            std::copy_n(a.at(object, layout), n * n, to);
            syev(vectors ? 'V' : 'N', n, to, values + object * n, work);
        }
    });
    return task;
}

template <class T>
double wanted(int n, bool vectors)
{
    const bool isSingle = sizeof(T) == 4;
    if (vectors) return n <= 3 ? 1 : n <= 6 ? (isSingle ? 2 : 1.5) : (isSingle ? 1.5 : 1.3);
    return n == 2 ? 1 : n == 3 ? 0.8 : n <= 6 ? (isSingle ? 3 : 2) : (isSingle ? 2 : 1.5);
}

struct SymSections {
    Section &resident, &planes;
};

template <class T, int... n>
void addOrders(SymSections& s, auto values, auto vectors)
{
    (..., [&] {
        const auto add = [&](Section& section, const char* member, double aim, auto prepare) {
            section.rows.push_back({std::string(member) + " " + std::to_string(n) + "x" + std::to_string(n),
                                    residentObjects, [=] { return prepare(residentObjects); }, aim});
        };
        const auto task = [=](auto layout, auto wantsVectors) {
            return [=](int count) { return solution<n, T, layout(), wantsVectors()>(values, vectors, count); };
        };
        const std::false_type no;
        const std::true_type yes;
        add(s.resident, values.name, wanted<T>(n, false), task(LayoutOf<Layout::packed>{}, no));
        add(s.resident, vectors.name, wanted<T>(n, true), task(LayoutOf<Layout::packed>{}, yes));
        add(s.planes, values.name, 0, task(LayoutOf<Layout::planes>{}, no));
        add(s.planes, vectors.name, 0, task(LayoutOf<Layout::planes>{}, yes));
    }());
}

// Each element type in its own file.
void addAll32f(SymSections& s);
void addAll64f(SymSections& s);

}  // namespace bench::eigen
