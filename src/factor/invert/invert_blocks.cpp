// Inverses of one matrix or of a register of them: each body once, for all layouts.

#include "factor/invert/invert_methods.hpp"

namespace vorm::factor {

template <Reciprocals reciprocals, int n, class Number>
bool inverse(Number (&a)[n][n], Element<Number> threshold)
{
    return inverseHere<reciprocals>(a, threshold);
}

template <class T>
Verdict reciprocalOfDeterminant(T* a, int n, int* rows, T& reciprocal)
{
    const T threshold = detThreshold<T>(n);
    const auto e = eliminate<Factors::products>(a, n, n, rows, threshold);
    if (e.stopped) return Verdict::singularPivot;
    const T det = e.sign * e.last * e.product;
    if (abs(det) <= threshold) return Verdict::singular;
    reciprocal = 1 / det;
    return Verdict::regular;
}

template <class T>
bool reciprocalsOfDeterminants(Lanes<T>* a, int n, Lanes<T>& reciprocals)
{
    const Lanes<T> threshold = detThreshold<T>(n);
    EliminatedLanes<Lanes<T>> e;
    const Lanes<T> last = *eliminateAll<Factors::products>(a, n, n, n, threshold, e);
    const Lanes<T> det = changed(last, e.sign) * e.product;
    if (any(e.stopped | (abs(det) <= threshold))) return false;
    reciprocals = Lanes<T>(T(1)) / det;
    return true;
}

template <class T>
T scaledMinor(T* buffer, int n, T reciprocal, T sign)
{
    const T threshold = detThreshold<T>(n);
    const auto e = eliminate<Factors::products>(buffer, n, n - 1, rowsBehind(buffer, n), threshold);
    const T minor = abs(e.last) > threshold ? e.last * e.sign * (e.stopped ? threshold : e.product) : threshold;
    return minor * reciprocal * sign;
}

namespace {

template <class T>
Lanes<T> minorOf(Lanes<T> last, const EliminatedLanes<Lanes<T>>& e, Lanes<T> lastWhereStopped, Lanes<T> threshold)
{
    const Lanes<T> q = select(e.stopped, lastWhereStopped, last);
    const Lanes<T> minor = changed(q, e.sign) * select(e.stopped, threshold, e.product);
    return select(abs(q) > threshold, minor, threshold);
}

}  // namespace

// As many rows are left out at once as a register has lanes, each in a lane of its own. Without row i, the eliminations
// that leave out column j and those that leave out a later one are the same up to column j: they are done once, and
// from there on those of column j go on by themselves.
template <class T>
void invertByMinors(const T* a, int n, T reciprocal, T* inverse)
{
    constexpr int width = narrow<T>;
    constexpr Factors products = Factors::products;
    const Lanes<T> threshold = detThreshold<T>(n);
    Lanes<T> rows[bufferedOrder * bufferedOrder], apart[bufferedOrder * bufferedOrder];
    T signs[width];
    for (int l = 0; l < width; ++l) signs[l] = l % 2 == 0 ? reciprocal : -reciprocal;
    const Lanes<T> even = Lanes<T>::load(signs);
    for (int begin = 0; begin < n; begin += width) {
        const int i = min(begin, n - width);
        for (int r = 0; r < n - 1; ++r)
            for (int c = 0; c < n; ++c)
                rows[r * n + c] =
                    lanes<Lanes<T>>([&](int l) VORM_INLINE_LAMBDA { return a[(r + (r >= i + l)) * n + c]; });

        EliminatedLanes<Lanes<T>> shared;
        const auto store = [&](int j, Lanes<T> minor) VORM_INLINE_LAMBDA {
            (minor * ((i + j) % 2 == 0 ? even : -even)).store(inverse + j * n + i);
        };
        Lanes<T>* at = rows;
        for (int j = 0; j < n - 1; ++j, at += n + 1) {
            const int left = n - 1 - j;  // rows, and columns without this one
            auto own = shared;
            const Lanes<T>* last = at + 1;
            if (left > 1) {
                eliminateColumn(products, left, at + 1, left, n, apart, n, threshold, own);
                last = eliminateAll<products>(apart, left - 1, left - 1, n, threshold, own);
                eliminateColumn(products, left, at, left + 1, n, at + n + 1, n, threshold, shared);
            }
            store(j, minorOf(*last, own, own.last, threshold));
            if (left == 1) store(n - 1, minorOf(*at, shared, shared.beforeLast, threshold));
        }
    }
}

#define INVERT_ORDER(how, n, Number) \
    template bool inverse<Reciprocals::how>(Number(&a)[n][n], Element<Number> threshold);
#define INVERT_SMALL(how, Number) \
    INVERT_ORDER(how, 3, Number)  \
    INVERT_ORDER(how, 4, Number)  \
    INVERT_ORDER(how, 5, Number)  \
    INVERT_ORDER(how, 6, Number)
#define INVERT_ALL(T)                                                                   \
    INVERT_SMALL(exact, T)                                                              \
    INVERT_SMALL(exact, Lanes<T>)                                                       \
    template Verdict reciprocalOfDeterminant(T* a, int n, int* rows, T& reciprocal);    \
    template bool reciprocalsOfDeterminants(Lanes<T>* a, int n, Lanes<T>& reciprocals); \
    template void invertByMinors(const T* a, int n, T reciprocal, T* inverse);          \
    template T scaledMinor(T* buffer, int n, T reciprocal, T sign);

INVERT_ALL(float)
INVERT_ALL(double)
INVERT_SMALL(estimated, float)
INVERT_ORDER(estimated, 5, Lanes<float>)
INVERT_ORDER(estimated, 6, Lanes<float>)
#ifdef VORM_WIDER_REGISTERS
INVERT_ORDER(exact, 5, Wide<float>)
INVERT_ORDER(exact, 6, Wide<float>)
INVERT_ORDER(exact, 5, Wide<double>)
INVERT_ORDER(exact, 6, Wide<double>)
INVERT_ORDER(estimated, 5, Wide<float>)
INVERT_ORDER(estimated, 6, Wide<float>)
#endif

}  // namespace vorm::factor
