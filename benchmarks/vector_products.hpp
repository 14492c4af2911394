// Products of matrices and vectors, against what a user could write for the same memory:
//   fixed loop    object by object through Eigen's fixed-size maps; common operands copied to locals
//   fixed lazy    the same with a lazy product, evaluated coefficient by coefficient
//   one product   for a common matrix: all vectors as the columns of a matrix
//   glm           for 3 and 4: its vectors and matrices over the same memory
//   plain loop    three nested loops over restricted pointers, the sizes known to the compiler
//   plane by plane, for structures of arrays: one long vector for each element

#pragma once

#include <emmintrin.h>

#include <Eigen/Core>
#include <glm/glm.hpp>
#include <glm/gtc/type_ptr.hpp>
#include <tuple>

#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench::vectorProducts {

enum class Shape { mva, tva, mav, tav, mava, tava };
enum class Layout { packed, list, planes };

constexpr bool hasMatrices(Shape s) { return s != Shape::mva && s != Shape::tva; }
constexpr bool hasVectors(Shape s) { return s != Shape::mav && s != Shape::tav; }
constexpr bool isTurned(Shape s) { return s == Shape::tva || s == Shape::tav || s == Shape::tava; }

// One operand, stored matrix or vector, packed; in the list layout visited out of order.
template <class T, int size, bool isArray, Layout layout>
struct Operand {
    T* data;
    T** table = nullptr;
    int count;

    Operand(int index, int objects) : count(isArray ? objects : 1)
    {
        const std::ptrdiff_t planeStep = (count + 15) / 16 * 16 + 7 * 64 / int{sizeof(T)};
        const bool planes = layout == Layout::planes && isArray;
        const std::ptrdiff_t elements = planes ? planeStep * size : std::ptrdiff_t{count} * size;
        data = Memory::region<T>(elements);
        fill(data, elements);
        constexpr int stirred[] = {387, 621, 783};
        if constexpr (layout == Layout::list && isArray) {
            table = Memory::region<T*>(count);
            for (int n = 0; n < count; ++n) table[n] = data + std::int64_t{n} * stirred[index] % count * size;
        }
        if constexpr (layout == Layout::planes) {
            table = Memory::region<T*>(size);
            for (int i = 0; i < size; ++i) table[i] = data + i * (planes ? planeStep : 1);
        }
    }
    T* at(std::ptrdiff_t n) const
    {
        if constexpr (!isArray) return data;
        if constexpr (layout == Layout::list) return table[n];
        return data + n * size;
    }
    auto plane(int i) const
    {
        if constexpr (isArray)
            return Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>(table[i], count);
        else
            return data[i];
    }
    // As arguments of our functions.
    template <int n, bool isMatrix>
    auto arguments() const
    {
        constexpr int e = sizeof(T);
        if constexpr (layout == Layout::planes && isArray)
            return std::tuple(table, 0, e);
        else if constexpr (layout == Layout::planes)
            return std::tuple(table, 0);
        else if constexpr (layout == Layout::list && isArray && isMatrix)
            return std::tuple(table, 0, n * e, e);
        else if constexpr (layout == Layout::list && isArray)
            return std::tuple(table, 0, e);
        else if constexpr (isArray && isMatrix)
            return std::tuple(data, size * e, n * e, e);
        else if constexpr (isArray)
            return std::tuple(data, size * e, e);
        else if constexpr (isMatrix)
            return std::tuple(data, n * e, e);
        else
            return std::tuple(data, e);
    }
};

inline __m128 load(const float* p) { return _mm_loadu_ps(p); }
inline __m128d load(const double* p) { return _mm_loadu_pd(p); }
inline void store(float* p, __m128 v) { _mm_storeu_ps(p, v); }
inline void store(double* p, __m128d v) { _mm_storeu_pd(p, v); }

// Moves a packed row's bytes: what the memory allows.
template <int n, Shape shape, class T>
[[gnu::noinline]] void moveBytes(const T* a, const T* x, T* y, int count)
{
    constexpr int width = 16 / static_cast<int>(sizeof(T));
    for (int object = 0; object + width <= count; object += width, y += n * width) {
        auto v = load(hasMatrices(shape) ? a : x);
        if constexpr (hasMatrices(shape)) {
            for (int j = 1; j < n * n; ++j) v = v + load(a + j * width);
            a += n * n * width;
        }
        for (int j = 0; j < n; ++j) {
            if constexpr (hasVectors(shape)) v = v + load(x + j * width);
            store(y + j * width, v);
        }
        if constexpr (hasVectors(shape)) x += n * width;
    }
}

