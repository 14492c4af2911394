// vormExtract of matrices, against what a user could write for the same memory:
//   memcpy        of the whole array, where it is packed; of each object, in a list
//   fixed loop    object by object through Eigen's fixed-size maps
//   plain loop    over all elements, the sizes known to the compiler
// The bandwidth is that of a memcpy of as many bytes.

#include <cstring>

#include "members.hpp"
#include "vector_products.hpp"

namespace bench {

namespace {

using vectorProducts::Layout;
using vectorProducts::Operand;

template <int n, class T>
using Rows = Eigen::Matrix<T, n, n, Eigen::RowMajor>;

template <int n, class T, class At>
[[gnu::noinline]] void plainLoop(const At& at, T* __restrict dst, int count)
{
    for (int object = 0; object < count; ++object)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) dst[(object * n + r) * n + c] = *at(object, r, c);
}

// Rows with so many elements behind each of them; isTurned reads the transposes.
template <int n, class T, bool isTurned, int padding, class Function>
Task strided(Function* ours, int count)
{
    constexpr int e = sizeof(T), row = n + padding, size = n * row;
    T* const src = Memory::region<T>(std::ptrdiff_t{size} * count);
    fill(src, std::ptrdiff_t{size} * count);
    T* const dst = Memory::region<T>(std::ptrdiff_t{n} * n * count);
    const std::size_t bytes = sizeof(T) * n * n * static_cast<std::size_t>(count);
    Task task;
    const auto add = [&](const std::string& name, auto work) { task.contestants.push_back({name, work}); };
    add("vorm", [=] { ours(src, size * e, row * e, e, dst, n, n, count); });
    add("fixed loop", [=] {
        for (std::ptrdiff_t object = 0; object < count; ++object) {
            const Eigen::Map<const Rows<n, T>, 0, Eigen::OuterStride<row>> from(src + object * size);
            Eigen::Map<Rows<n, T>> to(dst + object * n * n);
            if constexpr (isTurned)
                to = from.transpose();
            else
                to = from;
        }
    });
    add("plain loop", [=] {
        plainLoop<n>([src](std::ptrdiff_t object, int r,
                           int c) { return src + object * size + (isTurned ? c * row + r : r * row + c); },
                     dst, count);
    });
    const auto copy = [=] { std::memcpy(dst, src, bytes); };
    add(isTurned || padding ? bandwidth : "memcpy", copy);
    if (isTurned || padding == 0) task.result = {reinterpret_cast<std::byte*>(dst), bytes};
    return task;
}

template <int n, class T, Layout layout, class Function>
Task tabled(Function* ours, int count)
{
    const Operand<T, n * n, true, layout> src(0, count);
    T* const dst = Memory::region<T>(std::ptrdiff_t{n} * n * count);
    const std::size_t bytes = sizeof(T) * n * n * static_cast<std::size_t>(count);
    Task task;
    const auto add = [&](const std::string& name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = std::tuple_cat(src.template arguments<n, true>(), std::tuple(dst, n, n, count));
    add("vorm", [=] { std::apply(ours, arguments); });
    if constexpr (layout == Layout::list)
        add("memcpy", [=] {
            for (int object = 0; object < count; ++object)
                std::memcpy(dst + object * n * n, src.table[object], sizeof(T) * n * n);
        });
    else
        add("plain loop", [=] {
            T* planes[n * n];
            std::copy(src.table, src.table + n * n, planes);
            plainLoop<n>([&planes](std::ptrdiff_t object, int r, int c) { return planes[r * n + c] + object; }, dst,
                         count);
        });
    add(bandwidth, [=] { std::memcpy(dst, src.data, bytes); });
    task.result = {reinterpret_cast<std::byte*>(dst), bytes};
    return task;
}

struct ExtractSections {
    Section &packed, &padded, &turned, &list, &planes;
};

template <class T, int... n, class M, class Turned>
void addShape(ExtractSections& s, const M& member, Turned* turned)
{
    (..., [&] {
        const std::string edge = std::to_string(n), size = edge + "x" + edge;
        const auto add = [&](Section& section, const std::string& name, double wanted, auto prepare) {
            section.rows.push_back(
                {name + " " + size, residentObjects, [=] { return prepare(residentObjects); }, wanted});
        };
        const std::string stem = member.name;
        add(s.packed, stem, 1, [=](int count) { return strided<n, T, false, 0>(member.standard, count); });
        add(s.padded, stem, 1, [=](int count) { return strided<n, T, false, 1>(member.standard, count); });
        add(s.turned, std::string(sizeof(T) == 4 ? "vormExtract_ta_32f" : "vormExtract_ta_64f"), 1,
            [=](int count) { return strided<n, T, true, 0>(turned, count); });
        add(s.list, stem + "_L", 1, [=](int count) { return tabled<n, T, Layout::list>(member.list, count); });
        add(s.planes, stem + "_P", 1, [=](int count) { return tabled<n, T, Layout::planes>(member.pointers, count); });
    }());
}

}  // namespace

void addExtract(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::to_string(residentObjects) + std::move(about)});
    };
    ExtractSections s{
        section("Extract, packed", " matrices without gaps."),
        section("Extract, rows with gaps", " matrices, an element behind each row."),
        section("Extract, transposed", " matrices without gaps."),
        section("Extract from a list", " matrices, packed but visited out of order."),
        section("Extract from a structure of arrays", " matrices, one plane per element."),
    };
    addShape<float, 3, 4, 5, 6>(s, BENCH_MEMBERS(vormExtract_ma_32f), vormExtract_ta_32f);
    addShape<double, 3, 4, 5, 6>(s, BENCH_MEMBERS(vormExtract_ma_64f), vormExtract_ta_64f);
}

}  // namespace bench
