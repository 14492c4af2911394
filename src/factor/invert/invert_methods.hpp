// Inverses of as many objects as a number holds, and of any order by minors.
#pragma once

#include "factor/det/det_elimination.hpp"
#include "factor/invert/invert_cofactors.hpp"
#include "frame/blocks.hpp"

namespace vorm::factor {

// Elements side by side in the standard layout have thresholds, and in single precision reciprocals, of their own.
enum class Kernel { contiguous, other };
template <Kernel kernel, class T>
constexpr Reciprocals reciprocalsOf = kernel == Kernel::contiguous && sizeof(T) == sizeof(float)
                                          ? Reciprocals::estimated
                                          : Reciprocals::exact;
template <Kernel kernel, class T>
constexpr T invertThreshold(int order)
{
    const bool isTwice = kernel == Kernel::contiguous && sizeof(T) == sizeof(double) && (order == 3 || order == 4);
    return isTwice ? 2 * detThreshold<T>(order) : detThreshold<T>(order);
}

template <Reciprocals reciprocals, int n, class Number>
VORM_INLINE bool inverseHere(Number (&a)[n][n], Element<Number> threshold)
{
    if constexpr (n > 4 && sizeof(Element<Number>) == sizeof(float))
        return invertInSteps<reciprocals>(a, threshold);
    else
        return invertByCofactors<reciprocals>(a, threshold);
}
// The same compiled once, in invert_blocks.cpp.
template <Reciprocals reciprocals, int n, class Number>
VORM_HIDDEN bool inverse(Number (&a)[n][n], Element<Number> threshold);

template <Kernel kernel, int n, class Number, class Src, class Dst>
VORM_INLINE VormStatus invertObjects(const Src& src, const Dst& dst, int first)
{
    using T = Element<Number>;
    constexpr T threshold = invertThreshold<kernel, T>(n);
    Number a[n][n];
    loadMatrices(src, first, a);
    const bool passed = [&]() VORM_INLINE_LAMBDA {
        if constexpr (inLanes<Number> && n <= 4 && (isAdjacent<Src> || isInPlanes<Src>))
            return inverseHere<reciprocalsOf<kernel, T>>(a, threshold);
        else
            return inverse<reciprocalsOf<kernel, T>>(a, threshold);
    }();
    if (!passed) return StatusSingular;
    storeMatrices(dst, first, a);
    return StatusOk;
}

// Order 2, by the rules of the general path.
template <class Number>
struct InverseOfTwo {
    bool pivotPassed, passed;
    VORM_INLINE explicit InverseOfTwo(Number (&a)[2][2])
    {
        using T = Element<Number>;
        const Number threshold = detThreshold<T>(2), one = T(1);
        const auto exchanged = abs(a[1][0]) > abs(a[0][0]);
        const auto upper = [&](int c) VORM_INLINE_LAMBDA { return select(exchanged, a[1][c], a[0][c]); };
        const auto lower = [&](int c) VORM_INLINE_LAMBDA { return select(exchanged, a[0][c], a[1][c]); };
        const Number pivot = upper(0), last = lower(1) - upper(1) * (lower(0) * (one / pivot));
        const Number det = select(exchanged, -last, last) * pivot;
        pivotPassed = !any(abs(pivot) < threshold);
        passed = pivotPassed && !any(abs(det) <= threshold);
        const Number r = one / det, minusR = -r;
        const auto minor = [&](Number element)
                               VORM_INLINE_LAMBDA { return select(abs(element) > threshold, element, threshold); };
        const Number corner = minor(a[1][1]) * r;
        a[0][1] = minor(a[0][1]) * minusR;
        a[1][0] = minor(a[1][0]) * minusR;
        a[1][1] = minor(a[0][0]) * r;
        a[0][0] = corner;
    }
};
template <class T>
VORM_INLINE VormStatus singularPivot(T* buffer)
{
    entry(buffer, 0) = T(0);
    return StatusSingular;
}
template <class Number, class Src, class Dst>
VORM_INLINE VormStatus invertTwo(const Src& src, const Dst& dst, int first, Element<Number>* buffer)
{
    Number a[2][2];
    loadMatrices(src, first, a);
    const InverseOfTwo<Number> inverse(a);
    if (!inLanes<Number> && !inverse.pivotPassed) return singularPivot(buffer);
    if (!inverse.passed) return StatusSingular;
    storeMatrices(dst, first, a);
    return StatusOk;
}

// Any order. What a determinant says: nothing against it; singular, at a pivot or at the end.
enum class Verdict { regular, singularPivot, singular };
template <class T>
VORM_HIDDEN Verdict reciprocalOfDeterminant(T* a, int n, int* rows, T& reciprocal);
// A register of objects packed at a, which is overwritten; or one of them is singular.
template <class T>
VORM_HIDDEN bool reciprocalsOfDeterminants(Lanes<T>* a, int n, Lanes<T>& reciprocals);
// The inverse of a packed matrix of an order up to bufferedOrder, all its minors times the reciprocal.
template <class T>
VORM_HIDDEN void invertByMinors(const T* a, int n, T reciprocal, T* inverse);
// The minor of n - 1 rows and columns that lies in a buffer for order n, times reciprocal and sign.
template <class T>
VORM_HIDDEN T scaledMinor(T* buffer, int n, T reciprocal, T sign);

template <class T, class Src, class Dst>
VORM_INLINE void invertOne(const Src& src, const Dst& dst, int object, int n, T reciprocal)
{
    T a[bufferedOrder * bufferedOrder], inverse[bufferedOrder * bufferedOrder];
    gatherMatrices(src, object, 1, n, a);
    invertByMinors(a, n, reciprocal, inverse);
    scatterMatrices(dst, object, 1, n, static_cast<const T*>(inverse));
}
template <class T, class Src, class Dst>
VORM_SHARED VormStatus invertGeneral(const Src src, const Dst dst, int object, int n, T* buffer)
{
    copyToBuffer(src, object, n, buffer);
    T reciprocal;
    const Verdict verdict = reciprocalOfDeterminant(buffer, n, rowsBehind(buffer, n), reciprocal);
    if (verdict == Verdict::singularPivot) return singularPivot(buffer);
    if (verdict == Verdict::singular) return StatusSingular;
    if (n <= bufferedOrder) {
        invertOne(src, dst, object, n, reciprocal);
        return StatusOk;
    }
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            for (int r = 0; r < n - 1; ++r)
                for (int c = 0; c < n - 1; ++c)
                    entry(buffer, std::ptrdiff_t{r} * n + c) = T(src(object, r + (r >= i), c + (c >= j)));
            dst(object, j, i) = scaledMinor(buffer, n, reciprocal, T((i + j) % 2 == 0 ? 1 : -1));
        }
    return StatusOk;
}
// A register of objects: their determinants at once, then one object after the other.
template <class T, class Src, class Dst>
VORM_SHARED VormStatus invertBlock(const Src src, const Dst dst, int first, int n)
{
    Lanes<T> a[bufferedOrder * bufferedOrder], reciprocals;
    loadMatrices(src, first, a, n);
    if (!reciprocalsOfDeterminants(a, n, reciprocals)) return StatusSingular;
    T each[narrow<T>];
    reciprocals.store(each);
    for (int l = 0; l < narrow<T>; ++l) invertOne(src, dst, first + l, n, each[l]);
    return StatusOk;
}

}  // namespace vorm::factor
