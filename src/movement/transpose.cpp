// Transposes in all layouts and types.

#include "movement/transpose.hpp"

#include "movement/move.hpp"

namespace vorm::movement {

template <class S, class D>
VormStatus transposeObjects(const S& src, const D& dst, int rows, int columns, int count)
{
    return moveObjects(src, dst, rows, columns, count);
}

#define VORM_TRANSPOSE(Elements)                                                                               \
    template VormStatus transposeObjects(const Elements<const float>&, const Elements<float>&, int, int, int); \
    template VormStatus transposeObjects(const Elements<const double>&, const Elements<double>&, int, int, int);
VORM_TRANSPOSE(StridedElements)
VORM_TRANSPOSE(ListedElements)
VORM_TRANSPOSE(TabledElements)
#undef VORM_TRANSPOSE

}  // namespace vorm::movement
