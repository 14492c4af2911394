// The kernels of vormGaxpy over the parts of a call: the matrix with its sizes, the vectors with their lengths.
//
// Every sum takes its products in ascending order and the added vector last. It starts with the first product where
// the matrix is square and of order 3 to 6, and at zero otherwise, in all kernels alike.
#pragma once

#include "frame/call.hpp"
#include "products/vector_kernels.hpp"
#include "products/vector_running.hpp"

namespace vorm::products {

// A vector that all objects share, as an array of them.
template <class View>
VORM_INLINE auto asArray(const View& view)
{
    if constexpr (View::isCommon)
        return VectorArray{view.p, 0, view.stride2};
    else
        return view;
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus gaxpyContiguous(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& added, Size,
                              const auto& y, Fit, Fit, Count count) VORM_INLINE_LAMBDA {
        const auto matrix = a.withAdjacent();
        const auto from = x.withAdjacent();
        const auto behind = asArray(added.withAdjacent());
        const auto to = y.withAdjacent();
        const bool done = withOrder(height.value, width.value, [&](auto n) VORM_INLINE_LAMBDA {
            productsOfCommon<T, n, Start::firstProduct>(matrix, from, behind, to, count.value);
        });
        if (!done) runningSums<T>(matrix.p, matrix.stride1, from, behind, to, height.value, width.value, count.value);
        return StatusOk;
    });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus gaxpyAnyStride(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& added, Size,
                              const auto& y, Fit, Fit, Count count) VORM_INLINE_LAMBDA {
        productsAnywhere<Second::vectors>(elementsOf(a), elementsOf(x), elementsOf(added), elementsOf(y),
                                          {height.value, 1, width.value}, Outermost::rows, 0, count.value);
        return StatusOk;
    });
}
// The matrix and the vectors that all objects share are lists as well, so that the matrix is loaded once here too.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus gaxpyAnyStrideList(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& added, Size,
                              const auto& y, Fit, Fit, Count count) VORM_INLINE_LAMBDA {
        productsAnywhere<Second::vectors>(listedElementsOf(a), listedElementsOf(x), listedElementsOf(added),
                                          listedElementsOf(y), {height.value, 1, width.value}, Outermost::rows, 0,
                                          count.value);
        return StatusOk;
    });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus gaxpyPointers(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& added, Size,
                              const auto& y, Fit, Fit, Count count) VORM_INLINE_LAMBDA {
        pointerProducts<Second::vectors>(elementsOf(a), elementsOf(x), elementsOf(added), elementsOf(y),
                                         {height.value, 1, width.value}, Outermost::rows, count.value);
        return StatusOk;
    });
}

// Of one object.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus gaxpyContiguous(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& added, Size,
                              const auto& y, Fit, Fit) VORM_INLINE_LAMBDA {
        const auto matrix = a.withAdjacent();
        const auto from = x.withAdjacent();
        const auto behind = added.withAdjacent();
        const auto to = y.withAdjacent();
        const bool done = withOrder(height.value, width.value, [&](auto n) VORM_INLINE_LAMBDA {
            productsByObject<T, n, Start::firstProduct>(matrix, from, to, 0, 1, behind);
        });
        if (!done)
            runningSums<T>(matrix.p, matrix.stride1, asArray(from), asArray(behind), VectorArray{to.p, 0, adjacent},
                           height.value, width.value, 1);
        return StatusOk;
    });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus gaxpyAnyStride(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& a, Size width, Size height, const auto& x, Size, const auto& added, Size,
                              const auto& y, Fit, Fit) VORM_INLINE_LAMBDA {
        productAnywhere<T>(a, x, y, height.value, width.value, added);
        return StatusOk;
    });
}

}  // namespace vorm::products
