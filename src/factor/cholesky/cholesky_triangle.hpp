// Lower triangles, one object or as many as a number holds. Of a symmetric matrix and of its factor nothing else is
// there: in pointer layout the addresses above the diagonal lead anywhere, and no element above it is ever stored.
#pragma once

#include "frame/object_rows.hpp"
#include "frame/overlap.hpp"

namespace vorm::factor {

// Of a triangle with this many rows.
constexpr int elementsOfTriangle(int rows) { return rows * (rows + 1) / 2; }

// A view of a table whose rows are known to have n entries, so that the places of its addresses are constants.
template <int n, class View>
VORM_INLINE decltype(auto) withColumns(const View& view)
{
    if constexpr (requires { view.width; }) {
        View known = view;
        known.width = n;
        return known;
    } else {
        return (view);
    }
}

// Elements anywhere, of one object or of a block of them: element (r, c) of object l lies at [r][c][l] of the block.
template <class T, class View>
[[gnu::noinline]] void gatherTriangles(const View& view, int first, int objects, int n, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c <= r; ++c) to[(r * n + c) * objects + l] = view(first + l, r, c);
}
// So many elements, row by row.
template <class T, class View>
[[gnu::noinline]] void scatterTriangles(const View& view, int first, int objects, int n, int elements, const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0, c = 0, k = 0; k < elements; ++k) {
            view(first + l, r, c) = from[(r * n + c) * objects + l];
            if (++c > r) ++r, c = 0;
        }
}

// Element (r, c) of each object is at a[r * n + c], for c up to r.
template <class Number, class View, class N>
VORM_INLINE void loadTriangles(const View& view, int first, N n, Number* a)
{
    using One = RegisterIn<Number>;
    if constexpr (inLanes<Number> && (isAdjacent<View> || isInPlanes<View>))
        eachRegister<Number>(n, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            repeat(n, [&](auto r) VORM_INLINE_LAMBDA {
                const auto to = [&](int c) VORM_INLINE_LAMBDA -> auto& { return registerOf(a[r * n + c], k); };
                if constexpr (isAdjacent<View>) {
                    const Element<Number>* from[One::width];
                    rowsAt(
                        view, object, [&](int) VORM_INLINE_LAMBDA { return int{r}; }, from);
                    loadRows(from, to, r + 1);
                } else {
                    for (int c = 0; c <= r; ++c) to(c) = One::load(view.element(r, c) + object);
                }
            });
        });
    else
        gatherTriangles(view, first, objectsIn<Number>, n, reinterpret_cast<Element<Number>*>(a));
}
template <class Number, class View, class N>
VORM_INLINE void storeTriangles(const View& view, int first, N n, const Number* a)
{
    using One = RegisterIn<Number>;
    if constexpr (inLanes<Number> && (isAdjacent<View> || isInPlanes<View>))
        eachRegister<Number>(n, first, [&](auto k, int object) VORM_INLINE_LAMBDA {
            repeat(n, [&](auto r) VORM_INLINE_LAMBDA {
                const auto from = [&](int c) VORM_INLINE_LAMBDA { return registerOf(a[r * n + c], k); };
                if constexpr (isAdjacent<View>) {
                    Element<Number>* to[One::width];
                    rowsAt(
                        view, object, [&](int) VORM_INLINE_LAMBDA { return int{r}; }, to);
                    storeRows(to, from, int{r} + 1);
                } else {
                    for (int c = 0; c <= r; ++c) from(c).store(view.element(r, c) + object);
                }
            });
        });
    else
        scatterTriangles(view, first, objectsIn<Number>, n, elementsOfTriangle(n),
                         reinterpret_cast<const Element<Number>*>(a));
}

// storableAsPlanes for triangles. Only their planes count: a table may well name each of them a second time, above
// the diagonal.
template <class View>
VORM_INLINE bool trianglesStorableAsPlanes(const View& dst, int order, int count)
{
    if (order > bufferedOrder || !inPlanes(dst)) return false;
    using Plane = decltype(dst.element(0, 0));
    Plane planes[elementsOfTriangle(bufferedOrder)];
    int k = 0;
    for (int r = 0; r < order; ++r)
        for (int c = 0; c <= r; ++c) planes[k++] = dst.element(r, c);
    return planesApart(planes, 1, k, std::ptrdiff_t{registerBytes}, std::int64_t{count} * order);
}

}  // namespace vorm::factor
