// Data movement: copies between layouts, identities and transposes, against Eigen, the loop a user would write, and
// memcpy of as many bytes, which is the bandwidth.
#pragma once

#include <Eigen/Core>
#include <algorithm>
#include <cstring>
#include <span>
#include <string>

#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench::movement {

template <class T>
using Packed = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

// An array of packed matrices, the same in a list, and as structure of arrays: each of the other tables leads
// elsewhere.
template <class T>
struct Arrays {
    int order, size, count;
    std::ptrdiff_t elements, planeStep;
    T *packed, *other, *planes;
    T **list, **table;

    Arrays(int order_, int count_)
        : order(order_),
          size(order * order),
          count(count_),
          elements(std::ptrdiff_t{count} * size),
          planeStep((count + 15) / 16 * 16 + 7 * 64 / int{sizeof(T)}),
          packed(Memory::region<T>(elements)),
          other(Memory::region<T>(elements)),
          planes(Memory::region<T>(planeStep * size)),
          list(Memory::region<T*>(count)),
          table(Memory::region<T*>(size))
    {
        fill(packed, elements), fill(other, elements);
        fill(planes, planeStep * size);
        for (int n = 0; n < count; ++n) list[n] = packed + std::int64_t{n} * 387 % count * size;
        for (int i = 0; i < size; ++i) table[i] = planes + i * planeStep;
    }
    int objectBytes() const { return size * int{sizeof(T)}; }
    int rowBytes() const { return order * int{sizeof(T)}; }
    Contestant bandwidthOf() const
    {
        return {bandwidth, [to = other, from = packed, bytes = std::size_t(elements) * sizeof(T)] {
                    std::memcpy(to, from, bytes);
                }};
    }
    // The same numbers as a matrix of a row for each object, and of a row for each plane.
    auto objects(T* p) const { return Eigen::Map<Packed<T>>(p, count, size); }
    auto planesOf(T* p) const
    {
        return Eigen::Map<Packed<T>, 0, Eigen::OuterStride<>>(p, size, count, Eigen::OuterStride<>(planeStep));
    }
};
template <class T>
std::span<std::byte> bytesOf(T* p, std::ptrdiff_t elements)
{
    return std::as_writable_bytes(std::span(p, std::size_t(elements)));
}

