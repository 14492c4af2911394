// QR decomposition and solving, against Eigen (fixed-size, object by object) and LAPACK. Everyone starts from packed
// objects that are to be kept; Eigen's and LAPACK's own decompositions are made before their solving is measured.
#pragma once

#include <lapacke.h>

#include <Eigen/QR>

#include "layouts.hpp"

namespace bench::qr {

inline lapack_int geqrf(int m, int n, float* a, float* tau, float* work)
{
    return LAPACKE_sgeqrf_work(LAPACK_COL_MAJOR, m, n, a, m, tau, work, 1024);
}
inline lapack_int geqrf(int m, int n, double* a, double* tau, double* work)
{
    return LAPACKE_dgeqrf_work(LAPACK_COL_MAJOR, m, n, a, m, tau, work, 1024);
}
// b becomes Q' b, its first elements x.
inline void solveByLapack(int m, int n, int many, const float* a, const float* tau, float* b, float* work)
{
    LAPACKE_sormqr_work(LAPACK_COL_MAJOR, 'L', 'T', m, many, n, a, m, tau, b, m, work, 65536);
    LAPACKE_strtrs_work(LAPACK_COL_MAJOR, 'U', 'N', 'N', n, many, a, m, b, m);
}
inline void solveByLapack(int m, int n, int many, const double* a, const double* tau, double* b, double* work)
{
    LAPACKE_dormqr_work(LAPACK_COL_MAJOR, 'L', 'T', m, many, n, a, m, tau, b, m, work, 65536);
    LAPACKE_dtrtrs_work(LAPACK_COL_MAJOR, 'U', 'N', 'N', n, many, a, m, b, m);
}

// Eigen's code takes long to compile: it stands once for each shape, the same for all layouts.
template <int rows, int columns, class T>
using Decomposition = Eigen::HouseholderQR<Eigen::Matrix<T, rows, columns>>;
template <int rows, int columns, class T>
[[gnu::noinline]] Decomposition<rows, columns, T> eigenDecomposition(const T* a)
{
    return Decomposition<rows, columns, T>(Eigen::Map<const Eigen::Matrix<T, rows, columns>>(a));
}
template <int rows, int columns, class T>
[[gnu::noinline]] void eigenDecompositions(const Array<T>& a, const Array<T>& qr, T* scales, int count, Layout layout)
{
    for (int object = 0; object < count; ++object) {
        const auto result = eigenDecomposition<rows, columns>(a.at(object, layout));
        Eigen::Map<Eigen::Matrix<T, rows, columns>>(qr.at(object, layout)) = result.matrixQR();
        Eigen::Map<Eigen::Vector<T, columns>>(scales + object * columns) = result.hCoeffs();
    }
}
template <int rows, int columns, class T>
[[gnu::noinline]] void eigenSolutions(const Decomposition<rows, columns, T>* qr, int step, const Array<T>& b,
                                      const Array<T>& x, int count, Layout layout)
{
    for (int object = 0; object < count; ++object, qr += step)
        Eigen::Map<Eigen::Vector<T, columns>>(x.at(object, layout)) =
            qr->solve(Eigen::Map<const Eigen::Vector<T, rows>>(b.at(object, layout)));
}
// Of many columns at once it does not count whether the sizes are known.
template <class T>
using AnyMatrix = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic>;
template <class T>
[[gnu::noinline]] void eigenSolutionAtOnce(const Eigen::HouseholderQR<AnyMatrix<T>>& qr, const T* b, T* x, int count)
{
    Eigen::Map<AnyMatrix<T>>(x, qr.cols(), count) = qr.solve(Eigen::Map<const AnyMatrix<T>>(b, qr.rows(), count));
}

template <int rows, int columns, class T, Layout layout>
Task decomposition(auto members, int count)
{
    const Array<T> a(rows, columns, count, layout, 387), qr(rows, columns, count, layout, 621);
    // An array ends at the first column that is as good as zero, and among so many random ones there is one.
    if (layout != Layout::planes)
        for (int object = 0; object < count; ++object)
            for (int c = 0; c < columns; ++c) a.data[(std::ptrdiff_t{object} * rows + c) * columns + c] += 2 * rows;
    T* const scales = Memory::region<T>(std::ptrdiff_t{count} * columns);
    T* const work = Memory::region<T>(1024);
    Task task;
    const auto add = [&](const char* name, auto body) { task.contestants.push_back({name, body}); };
    const auto arguments = [=](const Array<T>& from, const Array<T>& to, auto as) {
        return std::tuple_cat(matrixArguments(from, as), std::tuple(work), matrixArguments(to, as),
                              std::tuple(columns, rows, count));
    };
    if (addOurs<layout>(task, members, arguments(a, qr, LayoutOf<layout>{}), [&] {
            const Array<T> aPacked(rows, columns, count, Layout::packed, 1),
                qrPacked(rows, columns, count, Layout::packed, 1);
            return arguments(aPacked, qrPacked, LayoutOf<Layout::packed>{});
        }))
        return task;
    add("Eigen", [=] { eigenDecompositions<rows, columns>(a, qr, scales, count, layout); });
    add("LAPACK", [=] {
        for (int object = 0; object < count; ++object) {
            std::copy_n(a.at(object, layout), rows * columns, qr.at(object, layout));
            geqrf(rows, columns, qr.at(object, layout), scales + object * columns, work);
        }
    });
    return task;
}

// With a matrix for each vector (mava), or one for all of them (mva).
template <int rows, int columns, class T, Layout layout, bool ownMatrices>
Task solution(auto members, auto decompose, int count)
{
    const int matrices = ownMatrices ? count : 1;
    const Array<T> a(rows, columns, matrices, layout, 387), b(1, rows, count, layout, 621),
        x(1, columns, count, layout, 783);
    const Array<T> packedA(rows, columns, matrices, Layout::packed, 1), qr(rows, columns, matrices, Layout::packed, 1);
    T* const buffer = Memory::region<T>(rows);
    const LayoutOf<Layout::packed> packed;
    std::apply(decompose.standard, std::tuple_cat(matrixArguments(packedA, packed), std::tuple(buffer),
                                                  matrixArguments(qr, packed), std::tuple(columns, rows, matrices)));
    const auto theirs = std::make_shared<std::vector<T>>();  // by columns
    const auto decompositions = std::make_shared<std::vector<Decomposition<rows, columns, T>>>();
    for (int object = 0; object < matrices; ++object) {
        const std::ptrdiff_t first = std::ptrdiff_t{object} * rows * columns;
        for (int c = 0; c < columns; ++c)
            for (int r = 0; r < rows; ++r) theirs->push_back(packedA.data[first + r * columns + c]);
        decompositions->push_back(eigenDecomposition<rows, columns>(theirs->data() + first));
        for (int e = 0; e < rows * columns; ++e)
            (layout == Layout::planes ? a.table[e][object] : a.at(object, layout)[e]) = qr.data[first + e];
    }

    Task task;
    const auto add = [&](const char* name, auto body) { task.contestants.push_back({name, body}); };
    const auto arguments = [=](const Array<T>& m, const Array<T>& from, const Array<T>& to, auto as) {
        const auto rest = std::tuple_cat(std::tuple(buffer), vectorArguments(from, as), vectorArguments(to, as),
                                         std::tuple(columns, rows, count));
        if constexpr (ownMatrices)
            return std::tuple_cat(matrixArguments(m, as), rest);
        else
            return std::tuple_cat(commonArguments(m, as), rest);
    };
    if (addOurs<layout>(task, members, arguments(a, b, x, LayoutOf<layout>{}), [&] {
            const Array<T> bPacked(1, rows, count, Layout::packed, 1), xPacked(1, columns, count, Layout::packed, 1);
            return arguments(qr, bPacked, xPacked, LayoutOf<Layout::packed>{});
        }))
        return task;
    add("Eigen", [=] { eigenSolutions<rows, columns>(decompositions->data(), ownMatrices, b, x, count, layout); });
    const Eigen::HouseholderQR<AnyMatrix<T>> common(Eigen::Map<const AnyMatrix<T>>(theirs->data(), rows, columns));
    const auto scales = std::make_shared<std::vector<T>>(std::size_t(matrices * columns));
    const auto work = std::make_shared<std::vector<T>>(std::size_t(65536 + rows * count));
    for (int object = 0; object < matrices; ++object)
        geqrf(rows, columns, theirs->data() + std::ptrdiff_t{object} * rows * columns,
              scales->data() + object * columns, work->data());
    add("LAPACK", [=] {
        T* const transformed = work->data() + 65536;
        if (!ownMatrices && layout == Layout::packed) {
            std::copy_n(b.data, std::ptrdiff_t{count} * rows, transformed);
            solveByLapack(rows, columns, count, theirs->data(), scales->data(), transformed, work->data());
            for (int object = 0; object < count; ++object)
                std::copy_n(transformed + object * rows, columns, x.data + object * columns);
            return;
        }
        for (int object = 0; object < count; ++object) {
            std::copy_n(b.at(object, layout), rows, transformed);
            const int own = ownMatrices ? object : 0;
            solveByLapack(rows, columns, 1, theirs->data() + own * rows * columns, scales->data() + own * columns,
                          transformed, work->data());
            std::copy_n(transformed, columns, x.at(object, layout));
        }
    });
    if constexpr (layout == Layout::packed && !ownMatrices)
        add("Eigen, all at once", [=] { eigenSolutionAtOnce(common, b.data, x.data, count); });
    return task;
}

template <int rows, int columns, class T>
void addShape(LayoutSections& s, auto decompose, auto solveVectors, auto solvePairs)
{
    constexpr bool isFloat = sizeof(T) == 4, isSmall = rows == columns && rows <= 6;
    constexpr double wantedOfPlanes = !isSmall ? 1 : isFloat ? 1.3 : 1.1;
    constexpr bool isAimed = rows == 3 || rows == 4 || rows == 6 || columns == 4;
    const auto add = [&](auto members, double wanted, auto taskOf) {
        addInLayouts<T>(s, members.name, rows, columns, {wanted, wantedOfPlanes, isSmall}, taskOf);
    };
    add(decompose,
        !isAimed  ? 1
        : isFloat ? 2
                  : 1.5,
        [=](auto as, int count) { return decomposition<rows, columns, T, as()>(decompose, count); });
    add(solvePairs, 3,
        [=](auto as, int count) { return solution<rows, columns, T, as(), true>(solvePairs, decompose, count); });
    add(solveVectors, 1,
        [=](auto as, int count) { return solution<rows, columns, T, as(), false>(solveVectors, decompose, count); });
}
template <class T>
void addShapes(LayoutSections& s, auto... members)
{
    addShape<3, 3, T>(s, members...);
    addShape<4, 4, T>(s, members...);
    addShape<5, 5, T>(s, members...);
    addShape<6, 6, T>(s, members...);
}
template <class T>
void addLargerShapes(LayoutSections& s, auto... members)
{
    addShape<8, 8, T>(s, members...);
    addShape<12, 12, T>(s, members...);
    addShape<10, 4, T>(s, members...);
}

// Each element type and group of shapes in its own file.
void addAll32f(LayoutSections& s);
void addLarger32f(LayoutSections& s);
void addAll64f(LayoutSections& s);
void addLarger64f(LayoutSections& s);

}  // namespace bench::qr
