// Tiles of a product over structures of arrays: some rows and columns of D for one register of objects
// after the other, all sums of a tile side by side. What limits these loops is loads, so the larger
// the tile the better; the addresses count too, since few processors load more than two registers at
// a time, and a pointer kept in memory is a load as well.
#pragma once

#include "frame/lanes.hpp"
#include "frame/pin.hpp"
#include "frame/unrolled.hpp"
#include "products/added.hpp"

namespace vorm::products {

// Planes that lie at even distances, in bytes.
template <class T>
struct EvenPlanes {
    T* p;
    std::ptrdiff_t row, column;
    EvenPlanes from(int r, int c) const { return {advance(p, r * row + c * column), row, column}; }
};

// Planes anywhere: a table of pointers, and how far behind them the elements lie, in bytes.
template <class T>
struct ListedPlanes {
    T* const* pp;
    std::ptrdiff_t row, column;  // in the table
    std::ptrdiff_t shift;
    T* at(int r, int c) const { return advance(pp[r * row + c * column], shift); }
    ListedPlanes from(int r, int c) const { return {pp + r * row + c * column, row, column, shift}; }
};

// sums = sums + one term each, or the first term.
template <bool isFirst, class T, int rows, int columns, class OfA, class OfB>
VORM_INLINE void addTerms(Lanes<T> (&sums)[rows][columns], const OfA& a, const OfB& b)
{
    Lanes<T> ofB[columns];
    for (int j = 0; j < columns; ++j) ofB[j] = Lanes<T>::load(b(j));
    for (int i = 0; i < rows; ++i) {
        const auto ofA = Lanes<T>::load(a(i));
        for (int j = 0; j < columns; ++j) {
            const Lanes<T> product = ofA * ofB[j];
            sums[i][j] = isFirst ? product : sums[i][j] + product;
            pin(sums[i][j]);
        }
    }
}

template <class T, int terms, int rows, int columns>
[[gnu::noinline]] void planeTile(EvenPlanes<const T> a, EvenPlanes<const T> b, EvenPlanes<T> d, int steps)
{
    for (; steps > 0; --steps) {
        Lanes<T> sums[rows][columns];
        const T *ofA = a.p, *ofB = b.p;
        unrolled<terms>([&](auto k) VORM_INLINE_LAMBDA {
            addTerms<k == 0>(
                sums, [&](int i) VORM_INLINE_LAMBDA { return advance(ofA, i * a.row); },
                [&](int j) VORM_INLINE_LAMBDA { return advance(ofB, j * b.column); });
            // Opaque, or the addresses of all terms are kept, in memory.
            ofA = opaque(advance(ofA, a.column)), ofB = opaque(advance(ofB, b.row));
        });
        T* ofD = d.p;
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < columns; ++j) sums[i][j].store(advance(ofD, j * d.column));
            ofD = opaque(advance(ofD, d.row));
        }
        a.p = advance(a.p, 16), b.p = advance(b.p, 16), d.p = advance(d.p, 16);
    }
}

template <class T, int terms, int rows, int columns>
[[gnu::noinline]] void planeTile(const ListedPlanes<const T>& a, const ListedPlanes<const T>& b,
                                 const ListedPlanes<T>& d, int steps)
{
    const T *ofA[rows][terms], *ofB[terms][columns];
    T* ofD[rows][columns];
    for (int k = 0; k < terms; ++k) {
        for (int i = 0; i < rows; ++i) ofA[i][k] = a.at(i, k);
        for (int j = 0; j < columns; ++j) ofB[k][j] = b.at(k, j);
    }
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j < columns; ++j) ofD[i][j] = d.at(i, j);
    const std::ptrdiff_t end = steps * std::ptrdiff_t{16};
    for (std::ptrdiff_t at = 0; at < end; at += 16) {
        Lanes<T> sums[rows][columns];
        unrolled<terms>([&](auto k) VORM_INLINE_LAMBDA {
            addTerms<k == 0>(
                sums, [&](int i) VORM_INLINE_LAMBDA { return advance(ofA[i][k], at); },
                [&](int j) VORM_INLINE_LAMBDA { return advance(ofB[k][j], at); });
        });
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < columns; ++j) sums[i][j].store(advance(ofD[i][j], at));
    }
}

// What is added to some rows: a line of a plane each, or the same register for all steps, which the mask then
// keeps from moving on; or nothing.
template <class T, int rows>
struct AddedLines {
    const T* from[rows];
    std::ptrdiff_t mask;
    VORM_INLINE const T* at(int i, std::ptrdiff_t offset) const { return advance(from[i], offset & mask); }
};
struct NothingLines {
    VORM_INLINE NothingAdded at(int, std::ptrdiff_t) const { return {}; }
};

// d(i) is the sum over k of held(i, k) times plane k, for some rows i: what all objects share stays in
// registers as far as they suffice, and so do the few addresses. The rest is operands in memory that are
// aligned, as the planes are not: no loads of their own.
template <class T, int terms, int rows, class Added>
[[gnu::noinline]] void heldTile(const Lanes<T> (*held)[terms], const T* const (&planes)[terms], const Added added,
                                T* const (&d)[rows], int steps)
{
    // In locals, since for all a compiler knows a store might change what the pointers refer to.
    Lanes<T> factors[rows][terms];
    const T* from[terms];
    T* to[rows];
    for (int k = 0; k < terms; ++k) from[k] = planes[k];
    for (int i = 0; i < rows; ++i) {
        for (int k = 0; k < terms; ++k) factors[i][k] = held[i][k];
        to[i] = d[i];
    }
    const std::ptrdiff_t end = steps * std::ptrdiff_t{16};
    for (std::ptrdiff_t at = 0; at < end; at += 16) {
        Lanes<T> sums[rows];
        unrolled<terms>([&](auto k) VORM_INLINE_LAMBDA {
            const auto factor = Lanes<T>::load(advance(from[k], at));
            for (int i = 0; i < rows; ++i) sums[i] = k == 0 ? factors[i][k] * factor : sums[i] + factors[i][k] * factor;
        });
        for (int i = 0; i < rows; ++i) plus(sums[i], added.at(i, at)).store(advance(to[i], at));
    }
}

}  // namespace vorm::products
