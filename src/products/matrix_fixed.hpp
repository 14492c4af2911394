// The straight-line bodies: products of two square matrices of order 3 to 6. Row i of D is the sum over
// k of A(i, k) times row k of B.
//
// Where rows of floats end in a rest of one or two elements, the rests of several rows, a group, fill a
// register of their own: lane l is column l % rest of row l / rest of the group. A rest of one element is
// better left alone where both matrices lie in rows, and that of doubles wherever the elements of A would
// be gathered more than once.
//
// Operands are loaded where a part of the body begins that uses them: no compiler moves a load over a
// store by itself, and there are not registers enough to hold everything.
#pragma once

#include "frame/minmax.hpp"
#include "frame/pin.hpp"
#include "frame/small_matrix.hpp"

namespace vorm::products {

// Left to right with the first product as the start value, or as the general path adds (see
// matrix_tiles.hpp).
enum class Order { leftToRight, asInTiles };

template <class T, int n>
constexpr int groupRows = Lanes<T>::width / max(SmallMatrix<T, n>::rest, 1);
template <class T, int n>
constexpr int groups = n / groupRows<T, n>;

// The elements of A: get<i, k> is A(i, k) in all lanes, group<g, k> has those of a group's rows, each
// in the lanes of its row. -----------------------------------------------------------------------------

// Out of memory, element by element.
template <class T, int n, class View>
struct FactorsInMemory {
    View view;

    template <int i, int k>
    VORM_INLINE Lanes<T> get() const
    {
        return T(view(0, i, k));
    }
    template <int g, int k>
    VORM_INLINE Lanes<T> group() const
    {
        return lanes<T>(
            [&](int l) VORM_INLINE_LAMBDA { return T(view(0, g * groupRows<T, n> + l / SmallMatrix<T, n>::rest, k)); });
    }
};

// Out of the rows of A.
template <int n, class View>
struct FactorsInRows {
    using Small = SmallMatrix<float, n>;
    const View& view;
    Lanes<float> columns[n];  // of the first four rows
    VORM_INLINE explicit FactorsInRows(const View& view_) : view(view_)
    {
        if constexpr (Small::rest == 1) Small::template loadAll<0>(Transposed{view}, 0, columns);
    }

    template <int i, int k>
    VORM_INLINE Lanes<float> get() const
    {
        if constexpr (k < 4)
            return splat<k>(Small::template load<i, 0>(view, 0));
        else if constexpr (Small::rest == 2)
            return splat<k % 4>(Small::template load<i, 1>(view, 0));
        else
            return float(view(0, i, k));
    }
    template <int g, int k>
    VORM_INLINE Lanes<float> group() const
    {
        if constexpr (Small::rest == 1) return columns[k];
        const Lanes<float> first = Small::template load<2 * g, k / 4>(view, 0);
        const Lanes<float> second = Small::template load<2 * g + 1, k / 4>(view, 0);
        return shuffle<k % 4, k % 4, k % 4, k % 4>(first, second);
    }
};

// Out of the columns of A, which are the rows of the stored matrix.
template <int n, class Stored>
struct FactorsInColumns {
    using Small = SmallMatrix<float, n>;
    const Stored& stored;

    template <int i, int k>
    VORM_INLINE Lanes<float> get() const
    {
        if constexpr (i / 4 == Small::full && Small::rest == 1)
            return float(stored(0, k, i));
        else
            return splat<i % 4>(Small::template load<k, i / 4>(stored, 0));
    }
    template <int g, int k>
    VORM_INLINE Lanes<float> group() const
    {
        const auto column = Small::template load<k, g * groupRows<float, n> / 4>(stored, 0);
        if constexpr (Small::rest == 1)
            return column;
        else
            return shuffle<g % 2 * 2, g % 2 * 2, g % 2 * 2 + 1, g % 2 * 2 + 1>(column, column);
    }
};

// Prepared once for all objects.
template <class T, int n>
struct FactorsPrepared {
    Lanes<T> all[n][n], inGroups[max(groups<T, n>, 1)][n];
    template <class View>
    VORM_INLINE explicit FactorsPrepared(const View& view)
    {
        const FactorsInMemory<T, n, View> factors{view};
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            unrolled<n>([&](auto i) VORM_INLINE_LAMBDA { all[i][k] = factors.template get<i, k>(); });
            unrolled<SmallMatrix<T, n>::rest ? groups<T, n> : 0>(
                [&](auto g) VORM_INLINE_LAMBDA { inGroups[g][k] = factors.template group<g, k>(); });
        });
    }

    template <int i, int k>
    VORM_INLINE Lanes<T> get() const
    {
        return all[i][k];
    }
    template <int g, int k>
    VORM_INLINE Lanes<T> group() const
    {
        return inGroups[g][k];
    }
};