template <int n, Shape shape, class T>
[[gnu::noinline]] void plainLoop(const T* __restrict a, const T* __restrict x, T* __restrict y, int count)
{
    T common[n * n], vector[n];
    std::copy(a, a + n * n, common), std::copy(x, x + n, vector);
    for (int object = 0; object < count; ++object) {
        const T* const matrix = hasMatrices(shape) ? a + object * n * n : common;
        const T* const v = hasVectors(shape) ? x + object * n : vector;
        for (int i = 0; i < n; ++i) {
            T sum = matrix[isTurned(shape) ? i : i * n] * v[0];
            for (int k = 1; k < n; ++k) sum += matrix[isTurned(shape) ? k * n + i : i * n + k] * v[k];
            y[object * n + i] = sum;
        }
    }
}

template <int n, Shape shape, Layout layout, class T, class Function, class Standard>
Task task(Function* ours, Standard* standard, int count)
{
    const Operand<T, n * n, hasMatrices(shape), layout> a(0, count);
    const Operand<T, n, hasVectors(shape), layout> x(1, count);
    const Operand<T, n, true, layout> y(2, count);
    using Stored = Eigen::Matrix<T, n, n, Eigen::RowMajor>;
    using Local = Eigen::Matrix<T, n, n>;
    using Vector = Eigen::Matrix<T, n, 1>;

    Task result;
    const auto add = [&](const std::string& name, auto work) { result.contestants.push_back({name, work}); };
    const auto argumentsOf = [=](const auto& a_, const auto& x_, const auto& y_) {
        return std::tuple_cat(a_.template arguments<n, true>(), std::tuple(n, n), x_.template arguments<n, false>(),
                              std::tuple(n), y_.template arguments<n, false>(), std::tuple(count));
    };
    add("vorm", [=, arguments = argumentsOf(a, x, y)] { std::apply(ours, arguments); });

    if constexpr (layout == Layout::planes) {
        const Operand<T, n * n, hasMatrices(shape), Layout::packed> aPacked(0, count);
        const Operand<T, n, hasVectors(shape), Layout::packed> xPacked(1, count);
        const Operand<T, n, true, Layout::packed> yPacked(2, count);
        add("vorm, standard layout",
            [=, arguments = argumentsOf(aPacked, xPacked, yPacked)] { std::apply(standard, arguments); });
        add("plane by plane", [=] {
            const auto matrix = [&](int i, int k) { return a.plane(isTurned(shape) ? k * n + i : i * n + k); };
            const auto term = [&](int i, int k) {
                if constexpr (hasMatrices(shape) || hasVectors(shape)) return matrix(i, k) * x.plane(k);
            };
            for (int i = 0; i < n; ++i) {
                auto to = y.plane(i);
                if constexpr (n == 3)
                    to = term(i, 0) + term(i, 1) + term(i, 2);
                else if constexpr (n == 4)
                    to = term(i, 0) + term(i, 1) + term(i, 2) + term(i, 3);
                else if constexpr (n == 5)
                    to = term(i, 0) + term(i, 1) + term(i, 2) + term(i, 3) + term(i, 4);
                else
                    to = term(i, 0) + term(i, 1) + term(i, 2) + term(i, 3) + term(i, 4) + term(i, 5);
            }
        });
        return result;
    } else {
        const auto loop = [=](auto product) {
            return [=] {
                const auto localA = a;
                const auto localX = x;
                const auto localY = y;
                const Local common = isTurned(shape) ? Local(Eigen::Map<const Stored>(a.data).transpose())
                                                     : Local(Eigen::Map<const Stored>(a.data));
                const Vector vector = Eigen::Map<const Vector>(x.data);
                for (int object = 0; object < count; ++object) {
                    Eigen::Map<Vector> to(localY.at(object));
                    const Eigen::Map<const Stored> matrix(localA.at(object));
                    const Eigen::Map<const Vector> from(localX.at(object));
                    if constexpr (!hasMatrices(shape))
                        product(to, common, from);
                    else if constexpr (isTurned(shape) && hasVectors(shape))
                        product(to, matrix.transpose(), from);
                    else if constexpr (isTurned(shape))
                        product(to, matrix.transpose(), vector);
                    else if constexpr (hasVectors(shape))
                        product(to, matrix, from);
                    else
                        product(to, matrix, vector);
                }
            };
        };
        add("fixed loop", loop([](auto& to, const auto& m, const auto& v) { to.noalias() = m * v; }));
        add("fixed lazy", loop([](auto& to, const auto& m, const auto& v) { to = m.lazyProduct(v); }));
        if constexpr (n <= 4) {
            using GlmVector = glm::vec<n, T>;
            using GlmMatrix = glm::mat<n, n, T>;
            add("glm", [=] {
                const auto localA = a;
                const auto localX = x;
                const auto localY = y;
                const auto read = [&](std::ptrdiff_t object) {
                    GlmMatrix m;
                    std::copy_n(localA.at(object), n * n, glm::value_ptr(m));
                    return m;
                };
                const GlmMatrix common = isTurned(shape) ? read(0) : glm::transpose(read(0));
                for (int object = 0; object < count; ++object) {
                    GlmVector v, r;
                    std::copy_n(localX.at(object), n, glm::value_ptr(v));
                    if constexpr (!hasMatrices(shape))
                        r = common * v;
                    else if constexpr (isTurned(shape))
                        r = read(object) * v;
                    else
                        r = v * read(object);
                    std::copy_n(glm::value_ptr(r), n, localY.at(object));
                }
            });
        }
        if constexpr (layout == Layout::packed) {
            add("plain loop", [=] { plainLoop<n, shape>(a.data, x.data, y.data, count); });
            add(bandwidth, [=] { moveBytes<n, shape>(a.data, x.data, y.data, count); });
            if constexpr (!hasMatrices(shape)) {
                using Columns = Eigen::Matrix<T, n, Eigen::Dynamic>;
                const auto all = [=](auto product) {
                    return [=] {
                        const Eigen::Map<const Stored> stored(a.data);
                        const Local m = isTurned(shape) ? Local(stored.transpose()) : Local(stored);
                        Eigen::Map<Columns> to(y.data, n, count);
                        product(to, m, Eigen::Map<const Columns>(x.data, n, count));
                    };
                };
                add("one product", all([](auto& to, const auto& m, const auto& v) { to.noalias() = m * v; }));
                add("one lazy product", all([](auto& to, const auto& m, const auto& v) { to = m.lazyProduct(v); }));
            }
        }
        return result;
    }
}

