// What the straight-line bodies of products with vectors share: the order of a sum, and the forms their
// operands are loaded in.
#pragma once

#include <type_traits>

#include "frame/lanes.hpp"
#include "frame/operands.hpp"
#include "frame/per_object.hpp"
#include "frame/shuffles.hpp"
#include "frame/small_vector.hpp"
#include "frame/unrolled.hpp"
#include "products/added.hpp"

namespace vorm::products {

// What a sum starts with: the first product, or zero as in the general path. A sum of negative zeros
// shows the difference.
enum class Start { firstProduct, zero };

// term(0) + term(1) + ... + term(n - 1).
template <int n, Start start, class Term>
VORM_INLINE auto leftToRight(const Term& term)
{
    auto sum = term(std::integral_constant<int, 0>{});
    if constexpr (start == Start::zero) sum = decltype(sum)(0) + sum;
    unrolled<n - 1>([&](auto k) VORM_INLINE_LAMBDA { sum = sum + term(std::integral_constant<int, k + 1>{}); });
    return sum;
}

// Elements anywhere, one number each. ------------------------------------------------------------------

template <class T, int n>
struct ScatteredMatrix {
    T v[n][n];
    template <class View>
    VORM_INLINE static ScatteredMatrix load(const View& view, int object)
    {
        ScatteredMatrix r;
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k) r.v[i][k] = view(object, i, k);
        return r;
    }
};

template <class T, int n, Start start = Start::firstProduct, class A, class X, class D, class Added = NothingAdded>
VORM_INLINE void scatteredProducts(const A& a, const X& x, const D& y, int first, int end, const Added& added = {})
{
    const PerObject<ScatteredMatrix<T, n>, A> matrices(a);
    const PerObject<ScatteredVector<T, n>, X> vectors(x);
    for (int object = first; object < end; ++object) {
        const auto matrix = matrices(object);
        const auto vector = vectors(object);
        ScatteredVector<T, n> result;
        for (int i = 0; i < n; ++i)
            result.v[i] =
                plus(leftToRight<n, start>([&](auto k) VORM_INLINE_LAMBDA { return matrix.v[i][k] * vector.v[k]; }),
                     added(object, i));
        result.store(y, object);
    }
}

// Vectors in registers, in the forms the products take them. ---------------------------------------------

// Each element in all lanes.
template <class T, int n>
struct Spread {
    Lanes<T> v[n];
    template <class View>
    VORM_INLINE static Spread load(const View& view, int object)
    {
        constexpr int width = Lanes<T>::width;
        constexpr bool shuffled = width == 4;  // a double is spread by the load itself
        const T* const p = view.object(object);
        Spread r;
        if constexpr (shuffled && n >= width) {
            const auto whole = Lanes<T>::load(p);
            unrolled<width>([&](auto k) VORM_INLINE_LAMBDA { r.v[k] = splat<k>(whole); });
        }
        for (int k = shuffled && n >= width ? width : 0; k < n; ++k) r.v[k] = T(elementAt(p + k, 0));
        return r;
    }
};

// The elements as they lie, and those behind the last full register repeated: 4 4 4 4 or 4 5 4 5 behind
// 0 1 2 3. Three floats are one register, its last lane zero.
template <class T, int n>
struct InLine {
    static constexpr int width = Lanes<T>::width;
    static constexpr int full = n < width ? 1 : n / width, rest = n < width ? 0 : n % width;
    Lanes<T> v[full + (rest != 0)];
    template <class View>
    VORM_INLINE static InLine load(const View& view, int object)
    {
        const T* const p = view.object(object);
        InLine r;
        if constexpr (n < width)
            r.v[0] = loadThree(p);
        else
            for (int c = 0; c < full; ++c) r.v[c] = Lanes<T>::load(p + c * width);
        if constexpr (rest == 1) r.v[full] = T(elementAt(p + n - 1, 0));
        if constexpr (rest == 2) r.v[full] = loadTwice(p + n - 2);
        return r;
    }
};

// Packed vectors of three floats: lane l of register j of the results belongs to object (4 j + l) / 3. Element k
// of each lane's object.
template <int j, int k>
VORM_INLINE Lanes<float> elementOfThrees(const float* x)
{
    constexpr int begin = 4 * j, first = begin / 3;  // the lanes belong to this object and the next one
    constexpr auto from = [](int l) { return (begin + l) / 3 == first ? 0 : 3; };
    const auto elements = Lanes<float>::load(x + 3 * first + k);
    return shuffle<from(0), from(1), from(2), from(3)>(elements, elements);
}

// Row r of a contiguous matrix of three floats per row, as a whole register whose last lane is undefined.
// The element behind any row but the last one lies within the matrix, and so does the one before the last.
template <int r>
VORM_INLINE Lanes<float> loadRowOfThree(const float* row)
{
    if constexpr (r == 2)
        return behindFirst(Lanes<float>::load(row - 1));
    else
        return Lanes<float>::load(row);
}

}  // namespace vorm::products
