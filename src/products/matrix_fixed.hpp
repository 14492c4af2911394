// The straight-line bodies: products of two square matrices of order 3 to 6. Row i of D is the sum over
// k of A(i, k) times row k of B.
//
// Where rows of floats end in a rest of one or two elements, the rests of several rows, a group, fill a
// register of their own: lane l is column l % rest of row l / rest of the group. Doubles gain by it where
// all objects share A, so that its elements are gathered but once.
//
// Operands are loaded where a part of the body begins that uses them: no compiler moves a load over a
// store by itself, and there are not registers enough to hold everything.
#pragma once

#include "frame/small_matrix.hpp"

namespace vorm {

// Left to right with the first product as the start value, or as the general path adds (see
// matrix_tiles.hpp).
enum class Order { leftToRight, asInTiles };

template <class T, int n, bool commonA>
constexpr int grouped = sizeof(T) == sizeof(float) || commonA ? SmallMatrix<T, n>::rest : 0;
template <class T, int n>
constexpr int groupRows = Lanes<T>::width / std::max(SmallMatrix<T, n>::rest, 1);
template <class T, int n, bool commonA>
constexpr int groups = grouped<T, n, commonA> ? n / groupRows<T, n> : 0;

// The elements of A: get<i, k> is A(i, k) in all lanes, group<g, k> has those of a group's rows, each
// in the lanes of its row. -----------------------------------------------------------------------------

// Out of memory, element by element.
template <class T, int n, class View>
struct FactorsInMemory {
    View view;
    int object;

    template <int i, int k>
    VORM_INLINE Lanes<T> get() const
    {
        return T(view(object, i, k));
    }
    template <int g, int k>
    VORM_INLINE Lanes<T> group() const
    {
        return lanes<T>([&](int l) VORM_INLINE_LAMBDA {
            return T(view(object, g * groupRows<T, n> + l / SmallMatrix<T, n>::rest, k));
        });
    }
};

// Out of the rows of A.
template <int n, class View>
struct FactorsInRows {
    using Small = SmallMatrix<float, n>;
    const View& view;
    int object;
    Lanes<float> columns[n];  // of the first four rows
    VORM_INLINE FactorsInRows(const View& view_, int object_) : view(view_), object(object_)
    {
        if constexpr (Small::rest == 1) Small::template loadAll<0>(Transposed{view}, object, columns);
    }

    template <int i, int k>
    VORM_INLINE Lanes<float> get() const
    {
        if constexpr (k < 4)
            return splat<k>(Small::template load<i, 0>(view, object));
        else
            return float(view(object, i, k));
    }
    template <int g, int k>
    VORM_INLINE Lanes<float> group() const
    {
        if constexpr (Small::rest == 1) return columns[k];
        const Lanes<float> first = Small::template load<2 * g, k / 4>(view, object);
        const Lanes<float> second = Small::template load<2 * g + 1, k / 4>(view, object);
        return _mm_shuffle_ps(first.v, second.v, k % 4 * 0x55);
    }
};

// Out of the columns of A, which are the rows of the stored matrix.
template <int n, class Stored>
struct FactorsInColumns {
    using Small = SmallMatrix<float, n>;
    Lanes<float> columns[Small::parts][n];
    VORM_INLINE FactorsInColumns(const Stored& stored, int object)
    {
        unrolled<Small::parts>([&](auto p)
                                   VORM_INLINE_LAMBDA { Small::template loadAll<p>(stored, object, columns[p]); });
    }

