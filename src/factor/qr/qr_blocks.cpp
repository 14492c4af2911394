// QR decomposition and solving of blocks of objects: each body once, for all layouts.

#include "factor/qr/qr.hpp"
#include "factor/qr/qr_solve.hpp"

namespace vorm::factor {

template <int n, class Number>
bool qrFactorise(Number* a)
{
    return qrFactoriseHere(a, constant<n>, constant<n>);
}
template <class Number>
bool qrFactorise(Number* a, int width, int height)
{
    return qrFactoriseHere(a, width, height);
}

template <int n, class Number>
void qrSolve(const Number* a, Number* x)
{
    qrSolveSmall<n>([&](int i, int j) VORM_INLINE_LAMBDA { return a[i * n + j]; }, x, Unknown{});
}
template <int n, class Factor, class Number>
void qrSolve(const Factor* a, const Factor* scales, Number* x)
{
    qrSolveSmall<n>([&](int i, int j) VORM_INLINE_LAMBDA { return narrowed<Number>(a[i * n + j]); }, x,
                    [&](int k) VORM_INLINE_LAMBDA { return narrowed<Number>(scales[k]); });
}

namespace {

// A sum of fewer than 16 products, from zero; eight terms go to sums of their own, as sumOfProducts has it.
template <class Number, class Row>
VORM_INLINE Number sumOf(const Row& row, const Number* x, int terms)
{
    const auto product = [&](int j) VORM_INLINE_LAMBDA -> Number { return row(j) * x[j]; };
    const Number zero = RegisterIn<Number>(Element<Number>(0));
    Number total = zero;
    int j = 0;
    if (terms >= 8) {
        const auto term = [&](int l) VORM_INLINE_LAMBDA { return zero + product(l); };
        total = ((term(0) + term(1)) + (term(2) + term(3))) + ((term(4) + term(5)) + (term(6) + term(7)));
        j = 8;
    }
    for (; j < terms; ++j) total = total + product(j);
    return total;
}

}  // namespace

template <class Factor, class Number>
void qrSolve(const Factor* a, const Factor* scales, Number* x, int width, int height)
{
    const auto factor = [&](int i, int j) VORM_INLINE_LAMBDA -> Number { return narrowed<Number>(a[i * width + j]); };
    const auto element = [&](int i) VORM_INLINE_LAMBDA -> Number& { return x[i]; };
    for (int k = 0; k < reflectors(width, height); ++k)
        if constexpr (std::is_same_v<Factor, Number>)
            reflectVector<Number>(factor, element, k, height, Unknown{});
        else
            reflectVector<Number>(factor, element, k, height,
                                  [&](int c) VORM_INLINE_LAMBDA -> Number { return narrowed<Number>(scales[c]); });
    for (int i = width - 1; i >= 0; --i) {
        const auto row = [&](int j) VORM_INLINE_LAMBDA { return factor(i, i + 1 + j); };
        x[i] = (x[i] - sumOf(row, x + i + 1, width - 1 - i)) / factor(i, i);
    }
}

#define QR_SMALL_BLOCKS(n, Number)            \
    template bool qrFactorise<n>(Number * a); \
    template void qrSolve<n>(const Number* a, Number* x);
#define QR_BLOCKS(Number)      \
    QR_SMALL_BLOCKS(3, Number) \
    QR_SMALL_BLOCKS(4, Number) \
    QR_SMALL_BLOCKS(5, Number) \
    QR_SMALL_BLOCKS(6, Number)
#define QR_ANY_BLOCKS(Number) \
    QR_BLOCKS(Number)         \
    template bool qrFactorise(Number* a, int width, int height);
#define QR_SOLVE(Factor, Number)                                                \
    template void qrSolve<3>(const Factor* a, const Factor* scales, Number* x); \
    template void qrSolve<4>(const Factor* a, const Factor* scales, Number* x); \
    template void qrSolve<5>(const Factor* a, const Factor* scales, Number* x); \
    template void qrSolve<6>(const Factor* a, const Factor* scales, Number* x); \
    QR_SOLVE_ANY(Factor, Number)
#define QR_SOLVE_ANY(Factor, Number) \
    template void qrSolve(const Factor* a, const Factor* scales, Number* x, int width, int height);
#define QR_SOLVES(T)                                 \
    QR_SOLVE(Lanes<T>, Lanes<T>)                     \
    QR_SOLVE_ANY(Lanes<T>, QrOneMatrix<Lanes<T>>)    \
    QR_SOLVE_ANY(QrOwnMatrices<T>, QrOwnMatrices<T>) \
    QR_WIDE_SOLVES(T)
#ifdef VORM_WIDER_REGISTERS
#define QR_WIDE_SOLVES(T)                       \
    QR_SOLVE_ANY(Wide<T>, QrOneMatrix<Wide<T>>) \
    QR_SOLVE(Wide<T>, Wide<T>)                  \
    QR_SOLVE(Wide<T>, Lanes<T>)
#else
#define QR_WIDE_SOLVES(T)
#endif

#define QR_FACTORISE(T)         \
    QR_BLOCKS(T)                \
    QR_ANY_BLOCKS(Lanes<T>)     \
    QR_MANY_BLOCKS(Lanes<T>, 2) \
    QR_WIDE_BLOCKS(T)
#define QR_MANY_BLOCKS(L, registers)                         \
    template bool qrFactorise<5>(Several<L, registers> * a); \
    template bool qrFactorise<6>(Several<L, registers> * a); \
    template bool qrFactorise(Several<L, registers>* a, int width, int height);
#ifdef VORM_WIDER_REGISTERS
#define QR_WIDE_BLOCKS(T)  \
    QR_ANY_BLOCKS(Wide<T>) \
    QR_MANY_BLOCKS(Wide<T>, 2)
#else
#define QR_WIDE_BLOCKS(T)
#endif

QR_FACTORISE(float)
QR_FACTORISE(double)
QR_SOLVES(float)
QR_SOLVES(double)

}  // namespace vorm::factor
