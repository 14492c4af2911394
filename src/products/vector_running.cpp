// One matrix of any size times some vectors, compiled once for all layouts: an object in each lane, four rows at a
// time; or a single object, its rows one by one or, where they are long enough, in lanes.

#include "products/vector_running.hpp"

#include "products/vector_general.hpp"

namespace vorm::products {

namespace {

// Some rows for the objects of a block, from row i of the result on.
template <int some, class T, class L, int registers, int objects>
VORM_INLINE void rowsOfBlock(const T* a, int stride1, const L (&block)[mostRunningTerms][registers],
                             const T* const (&added)[objects], T* const (&to)[objects], int i, int terms)
{
    constexpr int width = L::width;
    L sums[some][registers];
    for (auto& row : sums)
        for (L& sum : row) sum = T(0);
    for (int k = 0; k < terms; ++k)
        for (int r = 0; r < some; ++r) {
            const L factor = T(elementAt(advance(a, r * std::ptrdiff_t{stride1}) + k, 0));
            for (int p = 0; p < registers; ++p) sums[r][p] = sums[r][p] + factor * block[k][p];
        }
    for (int p = 0; p < registers; ++p) {
        const T* behind[width];
        T* results[width];
        L elements[some];
        for (int l = 0; l < width; ++l) behind[l] = added[p * width + l] + i, results[l] = to[p * width + l] + i;
        loadRows(
            behind, [&](int r) VORM_INLINE_LAMBDA -> L& { return elements[r]; }, constant<some>);
        storeRows(
            results, [&](int r) VORM_INLINE_LAMBDA { return sums[r][p] + elements[r]; }, constant<some>);
    }
}

}  // namespace

template <int objects, class T>
void runningBlock(const T* a, int stride1, const T* const (&from)[objects], const T* const (&added)[objects],
                  T* const (&to)[objects], int rows, int terms)
{
    using L = Wide<T>;
    constexpr int width = L::width, registers = objects / width;
    L block[mostRunningTerms][registers];
    for (int p = 0; p < registers; ++p) {
        const T* some[width];
        for (int l = 0; l < width; ++l) some[l] = from[p * width + l];
        loadRows(
            some, [&](int k) VORM_INLINE_LAMBDA -> L& { return block[k][p]; }, terms);
    }
    const auto rowsFrom = [&](int i, auto some) VORM_INLINE_LAMBDA {
        rowsOfBlock<some>(advance(a, i * std::ptrdiff_t{stride1}), stride1, block, added, to, i, terms);
    };
    int i = 0;
    for (; i + 4 <= rows; i += 4) rowsFrom(i, constant<4>);
    withCount<3>(rows - i, [&](auto left) VORM_INLINE_LAMBDA { rowsFrom(i, left); });
}

template <class T>
void runningSum(const T* a, int stride1, const T* from, const T* added, T* to, int rows, int terms)
{
    const Matrix matrix{a, stride1, adjacent};
    const Vector x{from, adjacent}, behind{added, adjacent};
    const Vector y{to, adjacent};
    int i = 0;
    for (; i + 4 <= rows; i += 4) runningTile<1, 4, T>(matrix, x, y, 0, i, terms, behind);
    withCount<3>(rows - i,
                 [&](auto left) VORM_INLINE_LAMBDA { runningTile<1, left, T>(matrix, x, y, 0, i, terms, behind); });
}

#define VORM_RUNNING_BLOCK(T, registers)                                                                               \
    template void runningBlock(const T*, int, const T* const(&)[registers * Wide<T>::width],                           \
                               const T* const(&)[registers * Wide<T>::width], T* const(&)[registers * Wide<T>::width], \
                               int, int)
VORM_RUNNING_BLOCK(float, 1);
VORM_RUNNING_BLOCK(float, 2);
VORM_RUNNING_BLOCK(double, 1);
VORM_RUNNING_BLOCK(double, 2);
template void runningSum(const float*, int, const float*, const float*, float*, int, int);
template void runningSum(const double*, int, const double*, const double*, double*, int, int);

}  // namespace vorm::products
