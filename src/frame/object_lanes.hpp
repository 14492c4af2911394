// Lanes of objects: the same element of as many consecutive objects as a register has lanes, one
// object in each lane. Loads and stores for every layout; nothing but the elements is touched.
#pragma once

#include <cstdlib>

#include "frame/lanes.hpp"
#include "frame/operands.hpp"
#include "frame/small_matrix.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// Structure of arrays: a pointer layout whose objects lie side by side.
template <class View>
struct InPlanes : View {};
template <class View> constexpr bool isInPlanes = false;
template <class View> constexpr bool isInPlanes<InPlanes<View>> = true;

template <class View> constexpr bool isAdjacent = adjacentRows<View>;
template <class T> constexpr bool isAdjacent<Vector<T, Adjacent>> = true;
template <class T> constexpr bool isAdjacent<VectorArray<T, Adjacent>> = true;
template <class T> constexpr bool isAdjacent<VectorList<T, Adjacent>> = true;

// n elements from each of several addresses, one address for each lane. --------------------------------

VORM_INLINE __m128 pairsAt(const float* p, const float* q)  // p0 p1 q0 q1
{
    const __m128 low = _mm_loadl_pi(_mm_setzero_ps(), reinterpret_cast<const __m64*>(p));
    return _mm_loadh_pi(low, reinterpret_cast<const __m64*>(q));
}

template <int n>
VORM_INLINE void loadRows(const float* (&from)[4], Lanes<float> (&to)[n])
{
    constexpr int full = n / 4 * 4, even = n / 2 * 2;
    for (int c = 0; c < full; c += 4) {
        Lanes<float> block[4];
        for (int l = 0; l < 4; ++l) block[l] = Lanes<float>::load(from[l] + c);
        transpose(block);
        for (int i = 0; i < 4; ++i) to[c + i] = block[i];
    }
    if constexpr (full < even) {
        const __m128 ab = pairsAt(from[0] + full, from[1] + full), cd = pairsAt(from[2] + full, from[3] + full);
        to[full] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(2, 0, 2, 0));
        to[full + 1] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(3, 1, 3, 1));
    }
    if constexpr (even < n)
        to[even] = lanes<float>([&](int l) VORM_INLINE_LAMBDA { return elementAt(from[l] + even, 0); });
}
template <int n>
VORM_INLINE void loadRows(const double* (&from)[2], Lanes<double> (&to)[n])
{
    for (int c = 0; c + 2 <= n; c += 2) {
        Lanes<double> block[2] = {Lanes<double>::load(from[0] + c), Lanes<double>::load(from[1] + c)};
        transpose(block);
        to[c] = block[0], to[c + 1] = block[1];
    }
    if constexpr (n % 2 == 1)
        to[n - 1] = lanes<double>([&](int l) VORM_INLINE_LAMBDA { return elementAt(from[l] + n - 1, 0); });
}

template <int n>
VORM_INLINE void storeRows(float* (&to)[4], const Lanes<float> (&from)[n])
{
    constexpr int full = n / 4 * 4, even = n / 2 * 2;
    for (int c = 0; c < full; c += 4) {
        Lanes<float> block[4] = {from[c], from[c + 1], from[c + 2], from[c + 3]};
        transpose(block);
        for (int l = 0; l < 4; ++l) block[l].store(to[l] + c);
    }
    if constexpr (full < even) {
        const __m128 ab = _mm_unpacklo_ps(from[full].v, from[full + 1].v);
        const __m128 cd = _mm_unpackhi_ps(from[full].v, from[full + 1].v);
        const auto at = [&](int l) VORM_INLINE_LAMBDA { return reinterpret_cast<__m64*>(to[l] + full); };
        _mm_storel_pi(at(0), ab), _mm_storeh_pi(at(1), ab);
        _mm_storel_pi(at(2), cd), _mm_storeh_pi(at(3), cd);
    }
    if constexpr (even < n)
        unrolled<4>([&](auto l)
                        VORM_INLINE_LAMBDA { elementAt(to[l] + even, 0) = firstLane(splat<l>(from[even])); });
}
template <int n>
VORM_INLINE void storeRows(double* (&to)[2], const Lanes<double> (&from)[n])
{
    for (int c = 0; c + 2 <= n; c += 2) {
        Lanes<double> block[2] = {from[c], from[c + 1]};
        transpose(block);
        block[0].store(to[0] + c), block[1].store(to[1] + c);
    }
    if constexpr (n % 2 == 1)
        unrolled<2>([&](auto l)
                        VORM_INLINE_LAMBDA { elementAt(to[l] + n - 1, 0) = firstLane(splat<l>(from[n - 1])); });
}

