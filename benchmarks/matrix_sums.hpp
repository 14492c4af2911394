// Sums and differences of matrices and their products by constants, against Eigen in the forms a user could choose:
//   long map      packed arrays as one long vector; a common matrix repeated in memory beforehand
//   fixed loop    object by object through fixed-size maps; a common matrix copied to a local
//   plane by plane, for structures of arrays: one long vector for each element
// Structures of arrays are held to our own packed layout as well.
#pragma once

#include <Eigen/Core>
#include <array>
#include <tuple>

#include "members.hpp"
#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench::matrices {

enum class Kind { array, common, constant };
enum class Layout { packed, pitched, list, planes };

struct Add {
    auto operator()(const auto& a, const auto& b) const { return a + b; }
};
struct Sub {
    auto operator()(const auto& a, const auto& b) const { return a - b; }
};
struct Mul {
    auto operator()(const auto& a, const auto& b) const { return a * b; }
};

// An operand of n x n elements in the form of every contestant. With a pitch there is one element behind each row.
template <class T, int n, Kind kind, bool isTransposed, Layout layout>
class Operand {
public:
    using Object = Eigen::Array<T, n, n, Eigen::RowMajor>;
    using Long = Eigen::Array<T, Eigen::Dynamic, 1>;
    static constexpr int bytes = sizeof(T), pitch = layout == Layout::pitched ? n + 1 : n, size = pitch * n;
    using Place = Eigen::Map<Object, 0, Eigen::OuterStride<pitch>>;

    Operand(int index, int count) : count_(count)
    {
        if constexpr (kind == Kind::constant) return;
        plane_ = (count + 15) / 16 * 16 + 7 * 64 / bytes;
        const std::ptrdiff_t elements = kind == Kind::common       ? size
                                        : layout == Layout::planes ? plane_ * size
                                                                   : std::ptrdiff_t{size} * count;
        flat_ = data_ = Memory::region<T>(elements);
        fill(data_, elements);
        if constexpr (kind == Kind::common) {
            object_ = Place(data_);
            if constexpr (layout == Layout::packed) {
                flat_ = Memory::region<T>(std::ptrdiff_t{size} * count);
                for (int o = 0; o < count; ++o) Place(flat_ + std::ptrdiff_t{o} * size) = object_;
            }
        }
        constexpr int stirred[] = {387, 621, 783};
        if constexpr (layout == Layout::list && kind == Kind::array) {
            table_ = Memory::region<T*>(count);
            for (int o = 0; o < count; ++o) table_[o] = data_ + std::int64_t{o} * stirred[index] % count * size;
        }
        if constexpr (layout == Layout::planes) {
            table_ = Memory::region<T*>(size);
            for (int i = 0; i < size; ++i) table_[i] = data_ + i * (kind == Kind::array ? plane_ : 1);
        }
    }

    // As arguments of our functions; in another layout those of the packed one.
    template <Layout as = layout>
    auto arguments() const
    {
        constexpr int row = pitch * bytes;
        if constexpr (kind == Kind::constant)
            return std::tuple(val_);
        else if constexpr (as == Layout::planes && kind == Kind::array)
            return std::tuple(table_, 0, bytes);
        else if constexpr (as == Layout::planes)
            return std::tuple(table_, 0);
        else if constexpr (as == Layout::list && kind == Kind::array)
            return std::tuple(table_, 0, row, bytes);
        else if constexpr (kind == Kind::array)
            return std::tuple(data_, n * row, row, bytes);
        else
            return std::tuple(data_, row, bytes);
    }

    // One object as it is stored, and as it is read.
    decltype(auto) stored(std::ptrdiff_t o) const
    {
        if constexpr (kind == Kind::common)
            return (object_);
        else if constexpr (layout == Layout::list)
            return Place(table_[o]);
        else
            return Place(data_ + o * size);
    }
    auto at(std::ptrdiff_t o) const
    {
        if constexpr (kind == Kind::constant)
            return val_;
        else if constexpr (isTransposed)
            return stored(o).transpose();
        else
            return stored(o);
    }
    auto flat() const
    {
        if constexpr (kind == Kind::constant)
            return val_;
        else
            return Eigen::Map<Long>(flat_, Eigen::Index{size} * count_);
    }
    auto plane(int r, int c) const
    {
        const int i = isTransposed ? c * n + r : r * n + c;
        if constexpr (kind == Kind::constant)
            return val_;
        else if constexpr (kind == Kind::common)
            return *table_[i];
        else
            return Eigen::Map<Long>(table_[i], count_);
    }
    std::span<std::byte> memory() const
    {
        return {reinterpret_cast<std::byte*>(data_), std::size_t(size) * std::size_t(count_) * sizeof(T)};
    }

private:
    T *data_ = nullptr, *flat_ = nullptr;
    T** table_ = nullptr;
    std::ptrdiff_t plane_ = 0;
    int count_;
    T val_ = T(1.25);
    Object object_ = Object::Zero();
};

