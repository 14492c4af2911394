// Matrix products, single and over arrays, against Eigen (fixed-size maps, row or column major, object
// by object), libxsmm held to SSE (one call per object), and glm for orders 3 and 4. A sum's order is
// each contestant's own, so that results are not compared here.

#include <libxsmm.h>

#include <Eigen/Core>
#include <array>
#include <glm/glm.hpp>
#include <type_traits>

#include "members.hpp"
#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench {

namespace {

enum class Shared { none, first, second };
enum class Layout { packed, list, planes };

// Held to SSE, or as wide as this processor allows. The one with the signature of a prefetching kernel is
// another kernel for libxsmm, which would hand out the first one again.
enum class Width { sse, widest };
template <class T>
auto xsmmKernel(int n, Width width)
{
    static const int widestId = [] {
        libxsmm_init();
        return libxsmm_get_target_archid();
    }();
    libxsmm_set_target_archid(width == Width::sse ? LIBXSMM_X86_SSE4 : widestId);
    const T one = 1, zero = 0;
    const int flags = LIBXSMM_GEMM_FLAG_NONE;
    const int prefetch = width == Width::sse ? LIBXSMM_PREFETCH_NONE : LIBXSMM_PREFETCH_SIGONLY;
    if constexpr (std::is_same_v<T, float>)
        return libxsmm_smmdispatch(n, n, n, nullptr, nullptr, nullptr, &one, &zero, &flags, &prefetch);
    else
        return libxsmm_dmmdispatch(n, n, n, nullptr, nullptr, nullptr, &one, &zero, &flags, &prefetch);
}

template <bool transposed, class M>
decltype(auto) asUsed(const M& m)
{
    if constexpr (transposed)
        return m.transpose();
    else
        return (m);
}

// Moves the bytes of a packed row and adds where there is something to add.
template <class T>
[[gnu::noinline]] void moveBytes(const T* a, const T* b, T* dst, std::ptrdiff_t elements)
{
    using Long = Eigen::Array<T, Eigen::Dynamic, 1>;
    if (a && b)
        Eigen::Map<Long>(dst, elements) = Eigen::Map<const Long>(a, elements) + Eigen::Map<const Long>(b, elements);
    else
        Eigen::Map<Long>(dst, elements) = Eigen::Map<const Long>(a ? a : b, elements);
}

template <class T, int n, bool t1, bool t2, Shared shared, Layout layout, class M>
Task productTask(const M& members, int count)
{
    constexpr int e = sizeof(T), s1 = n * e, s0 = n * s1, square = n * n;
    constexpr bool array1 = shared != Shared::first, array2 = shared != Shared::second;
    const int plane = (count + 15) / 16 * 16 + 7 * 64 / e;
    const std::ptrdiff_t elements =
        layout == Layout::planes ? std::ptrdiff_t{square} * plane : std::ptrdiff_t{square} * count;
    T *const a = Memory::region<T>(elements), *const b = Memory::region<T>(elements),
             *const d = Memory::region<T>(elements);
    fill(a, elements), fill(b, elements), fill(d, elements);
    T** tables[3];
    for (int k = 0; k < 3; ++k) {
        T* const data = k == 0 ? a : k == 1 ? b : d;
        constexpr int stirred[] = {387, 621, 783};
        tables[k] = Memory::region<T*>(std::max(count, square));
        const bool isArray = k == 0 ? array1 : k == 1 ? array2 : true;
        if (layout == Layout::list)
            for (int o = 0; o < count; ++o) tables[k][o] = data + std::int64_t{o} * stirred[k] % count * square;
        else
            for (int i = 0; i < square; ++i) tables[k][i] = data + i * std::ptrdiff_t{isArray ? plane : 1};
    }
    T **const ta = tables[0], **const tb = tables[1], **const td = tables[2];

    Task task;
    const auto add = [&](const std::string& name, auto work) { task.contestants.push_back({name, work}); };
    if constexpr (layout == Layout::packed) {
        const auto call = members.standard;
        if constexpr (shared == Shared::none)
            add("vorm", [=] { call(a, s0, s1, e, n, n, b, s0, s1, e, n, n, d, s0, s1, e, count); });
        else if constexpr (array1)
            add("vorm", [=] { call(a, s0, s1, e, n, n, b, s1, e, n, n, d, s0, s1, e, count); });
        else
            add("vorm", [=] { call(a, s1, e, n, n, b, s0, s1, e, n, n, d, s0, s1, e, count); });
        add(bandwidth, [=] { moveBytes(array1 ? a : nullptr, array2 ? b : nullptr, d, elements); });
    } else if constexpr (layout == Layout::list) {
        const auto call = members.list;
        if constexpr (shared == Shared::none)
            add("vorm", [=] { call(ta, 0, s1, e, n, n, tb, 0, s1, e, n, n, td, 0, s1, e, count); });
        else if constexpr (array1)
            add("vorm", [=] { call(ta, 0, s1, e, n, n, b, s1, e, n, n, td, 0, s1, e, count); });
        else
            add("vorm", [=] { call(a, s1, e, n, n, tb, 0, s1, e, n, n, td, 0, s1, e, count); });
    } else {
        const auto call = members.pointers;
        if constexpr (shared == Shared::none)
            add("vorm", [=] { call(ta, 0, e, n, n, tb, 0, e, n, n, td, 0, e, count); });
        else if constexpr (array1)
            add("vorm", [=] { call(ta, 0, e, n, n, tb, 0, n, n, td, 0, e, count); });
        else
            add("vorm", [=] { call(ta, 0, n, n, tb, 0, e, n, n, td, 0, e, count); });
        // Our own standard layout, on the same number of objects, is what this layout is held to.
        const auto standard = members.standard;
        if constexpr (shared == Shared::none)
            add("packed", [=] { standard(a, s0, s1, e, n, n, b, s0, s1, e, n, n, d, s0, s1, e, count); });
        else if constexpr (array1)
            add("packed", [=] { standard(a, s0, s1, e, n, n, b, s1, e, n, n, d, s0, s1, e, count); });
        else
            add("packed", [=] { standard(a, s1, e, n, n, b, s0, s1, e, n, n, d, s0, s1, e, count); });
        return task;
    }

    const auto object = [=](int operand, int o) {
        T* const data = operand == 0 ? a : operand == 1 ? b : d;
        const bool isArray = operand == 0 ? array1 : operand == 1 ? array2 : true;
        if (!isArray) return data;
        return layout == Layout::list ? (operand == 0   ? ta
                                         : operand == 1 ? tb
                                                        : td)[o]
                                      : data + std::ptrdiff_t{o} * square;
    };
    const auto eigen = [&]<int order>(const char* name) {
        add(name, [=] {
            using Object = Eigen::Matrix<T, n, n, order>;
            // A column-major map sees the transposed matrix, and D' = B' A'.
            constexpr bool swapped = order == Eigen::ColMajor;
            const Object common = Eigen::Map<const Object>(shared == Shared::first ? a : b);
            for (int o = 0; o < count; ++o) {
                const Eigen::Map<const Object> mapA(object(0, o)), mapB(object(1, o));
                Eigen::Map<Object> dst(object(2, o));
                const auto multiply = [&](const auto& x, const auto& y) {
                    if constexpr (swapped)
                        dst.noalias() = asUsed<t2>(y) * asUsed<t1>(x);
                    else
                        dst.noalias() = asUsed<t1>(x) * asUsed<t2>(y);
                };
                if constexpr (shared == Shared::first)
                    multiply(common, mapB);
                else if constexpr (shared == Shared::second)
                    multiply(mapA, common);
                else
                    multiply(mapA, mapB);
            }
        });
    };
    eigen.template operator()<Eigen::RowMajor>("Eigen, rows");
    eigen.template operator()<Eigen::ColMajor>("Eigen, columns");
    if constexpr (!t1 && !t2) {
        const auto kernel = xsmmKernel<T>(n, Width::sse);
        add("libxsmm", [=] {
            for (int o = 0; o < count; ++o) kernel(object(1, o), object(0, o), object(2, o));
        });
        const auto wide = xsmmKernel<T>(n, Width::widest);
        add(widest, [=] {
            for (int o = 0; o < count; ++o) {
                T *const first = object(1, o), *const second = object(0, o), *const to = object(2, o);
                wide(first, second, to, first, second, to);
            }
        });
        if constexpr (n <= 4)
            add("glm", [=] {
                using Object = glm::mat<n, n, T>;
                const auto at = [&](int operand, int o) -> Object& {
                    return *reinterpret_cast<Object*>(object(operand, o));
                };
                const Object common = at(shared == Shared::first ? 0 : 1, 0);
                for (int o = 0; o < count; ++o) at(2, o) = (array2 ? at(1, o) : common) * (array1 ? at(0, o) : common);
            });
    }
    return task;
}

struct ProductSections {
    Section &packed, &streaming, &list, &planes;
};

// wanted: the ratios for orders 3 to 6, resident and packed
template <class T, bool t1, bool t2, Shared shared, class M>
void addShape(const ProductSections& s, const M& members, std::array<double, 4> wanted)
{
    const auto addOrder = [&]<int n>() {
        const std::string name = std::string(members.name) + " order " + std::to_string(n);
        const auto add = [&]<Layout layout>(Section& section, int count, double ratio) {
            section.rows.push_back(
                {name, count, [=] { return productTask<T, n, t1, t2, shared, layout>(members, count); }, ratio});
        };
        add.template operator()<Layout::packed>(s.packed, residentObjects, wanted[n - 3]);
        add.template operator()<Layout::packed>(s.streaming,
                                                static_cast<int>(streamingBytes() / (n * n * sizeof(T)) / 16 * 16), 1);
        add.template operator()<Layout::list>(s.list, residentObjects, 0);
        add.template operator()<Layout::planes>(s.planes, residentObjects, 1);
    };
    addOrder.template operator()<3>();
    addOrder.template operator()<4>();
    addOrder.template operator()<5>();
    addOrder.template operator()<6>();
}

// One product of larger matrices.
template <class T, class Function>
void addSingle(Section& section, const char* name, Function* ours)
{
    for (const int n : {8, 16, 32, 64})
        section.rows.push_back({std::string(name) + " order " + std::to_string(n), 1,
                                [=] {
                                    using Any = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
                                    constexpr int e = sizeof(T);
                                    T *const a = Memory::region<T>(n * n), *const b = Memory::region<T>(n * n),
                                             *const d = Memory::region<T>(n * n);
                                    fill(a, n * n), fill(b, n * n);
                                    const auto kernel = xsmmKernel<T>(n, Width::sse);
                                    const auto wide = xsmmKernel<T>(n, Width::widest);
                                    return Task{
                                        {{"vorm", [=] { ours(a, n * e, e, n, n, b, n * e, e, n, n, d, n * e, e); }},
                                         {"libxsmm", [=] { kernel(b, a, d); }},
                                         {widest, [=] { wide(b, a, d, b, a, d); }},
                                         {"Eigen", [=] {
                                              Eigen::Map<Any>(d, n, n).noalias() =
                                                  Eigen::Map<const Any>(a, n, n) * Eigen::Map<const Any>(b, n, n);
                                          }}}};
                                },
                                0.9});
}

}  // namespace

