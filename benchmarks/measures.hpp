// Dot products, norms and traces, against Eigen (fixed-size, object by object) and the loop a user would write with the
// size known to the compiler; structures of arrays also against our own packed layout.
#pragma once

#include <Eigen/Core>
#include <cmath>

#include "layouts.hpp"

namespace bench::measures {

// What the families do to one object: with Eigen, and term by term.
struct Dot {
    template <class T, int rows, int columns>
    static T eigen(const T* a, const T* b)
    {
        using Vector = Eigen::Map<const Eigen::Matrix<T, columns, 1>>;
        return Vector(a).dot(Vector(b));
    }
    template <class T, int rows, int columns>
    static T loop(const T* a, const T* b)
    {
        T sum = a[0] * b[0];
        for (int k = 1; k < columns; ++k) sum += a[k] * b[k];
        return sum;
    }
};
struct Norm {
    template <class T, int rows, int columns>
    static T eigen(const T* a, const T*)
    {
        return Eigen::Map<const Eigen::Matrix<T, rows * columns, 1>>(a).norm();
    }
    template <class T, int rows, int columns>
    static T loop(const T* a, const T*)
    {
        return std::sqrt(Dot::loop<T, 1, rows * columns>(a, a));
    }
};
struct Trace {
    template <class T, int rows, int columns>
    static T eigen(const T* a, const T*)
    {
        return Eigen::Map<const Eigen::Matrix<T, rows, columns>>(a).trace();
    }
    template <class T, int rows, int columns>
    static T loop(const T* a, const T*)
    {
        T sum = a[0];
        for (int k = 1; k < rows; ++k) sum += a[k * columns + k];
        return sum;
    }
};

template <class Op, int rows, int columns, class T>
[[gnu::noinline]] void eigenResults(const Array<T>& a, const Array<T>& b, bool isCommon, T* dst, int count, Layout l)
{
    for (int n = 0; n < count; ++n)
        dst[n] = Op::template eigen<T, rows, columns>(a.at(n, l), isCommon ? b.data : b.at(n, l));
}
template <class Op, int rows, int columns, class T>
[[gnu::noinline]] void loopResults(const Array<T>& a, const Array<T>& b, bool isCommon, T* __restrict dst, int count,
                                   Layout l)
{
    for (int n = 0; n < count; ++n)
        dst[n] = Op::template loop<T, rows, columns>(a.at(n, l), isCommon ? b.data : b.at(n, l));
}

// The arguments of a member in a layout, up to the sizes.
enum class Shape { vav, vava, va, ma };
template <Shape shape, Layout layout, class T>
auto arguments(const Array<T>& a, const Array<T>& b, T* dst)
{
    constexpr LayoutOf<layout> as;
    if constexpr (shape == Shape::ma) return std::tuple_cat(matrixArguments(a, as), std::tuple(dst));
    if constexpr (shape == Shape::va) return std::tuple_cat(vectorArguments(a, as), std::tuple(dst));
    if constexpr (shape == Shape::vava)
        return std::tuple_cat(vectorArguments(a, as), vectorArguments(b, as), std::tuple(dst));
    if constexpr (shape == Shape::vav && layout == Layout::planes)
        return std::tuple_cat(vectorArguments(a, as), std::tuple(b.table, 0, dst));
    if constexpr (shape == Shape::vav && layout != Layout::planes)
        return std::tuple_cat(vectorArguments(a, as), std::tuple(b.data, int{sizeof(T)}, dst));
}

template <class Op, Shape shape, int rows, int columns, Layout layout, class T, class Sizes>
Task results(auto members, Sizes sizes, int count)
{
    constexpr bool isCommon = shape == Shape::vav, hasTwo = isCommon || shape == Shape::vava;
    const Array<T> a(rows, columns, count, layout, 387);
    const Array<T> b = hasTwo ? Array<T>(rows, columns, isCommon ? 1 : count, layout, 621) : a;
    T* const dst = Memory::region<T>(count);
    Task task;
    const auto add = [&](const char* name, auto work) { task.contestants.push_back({name, work}); };
    const auto all = std::tuple_cat(arguments<shape, layout>(a, b, dst), sizes, std::tuple(count));
    if constexpr (layout == Layout::packed) add("vorm", [=] { std::apply(members.standard, all); });
    if constexpr (layout == Layout::list) add("vorm", [=] { std::apply(members.list, all); });
    if constexpr (layout == Layout::planes) {
        add("vorm", [=] { std::apply(members.pointers, all); });
        const Array<T> c(rows, columns, count, Layout::packed, 1);
        const Array<T> d = hasTwo ? Array<T>(rows, columns, isCommon ? 1 : count, Layout::packed, 1) : c;
        add("vorm, standard layout",
            [=, packed = std::tuple_cat(arguments<shape, Layout::packed>(c, d, dst), sizes, std::tuple(count))] {
                std::apply(members.standard, packed);
            });
    } else {
        add("Eigen", [=] { eigenResults<Op, rows, columns>(a, b, isCommon, dst, count, layout); });
        add("loop", [=] { loopResults<Op, rows, columns>(a, b, isCommon, dst, count, layout); });
    }
    return task;
}

// One vector. The peer is inlined; a short vector takes less time than our call, which has no aim there.
template <class T>
struct Singles {
    VormStatus (*dot)(const T*, int, const T*, int, T*, int);
    VormStatus (*norm)(const T*, int, T*, int);
};
template <class T>
void addSingles(Section& section, const char* type, Singles<T> members)
{
    using Vector = Eigen::Map<const Eigen::Matrix<T, Eigen::Dynamic, 1>>;
    constexpr int e = sizeof(T);
    for (int len : {3, 6, 12, 50, 200, 2000}) {
        const std::string size = std::string(type) + " len " + std::to_string(len);
        const double wanted = len > 50 ? 1 : 0;
        section.rows.push_back({"vormDotProduct_vv_" + size, 1,
                                [=] {
                                    T *const a = Memory::region<T>(len), *const b = Memory::region<T>(len);
                                    T* const dst = Memory::region<T>(1);
                                    fill(a, len), fill(b, len);
                                    return Task{{{"vorm", [=] { members.dot(a, e, b, e, dst, len); }},
                                                 {"Eigen", [=] { *dst = Vector(a, len).dot(Vector(b, len)); }}}};
                                },
                                wanted});
        section.rows.push_back({"vormL2Norm_v_" + size, 1,
                                [=] {
                                    T *const a = Memory::region<T>(len), *const dst = Memory::region<T>(1);
                                    fill(a, len);
                                    return Task{{{"vorm", [=] { members.norm(a, e, dst, len); }},
                                                 {"Eigen", [=] { *dst = Vector(a, len).norm(); }}}};
                                },
                                wanted});
    }
}

struct MeasureSections {
    Section &resident, &streaming, &list, &planes, &singles;
};

template <class Op, Shape shape, class T, int... n>
void addShape(MeasureSections& s, auto members, std::integer_sequence<int, n...>)
{
    (..., [&] {
        constexpr bool isMatrix = shape == Shape::ma, isTrace = std::is_same_v<Op, Trace>;
        constexpr int rows = isMatrix ? n : 1;
        const auto add = [&](Section& section, auto layout, int count, double wanted) {
            section.rows.push_back({std::string(members.name) + " " + std::to_string(n), count,
                                    [=] {
                                        const auto in = [=](auto sizes) {
                                            return results<Op, shape, rows, n, layout(), T>(members, sizes, count);
                                        };
                                        if constexpr (isMatrix && !isTrace)
                                            return in(std::tuple(n, n));
                                        else
                                            return in(std::tuple(n));
                                    },
                                    wanted});
        };
        constexpr double wanted = n <= 6 ? 1.2 : 1;
        const int streaming = static_cast<int>(streamingBytes() / (rows * n * sizeof(T)) / 16 * 16);
        add(s.resident, LayoutOf<Layout::packed>{}, residentObjects, wanted);
        if constexpr (n == 3) add(s.streaming, LayoutOf<Layout::packed>{}, streaming, 1);
        add(s.list, LayoutOf<Layout::list>{}, residentObjects, 1);
        add(s.planes, LayoutOf<Layout::planes>{}, residentObjects, n <= 6 ? 1.2 : 0);
    }());
}

// Each element type in its own file.
void addAll32f(MeasureSections& s);
void addAll64f(MeasureSections& s);

}  // namespace bench::measures
