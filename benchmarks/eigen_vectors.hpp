// Values and vectors of general matrices, against Eigen (fixed-size, object by object; left vectors are the right ones
// of the transpose) and LAPACK. Elements are random numbers of either sign.
#pragma once

#include <Eigen/Eigenvalues>
#include <complex>

#include "lu.hpp"

namespace bench::eigenvectors {

enum class Sides { right, left, both };

inline lapack_int geev(char left, char right, int n, float* a, float* re, float* im, float* l, float* r, float* work)
{
    return LAPACKE_sgeev_work(LAPACK_COL_MAJOR, left, right, n, a, n, re, im, l, n, r, n, work, 4096);
}
inline lapack_int geev(char left, char right, int n, double* a, double* re, double* im, double* l, double* r,
                       double* work)
{
    return LAPACKE_dgeev_work(LAPACK_COL_MAJOR, left, right, n, a, n, re, im, l, n, r, n, work, 4096);
}

// Eigen's code takes long to compile: it stands once for each order.
template <int n, class T>
[[gnu::noinline]] void eigenVectors(const T* a, std::complex<T>* values, std::complex<T>* vectors)
{
    const Eigen::EigenSolver<Eigen::Matrix<T, n, n>> solver{Eigen::Map<const Eigen::Matrix<T, n, n>>(a)};
    Eigen::Map<Eigen::Vector<std::complex<T>, n>>{values} = solver.eigenvalues();
    Eigen::Map<Eigen::Matrix<std::complex<T>, n, n>>{vectors} = solver.eigenvectors();
}

template <int n, class T, Layout layout, Sides sides>
Task vectorsOf(auto members, int count)
{
    const Array<T> a(n, n, count, layout, 387), right(n, n, count, layout, 621), left(n, n, count, layout, 783);
    for (int object = 0; object < count; ++object)
        for (int e = 0; e < n * n; ++e)
            (layout == Layout::planes ? a.table[e][object] : a.at(object, layout)[e]) -= T(1.25);
    T *const re = Memory::region<T>(std::ptrdiff_t{count} * n), *const im =
                                                                    Memory::region<T>(std::ptrdiff_t{count} * n);
    T *const buffer = Memory::region<T>(n * (3 * n + 5)), *const work = Memory::region<T>(4096 + n * n);
    auto* const complexes = Memory::region<std::complex<T>>(std::ptrdiff_t{count} * n * (n + 1));
    Task task;
    const auto add = [&](const char* name, auto body) { task.contestants.push_back({name, body}); };
    const auto arguments = [=](const Array<T>& from, const Array<T>& to, const Array<T>& other, auto as) {
        const auto rest = std::tuple(re, im, n, count, buffer);
        if constexpr (sides == Sides::both)
            return std::tuple_cat(matrixArguments(from, as), matrixArguments(to, as), matrixArguments(other, as), rest);
        else
            return std::tuple_cat(matrixArguments(from, as), matrixArguments(to, as), rest);
    };
    const LayoutOf<layout> as;
    if constexpr (layout == Layout::packed)
        add("vorm", [=, all = arguments(a, right, left, as)] { std::apply(members.standard, all); });
    if constexpr (layout == Layout::planes) {
        add("vorm", [=, all = arguments(a, right, left, as)] { std::apply(members.pointers, all); });
        const LayoutOf<Layout::packed> packed;
        const Array<T> from(n, n, count, Layout::packed, 1), to(n, n, count, Layout::packed, 1),
            other(n, n, count, Layout::packed, 1);
        for (int object = 0; object < count; ++object)
            for (int e = 0; e < n * n; ++e) from.data[object * n * n + e] = a.table[e][object];
        add("vorm, standard layout",
            [=, all = arguments(from, to, other, packed)] { std::apply(members.standard, all); });
        return task;
    }
    add("Eigen", [=] {
        for (int object = 0; object < count; ++object) {
            auto* const to = complexes + std::ptrdiff_t{object} * n * (n + 1);
            eigenVectors<n>(a.at(object, layout), to, to + n);
            if (sides == Sides::both) eigenVectors<n>(a.at(object, layout), to, to + n);
        }
    });
    add("LAPACK", [=] {
        for (int object = 0; object < count; ++object) {
            std::copy_n(a.at(object, layout), n * n, work + 4096);
            geev(sides == Sides::right ? 'N' : 'V', sides == Sides::left ? 'N' : 'V', n, work + 4096, re + object * n,
                 im + object * n, left.at(object, layout), right.at(object, layout), work);
        }
    });
    return task;
}

struct Sections {
    Section &resident, &planes;
};

template <int n, class T>
void addOrder(Sections& s, auto rightMembers, auto leftMembers, auto bothMembers)
{
    constexpr double wanted = n == 2 ? 0 : sizeof(T) == 4 ? 1.3 : 1.2;
    const auto add = [&](auto members, auto sides, double atLeast) {
        const std::string name = std::string(members.name) + " " + std::to_string(n) + "x" + std::to_string(n);
        s.resident.rows.push_back(
            {name, residentObjects,
             [=] { return vectorsOf<n, T, Layout::packed, decltype(sides)::value>(members, residentObjects); },
             atLeast});
        s.planes.rows.push_back(
            {name, residentObjects,
             [=] { return vectorsOf<n, T, Layout::planes, decltype(sides)::value>(members, residentObjects); }});
    };
    add(rightMembers, std::integral_constant<Sides, Sides::right>{}, wanted);
    add(leftMembers, std::integral_constant<Sides, Sides::left>{}, wanted);
    add(bothMembers, std::integral_constant<Sides, Sides::both>{}, wanted);
}

// Each element type and group of orders in its own file.
void addSmall32f(Sections& s);
void addLarger32f(Sections& s);
void addSmall64f(Sections& s);
void addLarger64f(Sections& s);

}  // namespace bench::eigenvectors
