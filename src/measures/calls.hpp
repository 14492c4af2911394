// The kernels of the measures over the parts of a call: one or two sources, the results, the sizes, the count. A vector
// is a matrix of one column.
#pragma once

#include "frame/call.hpp"
#include "frame/planes.hpp"
#include "measures/objects.hpp"

namespace vorm::measures {

// Calls body(dst, rows, columns, source...).
template <class Body, class Src, class T>
VORM_INLINE VormStatus withSources(const Body& body, const Src& src, const ObjectTable<T>& dst, Size len,
                                   Count = Count{1})
{
    return body(dst.p, len.value, 1, src);
}
template <class Body, class Src1, class Src2, class T>
VORM_INLINE VormStatus withSources(const Body& body, const Src1& src1, const Src2& src2, const ObjectTable<T>& dst,
                                   Size len, Count = Count{1})
{
    return body(dst.p, len.value, 1, src1, src2);
}
template <class Body, class Src, class T>
VORM_INLINE VormStatus withSources(const Body& body, const Src& src, const ObjectTable<T>& dst, Size width, Size height,
                                   Count = Count{1})
{
    return body(dst.p, height.value, width.value, src);
}
template <class TheCall, class Body>
VORM_INLINE VormStatus ofCall(const TheCall& call, const Body& body)
{
    return call.parts.with([&](const auto&... part) VORM_INLINE_LAMBDA { return withSources(body, part...); });
}

// Whether all elements of an object with adjacent rows are one run.
template <class View>
VORM_INLINE bool isRun(const View& view, int rows, int columns)
{
    if constexpr (requires { view.stride1; })
        return rows == 1 || view.stride1 == columns * std::ptrdiff_t{sizeof(*view.object(0))};
    else
        return true;
}

// One object. ------------------------------------------------------------------------------------------------------

template <class Op, class T, class... View>
VORM_INLINE VormStatus measureOneAnywhere(T* dst, int rows, int columns, const View&... view)
{
    using Object = std::common_type_t<std::remove_cvref_t<decltype(elementsOf(view)[0])>...>;
    const Objects<Op, Object> object{{elementsOf(view)[0]...}};
    if (std::int64_t{rows} * columns <= shortTerms)
        entry(dst, 0) = shortMeasure<Op, T>(object, rows, columns);
    else
        entry(dst, 0) = longMeasureAnywhere<Op, T>(object, rows, columns);
    return StatusOk;
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return ofCall(call, [](T* dst, int rows, int columns, const auto&... view)
                            VORM_INLINE_LAMBDA { return measureOneAnywhere<Op>(dst, rows, columns, view...); });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const Call<T, TheTests, Parts>& call)
{
    return ofCall(withAdjacent(call), [](T* dst, int rows, int columns, const auto&... view) VORM_INLINE_LAMBDA {
        if (!(... && isRun(view, rows, columns))) return measureOneAnywhere<Op>(dst, rows, columns, view...);
        const Runs<Op, T> runs{{view.p...}};
        const std::ptrdiff_t n = std::ptrdiff_t{rows} * columns;
        if (n > shortTerms) [[unlikely]]
            return longMeasure(runs, n, dst);
        entry(dst, 0) = shortMeasure(runs, int(n));
        return VormStatus{StatusOk};
    });
}

// Arrays of objects. -----------------------------------------------------------------------------------------------

// Lists where there is one among the views.
template <class Op, class... View>
VORM_INLINE auto sourcesIn(const View&... view)
{
    if constexpr ((... || requires { view.pp, view.stride2; }))
        return sourcesOf<Op>(listedElementsOf(view)...);
    else
        return sourcesOf<Op>(elementsOf(view)...);
}

template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return ofCall(call, [&](T* dst, int rows, int columns, const auto&... view) VORM_INLINE_LAMBDA {
        measureAnywhere<Op>(sourcesIn<Op>(view...), rows, columns, dst, call.count);
        return VormStatus{StatusOk};
    });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return ofCall(withAdjacent(call), [&](T* dst, int rows, int columns, const auto&... view) VORM_INLINE_LAMBDA {
        const auto sources = sourcesIn<Op>(view...);
        if ((... && isRun(view, rows, columns)))
            measureRuns<Op>(sources, std::ptrdiff_t{rows} * columns, dst, call.count);
        else
            measureAnywhere<Op>(sources, rows, columns, dst, call.count);
        return VormStatus{StatusOk};
    });
}
template <class Op, class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return ofCall(call, [&](T* dst, int rows, int columns, const auto&... view) VORM_INLINE_LAMBDA {
        const auto sources = sourcesIn<Op>(view...);
        if ((... && inPlanes(view)))
            measurePlanes<Op>(sources, rows, columns, dst, call.count);
        else
            measureAnywhere<Op>(sources, rows, columns, dst, call.count);
        return VormStatus{StatusOk};
    });
}

// Traces. ----------------------------------------------------------------------------------------------------------

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus traceKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& dst, Size order) VORM_INLINE_LAMBDA {
        entry(dst.p, 0) = leftToRight(order.value, [&](int i) VORM_INLINE_LAMBDA { return T(src(0, i, i)); });
        return VormStatus{StatusOk};
    });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus traceKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& dst, Size order, Count count) VORM_INLINE_LAMBDA {
        const auto elements = sourcesIn<Norm>(src).of[0];
        if constexpr (requires { src.width; }) {
            if (inPlanes(src))
                tracesOfPlanes(elements, order.value, dst.p, count.value);
            else
                traces(elements, order.value, dst.p, count.value);
        } else {
            traces(elements, order.value, dst.p, count.value);
        }
        return VormStatus{StatusOk};
    });
}

}  // namespace vorm::measures