struct VectorProductSections {
    Section &resident, &streaming, &list, &planes, &planesStreaming;
};

// The ratios a packed, resident row of order 3 to 6 is held to.
template <int n, Shape shape, class T>
constexpr double wanted()
{
    constexpr bool isFloat = sizeof(T) == sizeof(float);
    constexpr double common[] = {1.8, 1.4, 1.6, 2};
    if (!hasMatrices(shape)) return isFloat ? common[n - 3] : 1.4;
    if (hasVectors(shape)) return isFloat ? 1.3 : 1.2;
    return 1;
}

template <Shape shape, class T, int... n, class Standard, class List, class Pointers>
void addShape(VectorProductSections& s, const char* member, Standard* standard, List* list, Pointers* pointers)
{
    (..., [&] {
        const std::string name = std::string(member) + " " + std::to_string(n) + "x" + std::to_string(n);
        constexpr int objectBytes = (hasMatrices(shape) ? n * n : n) * int{sizeof(T)};
        const int streaming = static_cast<int>(streamingBytes() / objectBytes / 16 * 16);
        const auto add = [&](Section& section, int count, double ratio, auto prepare) {
            section.rows.push_back({name, count, [=] { return prepare(count); }, ratio});
        };
        const auto packed = [=](int count) { return task<n, shape, Layout::packed, T>(standard, standard, count); };
        const auto listed = [=](int count) { return task<n, shape, Layout::list, T>(list, standard, count); };
        const auto planes = [=](int count) { return task<n, shape, Layout::planes, T>(pointers, standard, count); };
        add(s.resident, residentObjects, wanted<n, shape, T>(), packed);
        add(s.streaming, streaming, 1, packed);
        if constexpr (hasVectors(shape) && !isTurned(shape)) add(s.list, residentObjects, 0, listed);
        add(s.planes, residentObjects, 1, planes);
        if constexpr (n <= 4) add(s.planesStreaming, streaming, 0, planes);
    }());
}

#define BENCH_SHAPE(shape, T, type)                                                             \
    bench::vectorProducts::addShape<bench::vectorProducts::Shape::shape, T, 3, 4, 5, 6>(        \
        s, "vormMul_" #shape "_" #type, vormMul_##shape##_##type, vormMul_##shape##_##type##_L, \
        vormMul_##shape##_##type##_P)

// Each element type in its own file.
void addAll32f(VectorProductSections& s);
void addAll64f(VectorProductSections& s);

}  // namespace bench::vectorProducts