void addMatrixProducts(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    const ProductSections s{
        section("Matrix products, packed, resident", resident + ", no gap between them."),
        section("Matrix products, packed, streaming", std::to_string(streamingBytes() >> 20) + " MiB per array."),
        section("Matrix products in a list, resident", resident + ", packed but visited out of order."),
        section("Matrix products as structure of arrays, resident", resident + ". Peer: our own packed layout."),
    };
    using enum Shared;
    addShape<float, false, false, none>(s, BENCH_MEMBERS(vormMul_mama_32f), {1.6, 1.4, 1.8, 1.8});
    addShape<float, true, false, none>(s, BENCH_MEMBERS(vormMul_tama_32f), {1.8, 1.8, 1.8, 1.8});
    addShape<float, false, true, none>(s, BENCH_MEMBERS(vormMul_mata_32f), {1.8, 1.8, 1.8, 1.8});
    addShape<float, false, false, second>(s, BENCH_MEMBERS(vormMul_mam_32f), {1.5, 1.5, 1.5, 1.5});
    addShape<float, false, false, first>(s, BENCH_MEMBERS(vormMul_mma_32f), {});
    addShape<double, false, false, none>(s, BENCH_MEMBERS(vormMul_mama_64f), {1.3, 1.3, 1.3, 1.3});
    addShape<double, true, false, none>(s, BENCH_MEMBERS(vormMul_tama_64f), {1.5, 1.5, 1.5, 1.5});
    addShape<double, false, true, none>(s, BENCH_MEMBERS(vormMul_mata_64f), {1.5, 1.5, 1.5, 1.5});
    addShape<double, false, false, second>(s, BENCH_MEMBERS(vormMul_mam_64f), {1.3, 1.3, 1.3, 1.3});
    addShape<double, false, false, first>(s, BENCH_MEMBERS(vormMul_mma_64f), {});
    Section& single = section("Single matrix products", "One object, resident.");
    addSingle<float>(single, "vormMul_mm_32f", vormMul_mm_32f);
    addSingle<double>(single, "vormMul_mm_64f", vormMul_mm_64f);
}

}  // namespace bench
