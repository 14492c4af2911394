// One matrix of any size times one or two vectors, compiled once for all layouts.

#include "products/vector_running.hpp"

#include "frame/object_lanes.hpp"
#include "products/vector_general.hpp"

namespace vorm::products {

template <class T>
void turn(TurnedMatrix<T>& to, const T* a, int stride1, int rows, int terms)
{
    constexpr int width = Lanes<T>::width;
    Lanes<T>* line = to.lines;
    for (int i = 0; i < rows; i += width, line += terms) {
        const T* from[width];
        for (int l = 0; l < width; ++l) from[l] = advance(a, min(i + l, rows - 1) * std::ptrdiff_t{stride1});
        loadRows(
            from, [&](int k) VORM_INLINE_LAMBDA -> Lanes<T>& { return line[k]; }, terms);
    }
}

namespace {

// Some registers of rows; the last one may have fewer rows than lanes.
template <int registers, class T, int objects>
VORM_INLINE void someRows(const Lanes<T>* a, const T* const (&from)[objects], const T* const (&added)[objects],
                          T* const (&to)[objects], int i, int rows, int terms)
{
    constexpr int width = Lanes<T>::width;
    Lanes<T> sums[objects][registers];
    for (auto& object : sums)
        for (auto& sum : object) sum = T(0);
    const auto addTerm = [&](int k, const auto& factorOf) VORM_INLINE_LAMBDA {
        Lanes<T> factors[objects];
        for (int o = 0; o < objects; ++o) factors[o] = factorOf(o);
        for (int p = 0; p < registers; ++p)
            for (int o = 0; o < objects; ++o) sums[o][p] = sums[o][p] + a[p * std::ptrdiff_t{terms} + k] * factors[o];
    };
    int k = 0;
    if constexpr (width == 4)  // a double is spread by the load itself
        for (; k + width <= terms; k += width) {
            Lanes<T> elements[objects];
            for (int o = 0; o < objects; ++o) elements[o] = Lanes<T>::load(from[o] + k);
            unrolled<width>([&](auto j) VORM_INLINE_LAMBDA {
                addTerm(k + j, [&](int o) VORM_INLINE_LAMBDA { return splat<j>(elements[o]); });
            });
        }
    for (; k < terms; ++k) addTerm(k, [&](int o) VORM_INLINE_LAMBDA { return Lanes<T>(T(elementAt(from[o] + k, 0))); });
    const int left = rows - i - (registers - 1) * width;
    for (int o = 0; o < objects; ++o) {
        const T* const behind = added[o] + i;
        T* const y = to[o] + i;
        for (int p = 0; p < registers - 1; ++p) plus(sums[o][p], behind + p * width).store(y + p * width);
        constexpr int last = (registers - 1) * width;
        if (left >= width)
            plus(sums[o][registers - 1], behind + last).store(y + last);
        else
            storeFirst(y + last, sums[o][registers - 1] + loadFirst(behind + last, left), left);
    }
}

}  // namespace

template <class T, int objects>
void turnedProduct(const TurnedMatrix<T>& a, const T* const (&from)[objects], const T* const (&added)[objects],
                   T* const (&to)[objects], int rows, int terms)
{
    constexpr int width = Lanes<T>::width, most = 4;  // registers of rows at a time
    const Lanes<T>* line = a.lines;
    for (int i = 0; i < rows; i += most * width, line += most * std::ptrdiff_t{terms})
        withCount<most>(min(most, (rows - i + width - 1) / width), [&](auto registers) VORM_INLINE_LAMBDA {
            someRows<registers>(line, from, added, to, i, rows, terms);
        });
}

template <class T>
void largeProduct(TurnedMatrix<T>& space, const T* a, int stride1, const T* from, const T* added, T* to, int rows,
                  int terms)
{
    constexpr int step = 4 * Lanes<T>::width;
    const auto matrixFrom = [&](int i) VORM_INLINE_LAMBDA { return advance(a, i * std::ptrdiff_t{stride1}); };
    int i = 0;
    if (TurnedMatrix<T>::holds(step, terms)) {
        for (; i < rows; i += step) {
            const int some = min(step, rows - i);
            const T *const x[1] = {from}, *const behind[1] = {added + i};
            T* const y[1] = {to + i};
            turn(space, matrixFrom(i), stride1, some, terms);
            turnedProduct(space, x, behind, y, some, terms);
        }
        return;
    }
    const Vector x{from, adjacent}, behind{added, adjacent};
    const Vector y{to, adjacent};
    const Matrix matrix{a, stride1, adjacent};
    for (; i + 4 <= rows; i += 4) runningTile<1, 4, T>(matrix, x, y, 0, i, terms, behind);
    for (; i < rows; ++i) runningTile<1, 1, T>(matrix, x, y, 0, i, terms, behind);
}

#define VORM_RUNNING_SUMS(T)                                                                                        \
    template void turn(TurnedMatrix<T>&, const T*, int, int, int);                                                  \
    template void turnedProduct(const TurnedMatrix<T>&, const T* const(&)[1], const T* const(&)[1], T* const(&)[1], \
                                int, int);                                                                          \
    template void turnedProduct(const TurnedMatrix<T>&, const T* const(&)[2], const T* const(&)[2], T* const(&)[2], \
                                int, int);                                                                          \
    template void largeProduct(TurnedMatrix<T>&, const T*, int, const T*, const T*, T*, int, int)
VORM_RUNNING_SUMS(float);
VORM_RUNNING_SUMS(double);

}  // namespace vorm::products
