// What subjects have in common whose arrays are measured in all layouts: the arrays, the arguments they make, our own
// contestants and the rows of a member.
#pragma once

#include <memory>
#include <numeric>
#include <string>
#include <tuple>
#include <vector>

#include "members.hpp"
#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench {

enum class Layout { packed, list, planes };

// An array of matrices or vectors, stored side by side; as a list visited out of order, or in planes.
template <class T>
struct Array {
    T* data;
    T** table = nullptr;
    int rows, columns;

    Array(int rows_, int columns_, int count, Layout layout, int stirred) : rows(rows_), columns(columns_)
    {
        const int size = rows * columns;
        const std::ptrdiff_t planeStep = (count + 15) / 16 * 16 + 7 * 64 / int{sizeof(T)};
        const std::ptrdiff_t elements = std::max<std::ptrdiff_t>(planeStep, count) * size;
        data = Memory::region<T>(elements);
        fill(data, elements);
        table = Memory::region<T*>(std::max(count, size));
        if (layout == Layout::list)
            for (int n = 0; n < count; ++n) table[n] = data + std::int64_t{n} * stirred % count * size;
        if (layout == Layout::planes)
            for (int i = 0; i < size; ++i) table[i] = data + i * planeStep;
    }
    T* at(int n, Layout layout) const
    {
        return layout == Layout::list ? table[n] : data + std::ptrdiff_t{n} * rows * columns;
    }
};

// As arguments of our functions.
template <class T>
auto matrixArguments(const Array<T>& a, auto layout)
{
    const int e = sizeof(T), row = a.columns * e;
    if constexpr (layout() == Layout::packed) return std::tuple(a.data, a.rows * row, row, e);
    if constexpr (layout() == Layout::list) return std::tuple(a.table, 0, row, e);
    if constexpr (layout() == Layout::planes) return std::tuple(a.table, 0, e);
}
template <class T>
auto vectorArguments(const Array<T>& a, auto layout)
{
    const int e = sizeof(T);
    if constexpr (layout() == Layout::packed) return std::tuple(a.data, a.columns * e, e);
    if constexpr (layout() == Layout::list) return std::tuple(a.table, 0, e);
    if constexpr (layout() == Layout::planes) return std::tuple(a.table, 0, e);
}
template <class T>
auto commonArguments(const Array<T>& a, auto layout)
{
    const int e = sizeof(T);
    if constexpr (layout() == Layout::planes)
        return std::tuple(a.table, 0);
    else
        return std::tuple(a.data, a.columns * e, e);
}

template <Layout value>
struct LayoutOf {
    constexpr Layout operator()() const { return value; }
};

// Ours, with these arguments; of planes beside the standard layout, with what packed() makes, and without peers.
template <Layout layout>
bool addOurs(Task& task, auto members, auto all, auto packed)
{
    const auto add = [&](const char* name, auto member, auto arguments) {
        task.contestants.push_back({name, [=] { std::apply(member, arguments); }});
    };
    if constexpr (layout == Layout::packed) add("vorm", members.standard, all);
    if constexpr (layout == Layout::list) add("vorm", members.list, all);
    if constexpr (layout == Layout::planes) {
        add("vorm", members.pointers, all);
        add("vorm, standard layout", members.standard, packed());
    }
    return layout == Layout::planes;
}

// The sections of a subject.
struct LayoutSections {
    Section &resident, &streaming, &list, &planes;
};
inline LayoutSections addLayoutSections(Sections& sections, const std::string& subject)
{
    const auto section = [&](const std::string& where, const std::string& about) -> Section& {
        return sections.emplace_back(Section{subject + where, about});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    return {section(", resident", resident + ", packed."),
            section(", streaming", std::to_string(streamingBytes() >> 20) + " MiB of matrices, packed."),
            section(" in a list, resident", resident + ", packed but visited out of order."),
            section(" as structure of arrays, resident", resident + ", a pointer table and one plane per element.")};
}

// The ratios that a member is held to.
struct Wanted {
    double resident, planes;
    bool streams = true;
};

// The rows of a member for matrices of one shape: taskOf(layout, count) prepares one of them.
template <class T>
void addInLayouts(LayoutSections& s, const char* member, int rows, int columns, const Wanted& wanted, auto taskOf)
{
    const int streaming = static_cast<int>(streamingBytes() / (std::size_t(rows * columns) * sizeof(T)) / 16 * 16);
    const std::string name = std::string(member) + " " + std::to_string(rows) + "x" + std::to_string(columns);
    const auto add = [&](Section& section, int count, double ratio, auto layout) {
        section.rows.push_back({name, count, [=] { return taskOf(layout, count); }, ratio});
    };
    add(s.resident, residentObjects, wanted.resident, LayoutOf<Layout::packed>{});
    if (wanted.streams) add(s.streaming, streaming, 1, LayoutOf<Layout::packed>{});
    add(s.list, residentObjects, 1, LayoutOf<Layout::list>{});
    add(s.planes, residentObjects, wanted.planes, LayoutOf<Layout::planes>{});
}

}  // namespace bench
