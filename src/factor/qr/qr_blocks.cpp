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
    // Of the orders 5 and 6 single registers are but a rest.
    if (width == height) switch (width) {
        case 3:
            if constexpr (registersIn<Number> == 1) return qrFactorise<3>(a);
            break;
        case 4:
            if constexpr (registersIn<Number> == 1) return qrFactorise<4>(a);
            break;
        case 5:
            if constexpr (registersIn < Number >> 1) return qrFactorise<5>(a);
            break;
        case 6:
            if constexpr (registersIn < Number >> 1) return qrFactorise<6>(a);
            break;
        default: break;
        }
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

// Addresses of their own, which no store to a register in memory can change.
template <int step, class L>
void loadRowsApart(const Element<L>* const (&from)[L::width], L* to, int n)
{
    const Element<L>* rows[L::width];
    for (int l = 0; l < L::width; ++l) rows[l] = from[l];
    loadRows(
        rows, [&](int c) VORM_INLINE_LAMBDA -> L& { return to[std::ptrdiff_t{c} * step]; }, n);
}
template <int step, class L>
void storeRowsApart(Element<L>* const (&to)[L::width], const L* from, int n)
{
    Element<L>* rows[L::width];
    for (int l = 0; l < L::width; ++l) rows[l] = to[l];
    storeRows(
        rows, [&](int c) VORM_INLINE_LAMBDA -> const L& { return from[std::ptrdiff_t{c} * step]; }, n);
}

template <class L>
void qrSpread(const Element<L>* from, L* a, L* scales, int width, int height)
{
    for (int e = 0; e < width * height; ++e) a[e] = from[e];
    for (int k = 0; k < width; ++k)
        scales[k] =
            scaleOf<Element<L>>([&](int i, int j) VORM_INLINE_LAMBDA { return from[i * width + j]; }, k, height);
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
    if constexpr (registersIn<Number> == 1)
        if (isSmallSquare(width, height)) {
            const auto solve = [&](auto n) VORM_INLINE_LAMBDA {
                if constexpr (std::is_same_v<Factor, Number>)
                    if (scales == nullptr) return qrSolve<n>(a, x);
                qrSolve<n>(a, scales, x);
            };
            switch (width) {
            case 3: return solve(constant<3>);
            case 4: return solve(constant<4>);
            case 5: return solve(constant<5>);
            default: return solve(constant<6>);
            }
        }
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

#define QR_FACTORISE(n, Number) template bool qrFactorise<n>(Number * a);
#define QR_SOLVE_OWN(Number)                              \
    template void qrSolve<3>(const Number* a, Number* x); \
    template void qrSolve<4>(const Number* a, Number* x); \
    template void qrSolve<5>(const Number* a, Number* x); \
    template void qrSolve<6>(const Number* a, Number* x);
#define QR_REGISTER(L)                                      \
    QR_FACTORISE(3, L)                                      \
    QR_FACTORISE(4, L)                                      \
    template bool qrFactorise(L* a, int width, int height); \
    QR_SOLVE_OWN(L)                                         \
    template bool qrFactorise<5>(Several<L, 2> * a);        \
    template bool qrFactorise<6>(Several<L, 2> * a);        \
    template bool qrFactorise(Several<L, 2>* a, int width, int height);
#define QR_SOLVE(Factor, Number)                                                \
    template void qrSolve<3>(const Factor* a, const Factor* scales, Number* x); \
    template void qrSolve<4>(const Factor* a, const Factor* scales, Number* x); \
    template void qrSolve<5>(const Factor* a, const Factor* scales, Number* x); \
    template void qrSolve<6>(const Factor* a, const Factor* scales, Number* x); \
    QR_SOLVE_ANY(Factor, Number)
#define QR_SOLVE_ANY(Factor, Number) \
    template void qrSolve(const Factor* a, const Factor* scales, Number* x, int width, int height);
#define QR_ROWS_APART(step, L)                                                                    \
    template void loadRowsApart<step, L>(const Element<L>* const(&from)[L::width], L* to, int n); \
    template void storeRowsApart<step, L>(Element<L>* const(&to)[L::width], const L* from, int n);
#define QR_ROWS(L)      \
    QR_ROWS_APART(1, L) \
    QR_ROWS_APART(2, L) \
    QR_ROWS_APART(4, L) \
    template void qrSpread<L>(const Element<L>* from, L* a, L* scales, int width, int height);
#define QR_SOLVES(T)                                 \
    QR_ROWS(Lanes<T>)                                \
    QR_SOLVE(Lanes<T>, Lanes<T>)                     \
    QR_SOLVE_ANY(Lanes<T>, QrOneMatrix<Lanes<T>>)    \
    QR_SOLVE_ANY(QrOwnMatrices<T>, QrOwnMatrices<T>) \
    QR_WIDE_SOLVES(T)
#ifdef VORM_WIDER_REGISTERS
#define QR_WIDE_SOLVES(T)                       \
    QR_ROWS(Wide<T>)                            \
    QR_REGISTER(Wide<T>)                        \
    QR_SOLVE_ANY(Wide<T>, QrOneMatrix<Wide<T>>) \
    QR_SOLVE(Wide<T>, Wide<T>)                  \
    QR_SOLVE(Wide<T>, Lanes<T>)
#else
#define QR_WIDE_SOLVES(T)
#endif

#define QR_OF(T)          \
    QR_FACTORISE(3, T)    \
    QR_FACTORISE(4, T)    \
    QR_FACTORISE(5, T)    \
    QR_FACTORISE(6, T)    \
    QR_SOLVE_OWN(T)       \
    QR_REGISTER(Lanes<T>) \
    QR_SOLVES(T)

QR_OF(float)
QR_OF(double)

}  // namespace vorm::factor
