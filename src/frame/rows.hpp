// Matrices as vectors, so that element-wise kernels serve them as they are. asVectors calls kernel(len, objects, dst,
// sources...) with views of vectors, as often as it takes for all of dst:
//   - once, where each matrix is one vector of all its elements, or where all rows of an array lie at one distance;
//   - else for the rows of one object after the other, or for the same row of many objects.
// What all objects share stays a common vector where it can. A transposed matrix has rows of any stride.
#pragma once

#include <climits>

#include "frame/minmax.hpp"
#include "frame/operands.hpp"

namespace vorm {

// A row of a transposed matrix in pointer layout: entries of the table at a distance.
template <class T>
struct SpacedPointers {  // v
    static constexpr bool isCommon = true, isAdjacent = false;
    T* const* pp;
    int shift, step;
    T* element(int i) const { return advance(pp[std::ptrdiff_t{i} * step], shift); }
    decltype(auto) operator()(int, int i) const { return elementAt(element(i), 0); }
};
template <class T>
struct SpacedArrayPointers {  // va
    static constexpr bool isCommon = false, isAdjacent = false;
    T* const* pp;
    int shift, stride0, step;
    T* element(int i) const { return advance(pp[std::ptrdiff_t{i} * step], shift); }  // of object 0
    decltype(auto) operator()(int n, int i) const { return elementAt(element(i), std::ptrdiff_t{n} * stride0); }
};
template <class T>
SpacedPointers(T* const*, int, int) -> SpacedPointers<T>;
template <class T>
SpacedArrayPointers(T* const*, int, int, int) -> SpacedArrayPointers<T>;

// How a matrix lies, whether it is read as stored or transposed: the distances of its rows, in bytes, and of the
// elements in a row.
template <class View>
struct RowsOf {
    static constexpr bool isTransposed = false;
    static constexpr bool inList = requires(View view) { view.object(0), view.pp; };
    static constexpr bool inTable = requires(View view) { view.element(0, 0); };
    const View& stored;
    VORM_INLINE explicit RowsOf(const View& view) : stored(view) {}
    VORM_INLINE int row() const { return stored.stride1; }
    VORM_INLINE auto step() const { return stored.stride2; }
    VORM_INLINE std::ptrdiff_t tableRow() const { return stored.width; }

    // Whether all its elements are one vector.
    VORM_INLINE bool isVector(int width, int height) const
    {
        if constexpr (inTable)
            return true;
        else
            return height == 1 || row() == width * bytes<std::remove_pointer_t<decltype(stored.object(0))>>(step());
    }
    // Whether the rows of all objects are vectors of one array.
    VORM_INLINE bool isArray(int height) const
    {
        if constexpr (requires { stored.stride0; })
            return stored.stride0 == height * std::ptrdiff_t{row()};
        else
            return false;
    }
};
template <class Stored>
struct RowsOf<Transposed<Stored>> {
    static constexpr bool isTransposed = true, inList = RowsOf<Stored>::inList, inTable = RowsOf<Stored>::inTable;
    const Stored& stored;
    VORM_INLINE explicit RowsOf(const Transposed<Stored>& view) : stored(view.stored) {}
    VORM_INLINE int row() const
    {
        return static_cast<int>(bytes<std::remove_pointer_t<decltype(stored.object(0))>>(stored.stride2));
    }
    VORM_INLINE int step() const { return stored.stride1; }
    VORM_INLINE std::ptrdiff_t tableRow() const { return 1; }
    VORM_INLINE bool isVector(int, int) const { return false; }
    VORM_INLINE bool isArray(int) const { return false; }
};
template <class View>
RowsOf(const View&) -> RowsOf<View>;

// The rows of object n, or of all objects from there on where they lie at one distance.
template <class View>
VORM_INLINE auto rowsFrom(const View& view, int n)
{
    const RowsOf rows(view);
    return VectorArray{rows.stored.object(n), rows.row(), rows.step()};
}

// Row r of the objects from the first on. A list adds the row's distance to its shift.
template <class View>
VORM_INLINE bool reachesRow(const View& view, int r)
{
    if constexpr (RowsOf<View>::inList) {
        const RowsOf rows(view);
        return rows.stored.shift + std::int64_t{r} * rows.row() <= INT_MAX;
    }
    return true;
}
template <class View>
VORM_INLINE auto rowOfObjects(const View& view, int r, int first)
{
    const RowsOf rows(view);
    const auto& stored = rows.stored;
    if constexpr (RowsOf<View>::inTable) {
        const auto table = stored.pp + r * rows.tableRow();
        if constexpr (RowsOf<View>::isTransposed && View::isCommon)
            return SpacedPointers{table, stored.shift, stored.width};
        else if constexpr (RowsOf<View>::isTransposed)
            return SpacedArrayPointers{table, stored.shift, stored.stride0, stored.width};
        else if constexpr (View::isCommon)
            return VectorPointers{table, stored.shift};
        else
            return VectorArrayPointers{table, stored.shift, stored.stride0};
    } else if constexpr (RowsOf<View>::inList) {
        return VectorList{stored.pp + first, stored.shift + r * rows.row(), rows.step()};
    } else {
        const auto p = advance(stored.object(first), std::ptrdiff_t{r} * rows.row());
        if constexpr (View::isCommon)
            return Vector{p, rows.step()};
        else
            return VectorArray{p, stored.stride0, rows.step()};
    }
}

// width and height are those of the matrices as they are read; a single dst has a count of 1. The kernel is called from
// two places, since each is a piece of machine code.
template <class Kernel, class D, class... Source>
VORM_INLINE void asVectors(int width, int height, int count, const Kernel& kernel, const D& dst,
                           const Source&... source)
{
    if (std::int64_t{width} * height <= INT_MAX && RowsOf(dst).isVector(width, height) &&
        (... && RowsOf(source).isVector(width, height)))
        width *= height, height = 1;

    if constexpr (!RowsOf<D>::inTable) {
        const bool isArray = height > 1 && std::int64_t{count} * height <= INT_MAX && RowsOf(dst).isArray(height) &&
                             (... && RowsOf(source).isArray(height));
        if (D::isCommon || isArray || (height > 1 && count <= height) || !reachesRow(dst, height - 1) ||
            (... || !reachesRow(source, height - 1))) {
            const int calls = isArray ? 1 : count, rows = isArray ? count * height : height;
            for (int n = 0; n < calls; ++n) kernel(width, rows, rowsFrom(dst, n), rowsFrom(source, n)...);
            return;
        }
    }
    // So many objects at once that the cache keeps them from row to row. Tables are gone through plane by plane.
    constexpr bool inTable = RowsOf<D>::inTable;
    const int atOnce =
        inTable || height == 1 ? count : max(16, static_cast<int>(16384 / (std::int64_t{width} * height * 8)));
    for (int first = 0, objects; first < count; first += objects) {
        objects = min(atOnce, count - first);
        for (int r = 0; r < height; ++r)
            kernel(width, objects, rowOfObjects(dst, r, first), rowOfObjects(source, r, first)...);
    }
}

}  // namespace vorm
