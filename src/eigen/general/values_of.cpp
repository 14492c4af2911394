// The values of one matrix, and of several side by side.

#include "eigen/general/values_of.hpp"

#include "eigen/general/side_by_side.hpp"

namespace vorm::eigen {

template <class T>
int valuesOf(T* matrix, int n, T* re, T* im, T* work)
{
    hessenberg(matrix, n, work, work + n);
    clearBelowSubdiagonal(matrix, n);
    return iterate<false>(matrix, static_cast<T*>(nullptr), n, re, im);
}

namespace {

template <class Number, class N>
VORM_SHARED bool iterateSideBySide(Number* matrix, N n, Number* re, Number* im)
{
    return SideBySide<false, Number, N>(matrix, n, re, im).isComplete();
}

// Without reduction or sweep.
template <class Number>
VORM_INLINE bool valuesOfOrderTwo(const Number* matrix, Number* re, Number* im)
{
    Block<Number> block{matrix[0], matrix[2], matrix[1], matrix[3]};
    const Number zero(Element<Number>(0));
    const auto apart = abs(block.c) <= Number(ulp<Element<Number>>);
    standardise<false>(block);
    im[0] = imaginaryOf(block);
    im[1] = select(apart, zero, conjugateOf(block, im[0]));
    im[0] = select(apart, zero, im[0]);
    re[0] = select(apart, matrix[0], block.a);
    re[1] = select(apart, matrix[3], block.d);
    return true;
}

}  // namespace

// Single registers are rests, but for orders 1 and 2, which come in no others.
template <class Number>
bool valuesSideBySide(Number* matrix, int n, Number* re, Number* im)
{
    if constexpr (registersIn<Number> == 1) {
        if (n == 1) return re[0] = matrix[0], im[0] = Number(Element<Number>(0)), true;
        if (n == 2) return valuesOfOrderTwo(matrix, re, im);
    } else {
        if (n == 3) return iterateSideBySide(matrix, constant<3>, re, im);
        if (n == 4) return iterateSideBySide(matrix, constant<4>, re, im);
    }
    return iterateSideBySide(matrix, n, re, im);
}

#define EIGEN_VALUES_OF(T)                                          \
    template int valuesOf(T* matrix, int n, T* re, T* im, T* work); \
    EIGEN_SIDE_BY_SIDE(Lanes<T>)                                    \
    EIGEN_SIDE_BY_SIDE(TwoRegisters<T>)                             \
    EIGEN_WIDE_SIDE_BY_SIDE(T)
#define EIGEN_SIDE_BY_SIDE(L) template bool valuesSideBySide(L* matrix, int n, L* re, L* im);
#ifdef VORM_WIDER_REGISTERS
#define EIGEN_WIDE_SIDE_BY_SIDE(T) EIGEN_SIDE_BY_SIDE(Wide<T>)
#else
#define EIGEN_WIDE_SIDE_BY_SIDE(T)
#endif

EIGEN_VALUES_OF(float)
EIGEN_VALUES_OF(double)

}  // namespace vorm::eigen
