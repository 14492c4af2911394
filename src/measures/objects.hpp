// Measures of arrays, compiled once for each kind of operands: sources by the distances between their elements, the
// results one behind the other.
#pragma once

#include "measures/sums.hpp"

namespace vorm::measures {

// The same kind for all sources of a call.
template <class Op, class Elements>
struct Sources {
    Elements of[Op::sources];
};
template <class Op, class... Elements>
VORM_INLINE auto sourcesOf(const Elements&... elements)
{
    using First = std::common_type_t<Elements...>;
    return Sources<Op, First>{{elements...}};
}

// Elements side by side, all n of an object; the first source has an object for each result.
template <class Op, class T, class Elements>
VORM_HIDDEN void measureRuns(const Sources<Op, Elements>& src, std::ptrdiff_t n, T* dst, int count);
// Elements anywhere, row after row.
template <class Op, class T, class Elements>
VORM_HIDDEN void measureAnywhere(const Sources<Op, Elements>& src, int rows, int columns, T* dst, int count);
// Planes.
template <class Op, class T>
VORM_HIDDEN void measurePlanes(const Sources<Op, TabledElements<const T>>& src, int rows, int columns, T* dst,
                               int count);

// The sum of a diagonal: of one object, of an array, of an array in planes.
template <class T, class Elements>
VORM_HIDDEN void traces(const Elements& src, int n, T* dst, int count);
template <class T>
VORM_HIDDEN void tracesOfPlanes(const TabledElements<const T>& src, int n, T* dst, int count);

}  // namespace vorm::measures
