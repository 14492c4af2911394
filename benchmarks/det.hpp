// Determinants and inverses, against Eigen (fixed-size, object by object) and LAPACK.
#pragma once

#include "lu.hpp"

namespace bench::det {

inline lapack_int getri(int n, float* a, const int* rows, float* work)
{
    return LAPACKE_sgetri_work(LAPACK_COL_MAJOR, n, a, n, rows, work, 16 * n);
}
inline lapack_int getri(int n, double* a, const int* rows, double* work)
{
    return LAPACKE_dgetri_work(LAPACK_COL_MAJOR, n, a, n, rows, work, 16 * n);
}

template <int n, class T>
[[gnu::noinline]] void eigenDeterminants(const Array<T>& a, T* dst, int count, Layout layout)
{
    using Matrix = Eigen::Matrix<T, n, n>;
    for (int object = 0; object < count; ++object)
        dst[object] = Eigen::Map<const Matrix>(a.at(object, layout)).determinant();
}
template <int n, class T>
[[gnu::noinline]] void eigenInverses(const Array<T>& a, const Array<T>& x, int count, Layout layout)
{
    using Matrix = Eigen::Matrix<T, n, n>;
    for (int object = 0; object < count; ++object)
        Eigen::Map<Matrix>(x.at(object, layout)) = Eigen::Map<const Matrix>(a.at(object, layout)).inverse();
}

template <int n, class T, Layout layout>
Task determinant(auto members, int count)
{
    const Array<T> a(n, n, count, layout, 387);
    T* const dst = Memory::region<T>(count);
    T* const buffer = Memory::region<T>(n * (n + 1));
    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto rest = std::tuple(n, buffer, dst, count);
    const auto all = std::tuple_cat(matrixArguments(a, LayoutOf<layout>{}), rest);
    if (addOurs<layout>(task, members, all, [&] {
            const Array<T> packed(n, n, count, Layout::packed, 1);
            return std::tuple_cat(matrixArguments(packed, LayoutOf<Layout::packed>{}), rest);
        }))
        return task;
    add("Eigen", [=] { eigenDeterminants<n>(a, dst, count, layout); });
    add("LAPACK", [=] {
        T work[n * n];
        int rows[n];
        for (int object = 0; object < count; ++object) {
            std::copy_n(a.at(object, layout), n * n, work);
            lu::getrf(n, work, rows);
            T product = 1;
            for (int k = 0; k < n; ++k) product *= rows[k] == k + 1 ? work[k * n + k] : -work[k * n + k];
            dst[object] = product;
        }
    });
    return task;
}

template <int n, class T, Layout layout>
Task inverse(auto members, int count)
{
    const Array<T> a(n, n, count, layout, 387), x(n, n, count, layout, 621);
    T* const buffer = Memory::region<T>(n * (n + 1));
    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = [=](const Array<T>& from, const Array<T>& to, auto as) {
        return std::tuple_cat(matrixArguments(from, as), std::tuple(buffer), matrixArguments(to, as),
                              std::tuple(n, count));
    };
    if (addOurs<layout>(task, members, arguments(a, x, LayoutOf<layout>{}), [&] {
            const Array<T> aPacked(n, n, count, Layout::packed, 1), xPacked(n, n, count, Layout::packed, 1);
            return arguments(aPacked, xPacked, LayoutOf<Layout::packed>{});
        }))
        return task;
    add("Eigen", [=] { eigenInverses<n>(a, x, count, layout); });
    add("LAPACK", [=] {
        T work[16 * n];
        int rows[n];
        for (int object = 0; object < count; ++object) {
            T* const to = x.at(object, layout);
            std::copy_n(a.at(object, layout), n * n, to);
            lu::getrf(n, to, rows);
            getri(n, to, rows, work);
        }
    });
    return task;
}

template <class T>
double wantedDeterminant(int n)
{
    const bool isSingle = sizeof(T) == 4;
    return n <= 4 ? (isSingle ? 1.2 : 1.1) : n <= 6 ? (isSingle ? 6 : 3) : 1;
}
template <class T>
double wantedInverse(int n)
{
    const bool isSingle = sizeof(T) == 4;
    return n == 3   ? (isSingle ? 1.5 : 1.1)
           : n < 6  ? (isSingle ? 1.2 : 1.1)
           : n == 6 ? (isSingle ? 4 : 2)
           : n == 8 ? (isSingle ? 1.5 : 1.2)
                    : 1;
}

template <class T, int... n>
void addOrders(LayoutSections& s, auto determinants, auto inverses)
{
    (..., [&] {
        constexpr double wantedOfPlanes = n > 6 ? 0 : sizeof(T) == 4 ? 1.3 : 1.1;
        const auto add = [&](auto members, double wanted, auto taskOf) {
            addInLayouts<T>(s, members.name, n, n, {wanted, wantedOfPlanes, n <= 6}, taskOf);
        };
        add(determinants, wantedDeterminant<T>(n),
            [=](auto layout, int count) { return determinant<n, T, layout()>(determinants, count); });
        add(inverses, wantedInverse<T>(n),
            [=](auto layout, int count) { return inverse<n, T, layout()>(inverses, count); });
    }());
}

// Each element type in its own file.
void addAll32f(LayoutSections& s);
void addAll64f(LayoutSections& s);

}  // namespace bench::det