// The operands of one product, in the form each part of the body asks for them by (). What all objects share is
// loaded once. -------------------------------------------------------------------------------------------

template <class T, int n, class View>
struct Factors {
    static constexpr bool isCommon = false, inRows = true;
    View view;
    VORM_INLINE auto operator()() const
    {
        if constexpr (sizeof(T) == sizeof(float) && View::isAdjacent)
            return FactorsInRows<n, View>(view);
        else
            return FactorsInMemory<T, n, View>{view};
    }
};
template <int n, class Stored>
requires Stored::isAdjacent struct Factors<float, n, Transposed<Stored>> {
    static constexpr bool isCommon = false, inRows = false;
    Transposed<Stored> view;
    VORM_INLINE auto operator()() const { return FactorsInColumns<n, Stored>{view.stored}; }
};
template <class T, int n>
struct CommonFactors {
    static constexpr bool isCommon = true, inRows = false;
    FactorsPrepared<T, n> prepared;
    template <class View>
    VORM_INLINE explicit CommonFactors(const View& view) : prepared(view)
    {
    }
    VORM_INLINE const FactorsPrepared<T, n>& operator()() const { return prepared; }
};

// The rows of B: get<p, k> is part p of row k. Those of a transposed matrix are made several at a time,
// when the first of them is asked for.
template <class T, int n, class View>
struct RowsInParts {
    using Small = SmallMatrix<T, n>;
    const View& view;
    Lanes<T> block[Small::parts][Small::width];

    template <int p, int k>
    VORM_INLINE Lanes<T> get()
    {
        if constexpr (isTransposed<View>) {
            if constexpr (k % Small::width == 0) Small::template loadBlock<p, k / Small::width>(view, 0, block[p]);
            return block[p][k % Small::width];
        } else {
            return Small::template load<k, p>(view, 0);
        }
    }
};
template <class T, int n, class View>
struct Rows {
    static constexpr bool isCommon = false, inRows = !isTransposed<View>;
    View view;
    VORM_INLINE RowsInParts<T, n, View> operator()() const { return {view, {}}; }
};
template <class T, int n>
struct CommonRows {
    static constexpr bool isCommon = true, inRows = true;
    Lanes<T> v[SmallMatrix<T, n>::parts][n];
    template <class View>
    VORM_INLINE explicit CommonRows(const View& view)
    {
        unrolled<SmallMatrix<T, n>::parts>(
            [&](auto p) VORM_INLINE_LAMBDA { SmallMatrix<T, n>::template loadAll<p>(view, 0, v[p]); });
    }
    VORM_INLINE const CommonRows& operator()() const { return *this; }
    template <int p, int k>
    VORM_INLINE Lanes<T> get() const
    {
        return v[p][k];
    }
};

// ------------------------------------------------------------------------------------------------------

// The sums of a tile grow side by side, so that no addition waits for the one before it. g++ would rather
// add up one after the other and spill the rest, which does no harm where everything fits.
template <class T, int n, bool commonA>
constexpr bool pinnedSums = sizeof(T) == sizeof(double) || n > 4 || !commonA;
template <class Number, int n, Order order, int row, int count, bool pinned>
struct TileSums {
    static constexpr bool fromZero = order == Order::asInTiles;
    static constexpr int each = fromZero && row >= (n & ~3) && n % 4 != 3 ? 2 : 1;
    static_assert(each == 1 || n % 2 == 0);
    Number v[each][max(count, 1)];
    template <int k>
    VORM_INLINE void add(int s, Number term)
    {
        Number& sum = v[k % each][s];
        sum = k >= each ? sum + term : fromZero ? Number(0) + term : term;
        if constexpr (pinned) pin(sum);
    }
    VORM_INLINE Number total(int s) const { return each == 1 ? v[0][s] : v[0][s] + v[each - 1][s]; }
};

