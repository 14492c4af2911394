// Eigenvalues of general matrices, against Eigen (EigenSolver of a fixed size, values only) and LAPACK (geev). The
// elements are drawn between -1 and 1.
#pragma once

#include <Eigen/Eigenvalues>
#include <algorithm>

#include "lu.hpp"

namespace bench::eigenvalues {

inline lapack_int geev(int n, float* a, float* re, float* im, float* work, int size)
{
    return LAPACKE_sgeev_work(LAPACK_COL_MAJOR, 'N', 'N', n, a, n, re, im, nullptr, 1, nullptr, 1, work, size);
}
inline lapack_int geev(int n, double* a, double* re, double* im, double* work, int size)
{
    return LAPACKE_dgeev_work(LAPACK_COL_MAJOR, 'N', 'N', n, a, n, re, im, nullptr, 1, nullptr, 1, work, size);
}

template <int n, class T>
[[gnu::noinline]] void eigenValues(const Array<T>& a, T* re, T* im, int count, Layout layout)
{
    using Matrix = Eigen::Matrix<T, n, n>;
    for (int object = 0; object < count; ++object) {
        const Eigen::EigenSolver<Matrix> solver(Eigen::Map<const Matrix>(a.at(object, layout)), false);
        for (int k = 0; k < n; ++k) {
            re[object * n + k] = solver.eigenvalues()[k].real();
            im[object * n + k] = solver.eigenvalues()[k].imag();
        }
    }
}

template <int n, class T, Layout layout>
Task values(auto members, int count)
{
    const Array<T> a(n, n, count, layout, 387);
    T *const re = Memory::region<T>(count * n), *const im = Memory::region<T>(count * n);
    T* const buffer = Memory::region<T>(n * (n + 5));
    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto rest = std::tuple(re, im, n, count, buffer);
    const auto all = std::tuple_cat(matrixArguments(a, LayoutOf<layout>{}), rest);
    if constexpr (layout == Layout::packed) add("vorm", [=] { std::apply(members.standard, all); });
    if constexpr (layout == Layout::planes) {
        add("vorm", [=] { std::apply(members.pointers, all); });
        const Array<T> packed(n, n, count, Layout::packed, 1);
        add("vorm, standard layout", [=, all = std::tuple_cat(matrixArguments(packed, LayoutOf<Layout::packed>{}),
                                                              rest)] { std::apply(members.standard, all); });
        return task;
    }
    add("Eigen", [=] { eigenValues<n>(a, re, im, count, layout); });
    add("LAPACK", [=] {
        T work[n * n], more[32 * n];
        for (int object = 0; object < count; ++object) {
            std::copy_n(a.at(object, layout), n * n, work);
            geev(n, work, re + object * n, im + object * n, more, 32 * n);
        }
    });
    return task;
}

template <class T>
double wanted(int n)
{
    const bool isSingle = sizeof(T) == 4;
    return n == 2 ? 1 : n <= 4 ? (isSingle ? 2 : 1.5) : (isSingle ? 1.5 : 1.3);
}

struct ValueSections {
    Section &resident, &planes;
};

template <class T, int... n>
void addOrders(ValueSections& s, auto members)
{
    (..., [&] {
        const auto add = [&](Section& section, double ratio, auto layout) {
            section.rows.push_back({std::string(members.name) + " " + std::to_string(n) + "x" + std::to_string(n),
                                    residentObjects, [=] { return values<n, T, layout()>(members, residentObjects); },
                                    ratio});
        };
        add(s.resident, wanted<T>(n), LayoutOf<Layout::packed>{});
        add(s.planes, 0, LayoutOf<Layout::planes>{});
    }());
}

// Each element type in its own file.
void addAll32f(ValueSections& s);
void addAll64f(ValueSections& s);

}  // namespace bench::eigenvalues
