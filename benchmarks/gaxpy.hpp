// vormGaxpy against what a user could write for the same memory:
//   fixed loop    object by object through Eigen's fixed-size maps; common operands copied to locals
//   fixed lazy    the same with a lazy product, evaluated coefficient by coefficient
//   one product   all vectors as the columns of a matrix, their products added to those of another one
//   plain loop    three nested loops over restricted pointers, the sizes known to the compiler
//   plane by plane, for structures of arrays: one long vector for each element

#pragma once

#include "members.hpp"
#include "vector_products.hpp"

namespace bench::gaxpy {

using vectorProducts::Layout;
using vectorProducts::Operand;

enum class Third { vectors, vector };

// Moves a packed row's bytes: what the memory allows.
template <int n, Third third, class T>
[[gnu::noinline]] void moveBytes(const T* x, const T* added, T* y, int count)
{
    constexpr int width = 16 / static_cast<int>(sizeof(T));
    const std::ptrdiff_t end = std::ptrdiff_t{n} * count;
    for (std::ptrdiff_t i = 0; i + width <= end; i += width) {
        auto v = vectorProducts::load(x + i);
        if constexpr (third == Third::vectors) v = v + vectorProducts::load(added + i);
        vectorProducts::store(y + i, v);
    }
}

template <int n, Third third, class T>
[[gnu::noinline]] void plainLoop(const T* __restrict a, const T* __restrict x, const T* __restrict added,
                                 T* __restrict y, int count)
{
    T matrix[n * n];
    std::copy(a, a + n * n, matrix);
    for (int object = 0; object < count; ++object)
        for (int i = 0; i < n; ++i) {
            T sum = matrix[i * n] * x[object * n];
            for (int k = 1; k < n; ++k) sum += matrix[i * n + k] * x[object * n + k];
            y[object * n + i] = sum + added[third == Third::vectors ? object * n + i : i];
        }
}

template <int n, Third third, Layout layout, class T, class Function, class Standard>
Task task(Function* ours, Standard* standard, int count)
{
    constexpr bool isArray = third == Third::vectors;
    const Operand<T, n * n, false, layout> a(0, count);
    const Operand<T, n, true, layout> x(1, count), y(2, count);
    const Operand<T, n, isArray, layout> added(0, count);
    using Stored = Eigen::Matrix<T, n, n, Eigen::RowMajor>;
    using Local = Eigen::Matrix<T, n, n>;
    using Vector = Eigen::Matrix<T, n, 1>;

    Task result;
    const auto add = [&](const std::string& name, auto work) { result.contestants.push_back({name, work}); };
    const auto argumentsOf = [=](const auto& a_, const auto& x_, const auto& added_, const auto& y_) {
        return std::tuple_cat(a_.template arguments<n, true>(), std::tuple(n, n), x_.template arguments<n, false>(),
                              std::tuple(n), added_.template arguments<n, false>(), std::tuple(n),
                              y_.template arguments<n, false>(), std::tuple(count));
    };
    add("vorm", [=, arguments = argumentsOf(a, x, added, y)] { std::apply(ours, arguments); });

    if constexpr (layout == Layout::planes) {
        const Operand<T, n * n, false, Layout::packed> aPacked(0, count);
        const Operand<T, n, true, Layout::packed> xPacked(1, count), yPacked(2, count);
        const Operand<T, n, isArray, Layout::packed> addedPacked(0, count);
        add("vorm, standard layout",
            [=, arguments = argumentsOf(aPacked, xPacked, addedPacked, yPacked)] { std::apply(standard, arguments); });
        add("plane by plane", [=] {
            const auto row = [&]<int... k>(int i, std::integer_sequence<int, k...>)
            {
                y.plane(i) = (... + (a.plane(i * n + k) * x.plane(k))) + added.plane(i);
            };
            for (int i = 0; i < n; ++i) row(i, std::make_integer_sequence<int, n>());
        });
        return result;
    } else {
        const auto loop = [=](auto product) {
            return [=] {
                const auto localX = x;
                const auto localAdded = added;
                const auto localY = y;
                const Local common = Eigen::Map<const Stored>(a.data);
                const Vector vector = Eigen::Map<const Vector>(added.data);
                for (int object = 0; object < count; ++object) {
                    Eigen::Map<Vector> to(localY.at(object));
                    const Eigen::Map<const Vector> from(localX.at(object));
                    if constexpr (isArray)
                        product(to, common, from, Eigen::Map<const Vector>(localAdded.at(object)));
                    else
                        product(to, common, from, vector);
                }
            };
        };
        add("fixed loop", loop([](auto& to, const auto& m, const auto& v, const auto& z) {
                to.noalias() = m * v;
                to += z;
            }));
        add("fixed lazy",
            loop([](auto& to, const auto& m, const auto& v, const auto& z) { to = m.lazyProduct(v) + z; }));
        if constexpr (layout == Layout::packed) {
            add("plain loop", [=] { plainLoop<n, third>(a.data, x.data, added.data, y.data, count); });
            add(bandwidth, [=] { moveBytes<n, third>(x.data, added.data, y.data, count); });
            using Columns = Eigen::Matrix<T, n, Eigen::Dynamic>;
            const auto all = [=](auto product) {
                return [=] {
                    const Local m = Eigen::Map<const Stored>(a.data);
                    Eigen::Map<Columns> to(y.data, n, count);
                    const Eigen::Map<const Columns> from(x.data, n, count);
                    if constexpr (isArray)
                        product(to, m, from, Eigen::Map<const Columns>(added.data, n, count));
                    else
                        product(to, m, from, Vector(Eigen::Map<const Vector>(added.data)).rowwise().replicate(count));
                };
            };
            add("one product", all([](auto& to, const auto& m, const auto& v, const auto& z) {
                    to.noalias() = m * v;
                    to += z;
                }));
            add("one lazy product",
                all([](auto& to, const auto& m, const auto& v, const auto& z) { to = m.lazyProduct(v) + z; }));
        }
        return result;
    }
}

struct GaxpySections {
    Section &resident, &streaming, &list, &planes, &planesStreaming;
};

template <Third third, class T, int... n, class M>
void addShape(GaxpySections& s, const M& member)
{
    (..., [&] {
        const std::string name = std::string(member.name) + " " + std::to_string(n) + "x" + std::to_string(n);
        const int streaming = static_cast<int>(streamingBytes() / (n * sizeof(T)) / 16 * 16);
        const auto add = [&](Section& section, int count, double ratio, auto prepare) {
            section.rows.push_back({name, count, [=] { return prepare(count); }, ratio});
        };
        const auto packed = [=](int count) {
            return task<n, third, Layout::packed, T>(member.standard, member.standard, count);
        };
        const auto planes = [=](int count) {
            return task<n, third, Layout::planes, T>(member.pointers, member.standard, count);
        };
        const double wanted = n > 6 ? 1 : sizeof(T) == sizeof(float) ? 1.4 : 1.1;
        add(s.resident, residentObjects, wanted, packed);
        add(s.streaming, streaming, 1, packed);
        add(s.list, residentObjects, 1,
            [=](int count) { return task<n, third, Layout::list, T>(member.list, member.standard, count); });
        add(s.planes, residentObjects, 1, planes);
        if constexpr (n <= 4) add(s.planesStreaming, streaming, 1, planes);
    }());
}

// Each element type in its own file.
void addAll32f(GaxpySections& s);
void addAll64f(GaxpySections& s);

}  // namespace bench::gaxpy