// Some rows of D from row on, some parts of them.
template <class T, int n, Order order, int row, int rows, int part, int parts, class A, class B, class D>
VORM_INLINE void tile(const A& factors, const B& rowsOfB, const D& dst)
{
    using Small = SmallMatrix<T, n>;
    constexpr bool hasSingles = Small::rest == 1 && part + parts > Small::full;  // one number each
    constexpr int whole = parts - hasSingles;
    const auto& a = factors();
    auto&& b = rowsOfB();
    constexpr bool pinned = pinnedSums<T, n, A::isCommon>;
    TileSums<Lanes<T>, n, order, row, rows * whole, pinned> sums;
    TileSums<T, n, order, row, hasSingles ? rows : 0, pinned> singles;
    unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
        Lanes<T> ofB[parts];
        unrolled<parts>([&](auto p) VORM_INLINE_LAMBDA { ofB[p] = b.template get<part + p, k>(); });
        unrolled<rows>([&](auto i) VORM_INLINE_LAMBDA {
            const Lanes<T> factor = a.template get<row + i, k>();
            for (int p = 0; p < whole; ++p) sums.template add<k>(i * whole + p, factor * ofB[p]);
            if constexpr (hasSingles) singles.template add<k>(i, firstLane(factor) * firstLane(ofB[whole]));
        });
    });
    unrolled<rows>([&](auto i) VORM_INLINE_LAMBDA {
        unrolled<whole>([&](auto p) VORM_INLINE_LAMBDA {
            Small::template store<row + i, part + p>(dst, 0, sums.total(i * whole + p));
        });
        if constexpr (hasSingles) dst(0, row + i, n - 1) = singles.total(i);
    });
}

// Some groups of rests.
template <class T, int n, Order order, int group, int count, class A, class B, class D>
VORM_INLINE void groupTile(const A& factors, const B& rowsOfB, const D& dst)
{
    using Small = SmallMatrix<T, n>;
    constexpr int row = group * groupRows<T, n>;
    const auto& a = factors();
    auto&& b = rowsOfB();
    TileSums<Lanes<T>, n, order, row, count, pinnedSums<T, n, A::isCommon>> sums;
    unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
        const Lanes<T> ofB = b.template get<Small::full, k>();
        unrolled<count>([&](auto g)
                            VORM_INLINE_LAMBDA { sums.template add<k>(g, a.template group<group + g, k>() * ofB); });
    });
    unrolled<count * groupRows<T, n>>([&](auto i) VORM_INLINE_LAMBDA {
        const auto rests = sums.total(i / groupRows<T, n>);
        Small::template store<row + i, Small::full>(dst, 0, Small::template restOf<i % groupRows<T, n>>(rests));
    });
}

// Whether rests are computed in groups, and the fastest tiles otherwise: so many rows and parts, with room
// for some operands beside the sums.
template <class T, int n, class A, class B>
struct TileShape {
    static constexpr int rest = SmallMatrix<T, n>::rest;
    static constexpr bool isFloat = sizeof(T) == sizeof(float);
    static constexpr bool grouping = rest && (A::isCommon || (isFloat && !(rest == 1 && A::inRows && B::inRows)));
    static constexpr int rows = n == 6 && !isFloat                  ? 3
                                : n == 5 && !isFloat && B::isCommon ? 2
                                : n == 5 && isFloat && !grouping    ? 4
                                                                    : n;
    static constexpr int parts = n == 6 && !isFloat ? 3 : A::isCommon || grouping ? 1 : 2;
};

template <class T, int n, Order order, class A, class B, class D>
VORM_INLINE void product(const A& factors, const B& rows, const D& dst)
{
    using Small = SmallMatrix<T, n>;
    using Shape = TileShape<T, n, A, B>;
    constexpr int parts = Shape::grouping ? Small::full : Small::parts, breadth = Shape::parts;
    // The rows behind a multiple of four have an order of their own in tiles of the general path.
    constexpr int height = order == Order::asInTiles ? 4 : Shape::rows;
    unrolled<(parts + breadth - 1) / breadth>([&](auto across) VORM_INLINE_LAMBDA {
        constexpr int p = across * breadth;
        unrolled<(n + height - 1) / height>([&](auto down) VORM_INLINE_LAMBDA {
            constexpr int i = down * height;
            tile<T, n, order, i, min(height, n - i), p, min(breadth, parts - p)>(factors, rows, dst);
        });
    });
    if constexpr (Shape::grouping) {
        constexpr int inGroups = groups<T, n>, first = order == Order::asInTiles ? 4 / groupRows<T, n> : inGroups;
        groupTile<T, n, order, 0, first>(factors, rows, dst);
        groupTile<T, n, order, first, inGroups - first>(factors, rows, dst);
        if constexpr (inGroups * groupRows<T, n> < n) tile<T, n, order, n - 1, 1, Small::full, 1>(factors, rows, dst);
    }
}

template <class T, int n, class View>
VORM_INLINE Factors<T, n, View> factorsOf(const View& view)
{
    return {view};
}
template <class T, int n, class View>
VORM_INLINE Rows<T, n, View> rowsOf(const View& view)
{
    return {view};
}

}  // namespace vorm::products