    template <int i, int k>
    VORM_INLINE Lanes<float> get() const
    {
        return splat<i % 4>(columns[i / 4][k]);
    }
    template <int g, int k>
    VORM_INLINE Lanes<float> group() const
    {
        if constexpr (Small::rest == 1)
            return columns[g][k];
        else
            return _mm_shuffle_ps(columns[g / 2][k].v, columns[g / 2][k].v, g % 2 ? 0xFA : 0x50);
    }
};

// Prepared once for all objects.
template <class T, int n>
struct FactorsPrepared {
    Lanes<T> all[n][n], inGroups[std::max(groups<T, n, true>, 1)][n];
    template <class View>
    VORM_INLINE explicit FactorsPrepared(const View& view)
    {
        const FactorsInMemory<T, n, View> factors{view, 0};
        unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
            unrolled<n>([&](auto i) VORM_INLINE_LAMBDA { all[i][k] = factors.template get<i, k>(); });
            unrolled<groups<T, n, true>>([&](auto g)
                                             VORM_INLINE_LAMBDA { inGroups[g][k] = factors.template group<g, k>(); });
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

// The operands of the products of an array, by object. What all objects share is loaded once. ----------

template <class T, int n, class View>
struct Factors {
    View view;
    VORM_INLINE auto operator()(int object) const
    {
        if constexpr (sizeof(T) == sizeof(float) && adjacentRows<View>)
            return FactorsInRows<n, View>(view, object);
        else
            return FactorsInMemory<T, n, View>{view, object};
    }
};
template <int n, class Stored>
requires adjacentRows<Stored>
struct Factors<float, n, Transposed<Stored>> {
    Transposed<Stored> view;
    VORM_INLINE auto operator()(int object) const { return FactorsInColumns<n, Stored>(view.stored, object); }
};
template <class T, int n, class View>
struct CommonFactors {
    View view;
    FactorsPrepared<T, n> prepared;
    VORM_INLINE explicit CommonFactors(const View& view_) : view(view_), prepared(view_) {}
    VORM_INLINE const FactorsPrepared<T, n>& operator()(int) const { return prepared; }
};

// Parts of the rows of B: v[p][k] is part p of row k.
template <class T, int n>
struct RowParts {
    static constexpr int parts = SmallMatrix<T, n>::parts;
    Lanes<T> v[parts][n];
    template <int from, int to, class View>
    VORM_INLINE static RowParts load(const View& view, int object)
    {
        RowParts rows;
        unrolled<to - from>([&](auto p) VORM_INLINE_LAMBDA {
            SmallMatrix<T, n>::template loadAll<from + p>(view, object, rows.v[from + p]);
        });
        return rows;
    }
};
template <class T, int n, class View>
struct Rows {
    View view;
    template <int from, int to>
    VORM_INLINE RowParts<T, n> load(int object) const
    {
        return RowParts<T, n>::template load<from, to>(view, object);
    }
};
template <class T, int n, class View>
struct CommonRows {
    View view;
    RowParts<T, n> all;
    VORM_INLINE explicit CommonRows(const View& view_)
        : view(view_), all(RowParts<T, n>::template load<0, RowParts<T, n>::parts>(view, 0))
    {
    }
    template <int, int>
    VORM_INLINE const RowParts<T, n>& load(int) const
    {
        return all;
    }
};

// ------------------------------------------------------------------------------------------------------

// The sum of term(0) to term(n - 1) for an element in row i.
template <Order order, int n, int i, class Term>
VORM_INLINE auto sumOf(const Term& term)
{
    using Number = decltype(term(std::integral_constant<int, 0>{}));
    constexpr bool evenAndOdd = order == Order::asInTiles && i >= (n & ~3) && n % 4 != 3;
    Number sum[2];
    unrolled<n>([&](auto k) VORM_INLINE_LAMBDA {
        if constexpr (evenAndOdd && n % 2 != 0 && k == n - 1) sum[0] = sum[0] + sum[1];
        constexpr int s = evenAndOdd && (n % 2 == 0 || k < n - 1) ? k % 2 : 0;
        if constexpr (k > (evenAndOdd ? 1 : 0))
            sum[s] = sum[s] + term(k);
        else if constexpr (order == Order::asInTiles)
            sum[s] = Number{} + term(k);
        else
            sum[s] = term(k);
    });
    if constexpr (evenAndOdd && n % 2 == 0) sum[0] = sum[0] + sum[1];
    return sum[0];
}

// The parts of a row, as one number.
template <class T, int count>
struct Parts {
    Lanes<T> v[count];
    VORM_INLINE friend Parts operator+(Parts a, const Parts& b)
    {
        for (int p = 0; p < count; ++p) a.v[p] = a.v[p] + b.v[p];
        return a;
    }
};

template <class T, int n, Order order, bool commonA, class A, class B, class D>
VORM_INLINE void product(const A& factors, const B& rows, const D& dst, int object)
{
    using Small = SmallMatrix<T, n>;
    constexpr int full = Small::full, parts = grouped<T, n, commonA> ? full : Small::parts;
    // Five rows of doubles are too many for the registers as a whole, and better held without the rests.
    constexpr int atOnce = full > 1 && Small::rest ? full : parts;
    unrolled<(parts + atOnce - 1) / atOnce>([&](auto stage) VORM_INLINE_LAMBDA {
        constexpr int from = stage * atOnce, to = std::min(from + atOnce, parts);
        const auto& a = factors(object);
        const auto& b = rows.template load<from, to>(object);
        unrolled<n>([&](auto i) VORM_INLINE_LAMBDA {
            const auto row = sumOf<order, n, i>([&](auto k) VORM_INLINE_LAMBDA {
                const Lanes<T> factor = a.template get<i, k>();
                Parts<T, to - from> term;
                for (int p = from; p < to; ++p) term.v[p - from] = factor * b.v[p][k];
                return term;
            });
            unrolled<to - from>([&](auto p)
                                    VORM_INLINE_LAMBDA { Small::template store<i, from + p>(dst, object, row.v[p]); });
        });
    });
    if constexpr (grouped<T, n, commonA> != 0) {
        const auto& a = factors(object);
        const auto& b = rows.template load<full, full + 1>(object);
        unrolled<groups<T, n, commonA>>([&](auto g) VORM_INLINE_LAMBDA {
            constexpr int first = g * groupRows<T, n>;
            const auto rests = sumOf<order, n, first>(
                [&](auto k) VORM_INLINE_LAMBDA { return a.template group<g, k>() * b.v[full][k]; });
            unrolled<groupRows<T, n>>([&](auto i) VORM_INLINE_LAMBDA {
                Small::template store<first + i, full>(dst, object, Small::template restOf<i>(rests));
            });
        });
        if constexpr (groups<T, n, commonA> * groupRows<T, n> < n)
            dst(object, n - 1, n - 1) = sumOf<order, n, n - 1>([&](auto k) VORM_INLINE_LAMBDA {
                return T(factors.view(object, n - 1, k)) * T(rows.view(object, k, n - 1));
            });
    }
}

template <class T, int n, Order order = Order::leftToRight, class A, class B, class D>
VORM_INLINE void products(const A& a, const B& b, const D& dst, int first, int end)
{
    const std::conditional_t<A::isCommon, CommonFactors<T, n, A>, Factors<T, n, A>> factors{a};
    const std::conditional_t<B::isCommon, CommonRows<T, n, B>, Rows<T, n, B>> rows{b};
    for (int object = first; object < end; ++object) product<T, n, order, A::isCommon>(factors, rows, dst, object);
}

}  // namespace vorm