template <class Op, class T, int n, Kind kindA, bool t1, Kind kindB, bool t2, Layout layout, class M>
Task task(const M& members, int count)
{
    const Operand<T, n, kindA, t1, layout> a(0, count);
    const Operand<T, n, kindB, t2, layout> b(1, count);
    const Operand<T, n, Kind::array, false, layout> dst(2, count);
    const Op op;

    Task task;
    const auto add = [&](const std::string& name, auto work) { task.contestants.push_back({name, work}); };
    const auto arguments = std::tuple_cat(a.arguments(), b.arguments(), dst.arguments(), std::tuple(n, n, count));
    if constexpr (layout == Layout::planes) {
        add("vorm", [=, ours = members.pointers] { std::apply(ours, arguments); });
        const auto packed =
            std::tuple_cat(a.template arguments<Layout::packed>(), b.template arguments<Layout::packed>(),
                           dst.template arguments<Layout::packed>(), std::tuple(n, n, count));
        add("packed", [=, ours = members.standard] { std::apply(ours, packed); });
        add("plane by plane", [=] {
            for (int r = 0; r < n; ++r)
                for (int c = 0; c < n; ++c) dst.plane(r, c) = op(a.plane(r, c), b.plane(r, c));
        });
    } else {
        if constexpr (layout == Layout::list)
            add("vorm", [=, ours = members.list] { std::apply(ours, arguments); });
        else
            add("vorm", [=, ours = members.standard] { std::apply(ours, arguments); });
        if constexpr (layout == Layout::packed) {
            const auto longMap = [=] { dst.flat() = op(a.flat(), b.flat()); };
            if constexpr (!t1 && !t2) add("long map", longMap);
            // Turned or not, the bytes moved are the same.
            if constexpr (kindA == Kind::array && kindB == Kind::array)
                add(bandwidth, longMap);
            else if constexpr (kindA == Kind::array)
                add(bandwidth, [=] { dst.flat() = a.flat() + T(1); });
            else
                add(bandwidth, [=] { dst.flat() = b.flat() + T(1); });
        }
        add("fixed loop", [=] {
            const auto localA = a;  // held in registers, not read again after each store
            const auto localB = b;
            const auto localDst = dst;
            for (int o = 0; o < count; ++o) localDst.stored(o) = op(localA.at(o), localB.at(o));
        });
        if (count <= residentObjects) task.result = dst.memory();
    }
    return task;
}

struct SumSections {
    Section &packed, &packedStreaming, &pitched, &pitchedStreaming, &list, &planes, &planesStreaming;
};

template <class Op, class T, Kind kindA, bool t1, Kind kindB, bool t2, int... n, class M>
void addShape(SumSections& s, const M& members)
{
    constexpr bool isTurned = t1 || t2;
    const auto addRow = [&]<int order, Layout layout>(Section* resident, Section* streaming, double wanted) {
        const auto add = [&](Section& section, int count, double ratio) {
            section.rows.push_back({std::string(members.name) + " order " + std::to_string(order), count,
                                    [=] { return task<Op, T, order, kindA, t1, kindB, t2, layout>(members, count); },
                                    order <= 6 ? ratio : 0});
        };
        add(*resident, residentObjects, wanted);
        const std::size_t object = Operand<T, order, Kind::array, false, layout>::size * sizeof(T);
        if (streaming) add(*streaming, static_cast<int>(streamingBytes() / object / 16 * 16), isTurned ? 0 : 1);
    };
    const auto turned = [](int order) { return !isTurned ? 1 : order <= 4 ? 1.3 : 0; };
    (..., [&] {
        constexpr bool shown = n == 3 || n == 4;
        addRow.template operator()<n, Layout::packed>(&s.packed, n <= 6 ? &s.packedStreaming : nullptr, turned(n));
        addRow.template operator()<n, Layout::pitched>(&s.pitched, shown ? &s.pitchedStreaming : nullptr, 1);
        addRow.template operator()<n, Layout::list>(&s.list, nullptr, 1);
        addRow.template operator()<n, Layout::planes>(&s.planes, shown ? &s.planesStreaming : nullptr, 1);
    }());
}

// Each element type in its own file.
template <class T>
void addShapes(SumSections& sections);
template <>
void addShapes<float>(SumSections& sections);
template <>
void addShapes<double>(SumSections& sections);

}  // namespace bench::matrices