template <class T, int order>
Task toPlanes(auto copy, int count)
{
    const Arrays<T> a(order, count);
    constexpr int e = sizeof(T);
    return {{{"vorm", [=] { copy(a.packed, a.objectBytes(), a.rowBytes(), e, a.table, 0, e, order, order, a.count); }},
             {"Eigen", [=] { a.planesOf(a.planes) = a.objects(a.packed).transpose(); }},
             {"plain loop",
              [=] {
                  for (int n = 0; n < a.count; ++n)
                      for (int i = 0; i < order * order; ++i) a.table[i][n] = a.packed[n * a.size + i];
              }},
             a.bandwidthOf()},
            bytesOf(a.planes, a.planeStep * a.size)};
}
template <class T, int order>
Task fromPlanes(auto copy, int count)
{
    const Arrays<T> a(order, count);
    constexpr int e = sizeof(T);
    return {{{"vorm", [=] { copy(a.table, 0, e, a.packed, a.objectBytes(), a.rowBytes(), e, order, order, a.count); }},
             {"Eigen", [=] { a.objects(a.packed) = a.planesOf(a.planes).transpose(); }},
             {"plain loop",
              [=] {
                  for (int n = 0; n < a.count; ++n)
                      for (int i = 0; i < order * order; ++i) a.packed[n * a.size + i] = a.table[i][n];
              }},
             a.bandwidthOf()},
            bytesOf(a.packed, a.elements)};
}
template <class T, int order>
Task fromList(auto copy, int count)
{
    const Arrays<T> a(order, count);
    constexpr int e = sizeof(T);
    return {
        {{"vorm",
          [=] { copy(a.list, 0, a.rowBytes(), e, a.other, a.objectBytes(), a.rowBytes(), e, order, order, a.count); }},
         {"loop of copies",
          [=] {
              for (int n = 0; n < a.count; ++n)
                  std::memcpy(a.other + n * order * order, a.list[n], order * order * sizeof(T));
          }},
         a.bandwidthOf()},
        bytesOf(a.other, a.elements)};
}
template <class T, int order>
Task packedToPacked(auto copy, int count)
{
    const Arrays<T> a(order, count);
    constexpr int e = sizeof(T);
    return {{{"vorm",
              [=] {
                  copy(a.packed, a.objectBytes(), a.rowBytes(), e, a.other, a.objectBytes(), a.rowBytes(), e, order,
                       order, a.count);
              }},
             {"Eigen", [=] { a.objects(a.other) = a.objects(a.packed); }},
             a.bandwidthOf()},
            bytesOf(a.other, a.elements)};
}
template <class T, int order>
Task identities(auto load, int count)
{
    const Arrays<T> a(order, count);
    constexpr int e = sizeof(T);
    using Matrix = Eigen::Matrix<T, order, order, Eigen::RowMajor>;
    return {{{"vorm", [=] { load(a.other, a.objectBytes(), a.rowBytes(), e, order, order, a.count); }},
             {"Eigen",
              [=] {
                  for (int n = 0; n < a.count; ++n)
                      Eigen::Map<Matrix>(a.other + n * order * order) = Matrix::Identity();
              }},
             a.bandwidthOf()},
            bytesOf(a.other, a.elements)};
}
template <class T, int order>
Task transposes(auto transpose, int count)
{
    const Arrays<T> a(order, count);
    constexpr int e = sizeof(T);
    using Matrix = Eigen::Matrix<T, order, order, Eigen::RowMajor>;
    return {{{"vorm",
              [=] {
                  transpose(a.packed, a.objectBytes(), a.rowBytes(), e, a.other, a.objectBytes(), a.rowBytes(), e,
                            order, order, a.count);
              }},
             {"Eigen",
              [=] {
                  for (int n = 0; n < a.count; ++n)
                      Eigen::Map<Matrix>(a.other + n * order * order) =
                          Eigen::Map<const Matrix>(a.packed + n * order * order).transpose();
              }},
             {"plain loop",
              [=] {
                  for (int n = 0; n < a.count; ++n)
                      for (int r = 0; r < order; ++r)
                          for (int c = 0; c < order; ++c)
                              a.other[n * order * order + c * order + r] = a.packed[n * order * order + r * order + c];
              }},
             a.bandwidthOf()},
            bytesOf(a.other, a.elements)};
}
template <class T>
Task largeTranspose(auto transpose, int order)
{
    const std::ptrdiff_t elements = std::ptrdiff_t{order} * order;
    T *const src = Memory::region<T>(elements), *const dst = Memory::region<T>(elements);
    fill(src, elements), fill(dst, elements);
    const int e = sizeof(T), row = order * e;
    return {{{"vorm", [=] { transpose(src, row, e, dst, row, e, order, order); }},
             {"Eigen",
              [=] {
                  Eigen::Map<Packed<T>>(dst, order, order) = Eigen::Map<const Packed<T>>(src, order, order).transpose();
              }},
             {bandwidth, [=] { std::memcpy(dst, src, std::size_t(elements) * sizeof(T)); }}},
            bytesOf(dst, elements)};
}

struct MovementSections {
    Section &resident, &streaming, &large;
};
void addAll32f(MovementSections& s);
void addAll64f(MovementSections& s);

template <class T, int... order>
void addOrders(MovementSections& s, auto toPlane, auto fromPlane, auto fromLists, auto packed, auto load,
               auto transpose)
{
    const std::string type = sizeof(T) == 4 ? "_32f" : "_64f";
    const auto both = [&](const std::string& name, int n, double wanted, auto task) {
        const std::string full = name + ", order " + std::to_string(n);
        s.resident.rows.push_back({full, residentObjects, [=] { return task(residentObjects); }, wanted});
        const int many = int(streamingBytes() / sizeof(T)) / (n * n);
        s.streaming.rows.push_back({full, many, [=] { return task(many); }, wanted});
    };
    (both("vormCopy_ma" + type + "_SP", order, 1, [=](int count) { return toPlanes<T, order>(toPlane, count); }), ...);
    (both("vormCopy_ma" + type + "_PS", order, 1, [=](int count) { return fromPlanes<T, order>(fromPlane, count); }),
     ...);
    (both("vormCopy_ma" + type + "_LS", order, 1, [=](int count) { return fromList<T, order>(fromLists, count); }),
     ...);
    (both("vormCopy_ma" + type + "_SS", order, 1, [=](int count) { return packedToPacked<T, order>(packed, count); }),
     ...);
    (both("vormLoadIdentity_ma" + type, order, 1, [=](int count) { return identities<T, order>(load, count); }), ...);
    (both("vormTranspose_ma" + type, order, 1, [=](int count) { return transposes<T, order>(transpose, count); }), ...);
}
template <class T>
void addLarge(MovementSections& s, auto transpose)
{
    for (const int order : {16, 64, 100, 500, 1000, 1024, 2000})
        s.large.rows.push_back(
            {std::string("vormTranspose_m") + (sizeof(T) == 4 ? "_32f" : "_64f") + ", order " + std::to_string(order),
             1, [=] { return largeTranspose<T>(transpose, order); }, 1});
}

}  // namespace bench::movement
