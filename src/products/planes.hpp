// Products over structures of arrays.
#pragma once

#include <utility>

#include "frame/lanes.hpp"
#include "frame/minmax.hpp"
#include "frame/overlap.hpp"
#include "frame/planes.hpp"

namespace vorm {

// At orders 3 to 6 results are computed for so many objects at once, some of their elements after the
// other. Sources that are read again for other elements should stay in the cache, but the longer the
// run along a plane, the better does the memory keep up.
enum class Run { matrices, vectors, whole };  // whole: no plane is read twice
template <class T>
VORM_INLINE int objectsAtOnce(Run run, int count)
{
    constexpr int e = sizeof(T);
    return run == Run::whole ? count : min(count, (run == Run::vectors ? 32768 : 2048) / e);
}

// Whether the planes of D that are written at once lie apart.
template <class View>
VORM_INLINE bool planesApart(const View& dst, int rows, int columns, int terms, Run run, int count)
{
    using T = std::remove_reference_t<decltype(*dst.pp[0])>;
    const auto span = std::ptrdiff_t{objectsAtOnce<T>(run, count)} * int{sizeof(T)};
    return planesApart(dst.pp, rows, columns, span, std::int64_t{terms} * count);
}

// An element of the object, or of as many objects from it on as Number has lanes.
template <class Number, class View, class... Index>
VORM_INLINE Number loadPlane(const View& view, int object, Index... index)
{
    if constexpr (View::isCommon || std::is_floating_point_v<Number>)
        return view(object, index...);
    else
        return Number::load(view.element(index...) + object);
}
template <class Number, class Stored>
VORM_INLINE Number loadPlane(const Transposed<Stored>& view, int object, int r, int c)
{
    return loadPlane<Number>(view.stored, object, c, r);
}
template <class Number, class View, class... Index>
VORM_INLINE void storePlane(Number v, const View& view, int object, Index... index)
{
    if constexpr (std::is_floating_point_v<Number>)
        view(object, index...) = v;
    else
        v.store(view.element(index...) + object);
}

// The table of an operand as a product reads it: element (r, c) of object 0 lies at pp[r * row + c * column].
template <class T>
struct PlaneTable {
    T* const* pp;
    int shift, row, column;
    bool isCommon;
};

template <class View>
VORM_INLINE auto planeTable(const View& view)
{
    using T = std::remove_reference_t<decltype(*view.pp[0])>;
    if constexpr (requires { view.width; })
        return PlaneTable<T>{view.pp, view.shift, view.width, 1, View::isCommon};
    else
        return PlaneTable<T>{view.pp, view.shift, 1, 0, View::isCommon};
}
template <class Stored>
VORM_INLINE auto planeTable(const Transposed<Stored>& view)
{
    auto table = planeTable(view.stored);
    std::swap(table.row, table.column);
    return table;
}

// D = A B for whole registers of objects. The order of A is 3 to 6; B and D have as many columns, or one.
// Every sum goes from left to right, with the first product as its start value.
template <class T>
VORM_HIDDEN void productsInPlanes(int order, const PlaneTable<const T>& a, const PlaneTable<const T>& b,
                                  const PlaneTable<T>& d, int columns, Run run, int count);

extern template void productsInPlanes(int, const PlaneTable<const float>&, const PlaneTable<const float>&,
                                      const PlaneTable<float>&, int, Run, int);
extern template void productsInPlanes(int, const PlaneTable<const double>&, const PlaneTable<const double>&,
                                      const PlaneTable<double>&, int, Run, int);

}  // namespace vorm
