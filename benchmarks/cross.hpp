// Cross products of arrays, against what a user could write for the same memory:
//   fixed loop    object by object through Eigen's fixed-size maps; a common operand copied to a local
//   columnwise    the array as a matrix of three rows, where the other operand is common
//   glm           its vectors over the same memory
//   plain loop    three formulas over restricted pointers
//   plane by plane, for structures of arrays: one long vector for each element
#pragma once

#include <Eigen/Geometry>

#include "members.hpp"
#include "vector_products.hpp"

namespace bench::cross {

using vectorProducts::Layout;
using vectorProducts::Operand;

template <bool arrayA, bool arrayB, class T>
[[gnu::noinline]] void plainLoop(const T* __restrict a, const T* __restrict b, T* __restrict r, int count)
{
    for (int n = 0; n < count; ++n, a += 3 * arrayA, b += 3 * arrayB, r += 3) {
        r[0] = a[1] * b[2] - a[2] * b[1];
        r[1] = a[2] * b[0] - a[0] * b[2];
        r[2] = a[0] * b[1] - a[1] * b[0];
    }
}
// Moves a packed row's bytes: what the memory allows.
template <bool arrayA, bool arrayB, class T>
[[gnu::noinline]] void moveBytes(const T* a, const T* b, T* r, int count)
{
    constexpr int width = 16 / static_cast<int>(sizeof(T));
    for (std::ptrdiff_t i = 0; i + width <= std::ptrdiff_t{3} * count; i += width) {
        auto v = vectorProducts::load(arrayA ? a + i : b + i);
        if constexpr (arrayA && arrayB) v = v + vectorProducts::load(b + i);
        vectorProducts::store(r + i, v);
    }
}

template <bool arrayA, bool arrayB, Layout layout, class T, class Function, class Standard>
Task task(Function* ours, Standard* standard, int count)
{
    const Operand<T, 3, arrayA, layout> a(0, count);
    const Operand<T, 3, arrayB, layout> b(1, count);
    const Operand<T, 3, true, layout> r(2, count);
    using Vector = Eigen::Matrix<T, 3, 1>;

    Task result;
    const auto add = [&](const std::string& name, auto work) { result.contestants.push_back({name, work}); };
    const auto argumentsOf = [=](const auto&... operand) {
        return std::tuple_cat(operand.template arguments<3, false>()..., std::tuple(count));
    };
    add("vorm", [=, arguments = argumentsOf(a, b, r)] { std::apply(ours, arguments); });

    if constexpr (layout == Layout::planes) {
        const Operand<T, 3, arrayA, Layout::packed> aPacked(0, count);
        const Operand<T, 3, arrayB, Layout::packed> bPacked(1, count);
        const Operand<T, 3, true, Layout::packed> rPacked(2, count);
        add("vorm, standard layout",
            [=, arguments = argumentsOf(aPacked, bPacked, rPacked)] { std::apply(standard, arguments); });
        add("plane by plane", [=] {
            for (int i = 0; i < 3; ++i) {
                const int j = (i + 1) % 3, k = (i + 2) % 3;
                r.plane(i) = a.plane(j) * b.plane(k) - a.plane(k) * b.plane(j);
            }
        });
        return result;
    } else {
        const auto loop = [=](auto product) {
            return [=] {
                const auto localA = a;
                const auto localB = b;
                const auto localR = r;
                const Vector commonA = Eigen::Map<const Vector>(a.data), commonB = Eigen::Map<const Vector>(b.data);
                for (int n = 0; n < count; ++n) {
                    const T* const x = arrayA ? localA.at(n) : commonA.data();
                    const T* const y = arrayB ? localB.at(n) : commonB.data();
                    product(x, y, localR.at(n));
                }
            };
        };
        add("fixed loop", loop([](const T* x, const T* y, T* to) {
                Eigen::Map<Vector> destination(to);
                destination = Eigen::Map<const Vector>(x).cross(Eigen::Map<const Vector>(y));
            }));
        add("glm", loop([](const T* x, const T* y, T* to) {
                const glm::vec<3, T> c = glm::cross(glm::vec<3, T>(x[0], x[1], x[2]), glm::vec<3, T>(y[0], y[1], y[2]));
                to[0] = c.x, to[1] = c.y, to[2] = c.z;
            }));
        if constexpr (layout == Layout::packed) {
            add("plain loop", [=] { plainLoop<arrayA, arrayB>(a.data, b.data, r.data, count); });
            add(bandwidth, [=] { moveBytes<arrayA, arrayB>(a.data, b.data, r.data, count); });
            using Columns = Eigen::Matrix<T, 3, Eigen::Dynamic>;
            if constexpr (!arrayB)
                add("columnwise", [=] {
                    Eigen::Map<Columns>(r.data, 3, count) =
                        Eigen::Map<const Columns>(a.data, 3, count).colwise().cross(Eigen::Map<const Vector>(b.data));
                });
        }
        return result;
    }
}

struct CrossSections {
    Section &resident, &streaming, &list, &planes, &planesStreaming;
};

template <bool arrayA, bool arrayB, class T, class M>
void addShape(CrossSections& s, const M& member)
{
    const int streaming = static_cast<int>(streamingBytes() / (3 * sizeof(T)) / 16 * 16);
    const auto add = [&](Section& section, int count, double ratio, auto prepare) {
        section.rows.push_back({member.name, count, [=] { return prepare(count); }, ratio});
    };
    const auto packed = [=](int count) {
        return task<arrayA, arrayB, Layout::packed, T>(member.standard, member.standard, count);
    };
    const auto planes = [=](int count) {
        return task<arrayA, arrayB, Layout::planes, T>(member.pointers, member.standard, count);
    };
    add(s.resident, residentObjects, 1.2, packed);
    add(s.resident, 7, 1, packed);
    add(s.streaming, streaming, 1, packed);
    add(s.list, residentObjects, 1,
        [=](int count) { return task<arrayA, arrayB, Layout::list, T>(member.list, member.standard, count); });
    add(s.planes, residentObjects, 1.2, planes);
    add(s.planesStreaming, streaming, 1, planes);
}

}  // namespace bench::cross