// The vector, or the given row of the matrix, of object n and the next ones. ---------------------------

template <class View, class... Row>
VORM_INLINE auto* rowAt(const View& view, int n, Row... row)
{
    if constexpr (sizeof...(row) == 0)
        return view.object(n);
    else
        return advance(view.object(n), (std::ptrdiff_t{row} * ... * view.stride1));
}

template <class View, class T, int len, class... Row>
VORM_INLINE void loadLanes(const View& view, int n, Lanes<T> (&to)[len], Row... row)
{
    constexpr int width = Lanes<T>::width;
    if constexpr (isAdjacent<View>) {
        const T* from[width];
        for (int l = 0; l < width; ++l) from[l] = rowAt(view, n + l, row...);
        loadRows(from, to);
    } else {
        unrolled<len>([&](auto i) VORM_INLINE_LAMBDA {
            if constexpr (isInPlanes<View>)
                to[i] = Lanes<T>::load(view.element(row..., i) + n);
            else
                to[i] = lanes<T>([&](int l) VORM_INLINE_LAMBDA { return T(view(n + l, row..., i)); });
        });
    }
}

// The lanes of a whole vector, object by object unless they lie side by side.
template <class View, class T, int len>
VORM_INLINE void storeLanes(const View& view, int n, const Lanes<T> (&from)[len])
{
    constexpr int width = Lanes<T>::width;
    if constexpr (isAdjacent<View>) {
        T* to[width];
        for (int l = 0; l < width; ++l) to[l] = view.object(n + l);
        storeRows(to, from);
    } else if constexpr (isInPlanes<View>) {
        for (int i = 0; i < len; ++i) from[i].store(view.element(i) + n);
    } else {
        T elements[len][width];
        for (int i = 0; i < len; ++i) from[i].store(elements[i]);
        for (int l = 0; l < width; ++l)
            for (int i = 0; i < len; ++i) view(n + l, i) = elements[i][l];
    }
}

// Whether object n and the next ones share no memory, so that their elements may be stored in any
// order. Elements without a known neighbour are stored object by object, planes are tested beforehand.
template <class View>
VORM_INLINE bool objectsApart(const View& view, int n, int rows, int len)
{
    using T = std::remove_reference_t<decltype(*view.object(n))>;
    constexpr int width = Lanes<std::remove_const_t<T>>::width;
    const std::ptrdiff_t row = len * std::ptrdiff_t{sizeof(T)};
    std::ptrdiff_t stride1 = 0;
    if constexpr (adjacentRows<View>) stride1 = view.stride1;
    const std::ptrdiff_t span = (rows - 1) * stride1 + row;
    if constexpr (requires { view.stride0; }) {
        return view.stride0 >= span || (view.stride0 >= row && (width - 1) * std::ptrdiff_t{view.stride0} + row <= stride1);
    } else {
        for (int i = 1; i < width; ++i)
            for (int j = 0; j < i; ++j)
                if (std::abs(reinterpret_cast<const char*>(view.object(n + i)) -
                             reinterpret_cast<const char*>(view.object(n + j))) < span)
                    return false;
        return true;
    }
}

// Whether the registers stored to the planes of a table never overlap within a block of objects.
template <class T>
VORM_INLINE bool planesApart(T* const* planes, int elements)
{
    const auto apart = [&](int i, int j) VORM_INLINE_LAMBDA {
        return reinterpret_cast<const char*>(planes[i]) - reinterpret_cast<const char*>(planes[j]);
    };
    int ascending = 1;
    while (ascending < elements && apart(ascending, ascending - 1) >= 16) ++ascending;
    for (int i = ascending; i < elements; ++i)
        for (int j = 0; j < i; ++j)
            if (std::abs(apart(i, j)) < 16) return false;
    return true;
}

}  // namespace vorm
