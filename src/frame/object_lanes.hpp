// Lanes of objects: the same element of as many consecutive objects as a register has lanes, one
// object in each lane. Loads and stores for every layout; nothing but the elements is touched.
#pragma once

#include "frame/planes.hpp"
#include "frame/shuffles.hpp"
#include "frame/small_matrix.hpp"

namespace vorm {

// Structure of arrays: a pointer layout whose objects lie side by side, a plane for each element.
template <class View>
struct InPlanes : View {
};
template <class View>
constexpr bool isInPlanes = false;
template <class View>
constexpr bool isInPlanes<InPlanes<View>> = true;

template <class View>
constexpr InPlanes<View> asPlanes(const View& view)
{
    return {view};
}

// The addresses of consecutive objects.
template <class View, class T, int objects>
VORM_INLINE void objectsAt(const View& view, int first, T* (&to)[objects])
{
    if constexpr (requires { view.stride0; })
        for (int l = 0; l < objects; ++l) to[l] = advance(view.object(first), std::ptrdiff_t{l} * view.stride0);
    else
        for (int l = 0; l < objects; ++l) to[l] = view.object(first + l);
}

// n elements from each of several addresses, one address for each lane. --------------------------------

template <int n>
VORM_INLINE void loadRows(const float* const (&from)[4], Lanes<float> (&to)[n])
{
    constexpr int full = n / 4 * 4, even = n / 2 * 2;
    for (int c = 0; c < full; c += 4) {
        Lanes<float> block[4];
        for (int l = 0; l < 4; ++l) block[l] = Lanes<float>::load(from[l] + c);
        transpose(block);
        for (int i = 0; i < 4; ++i) to[c + i] = block[i];
    }
    if constexpr (full < even) {
        const __m128 ab = loadPairs(from[0] + full, from[1] + full).v, cd = loadPairs(from[2] + full, from[3] + full).v;
        to[full] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(2, 0, 2, 0));
        to[full + 1] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(3, 1, 3, 1));
    }
    if constexpr (even < n)
        to[even] = lanes<float>([&](int l) VORM_INLINE_LAMBDA { return elementAt(from[l] + even, 0); });
}
template <int n>
VORM_INLINE void loadRows(const double* const (&from)[2], Lanes<double> (&to)[n])
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
VORM_INLINE void storeRows(float* const (&to)[4], const Lanes<float> (&from)[n])
{
    constexpr int full = n / 4 * 4, even = n / 2 * 2;
    for (int c = 0; c < full; c += 4) {
        Lanes<float> block[4] = {from[c], from[c + 1], from[c + 2], from[c + 3]};
        transpose(block);
        for (int l = 0; l < 4; ++l) block[l].store(to[l] + c);
    }
    if constexpr (full < even) {
        storePairs(to[0] + full, to[1] + full, _mm_unpacklo_ps(from[full].v, from[full + 1].v));
        storePairs(to[2] + full, to[3] + full, _mm_unpackhi_ps(from[full].v, from[full + 1].v));
    }
    if constexpr (even < n)
        unrolled<4>([&](auto l) VORM_INLINE_LAMBDA { elementAt(to[l] + even, 0) = lane<l>(from[even]); });
}
template <int n>
VORM_INLINE void storeRows(double* const (&to)[2], const Lanes<double> (&from)[n])
{
    for (int c = 0; c + 2 <= n; c += 2) {
        Lanes<double> block[2] = {from[c], from[c + 1]};
        transpose(block);
        block[0].store(to[0] + c), block[1].store(to[1] + c);
    }
    if constexpr (n % 2 == 1)
        unrolled<2>([&](auto l) VORM_INLINE_LAMBDA { elementAt(to[l] + n - 1, 0) = lane<l>(from[n - 1]); });
}

// The same with a length of the program's run.
template <class T, int width>
VORM_INLINE void loadRows(const T* const (&from)[width], Lanes<T>* to, int n)
{
    int c = 0;
    for (; c + width <= n; c += width) {
        Lanes<T> block[width];
        for (int l = 0; l < width; ++l) block[l] = Lanes<T>::load(from[l] + c);
        transpose(block);
        for (int i = 0; i < width; ++i) to[c + i] = block[i];
    }
    for (; c < n; ++c) to[c] = lanes<T>([&](int l) VORM_INLINE_LAMBDA { return elementAt(from[l] + c, 0); });
}
template <class T, int width>
VORM_INLINE void storeRows(T* const (&to)[width], const Lanes<T>* from, int n)
{
    int c = 0;
    for (; c + width <= n; c += width) {
        Lanes<T> block[width];
        for (int i = 0; i < width; ++i) block[i] = from[c + i];
        transpose(block);
        for (int l = 0; l < width; ++l) block[l].store(to[l] + c);
    }
    for (; c < n; ++c) unrolled<width>([&](auto l) VORM_INLINE_LAMBDA { elementAt(to[l] + c, 0) = lane<l>(from[c]); });
}

template <class View>
VORM_INLINE auto* rowAt(const View& view, int object, std::ptrdiff_t row)
{
    return advance(view.object(object), row * view.stride1);
}

// Elements anywhere, of one object or of a block of them: element (r, c) of object l lies at
// [r][c][l] of the block. The loops stay loops, so that one piece of code serves all sizes. ----------------

template <class T, class View>
[[gnu::noinline]] void gatherVectors(const View& view, int first, int objects, int n, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int i = 0; i < n; ++i) to[i * objects + l] = view(first + l, i);
}
template <class T, class View>
[[gnu::noinline]] void gatherMatrices(const View& view, int first, int objects, int n, T* to)
{
    for (int l = 0; l < objects; ++l)
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) to[(r * n + c) * objects + l] = view(first + l, r, c);
}
template <class T, class View>
[[gnu::noinline]] void scatterVectors(const View& view, int first, int objects, int n, const T* from)
{
    for (int l = 0; l < objects; ++l)
        for (int i = 0; i < n; ++i) view(first + l, i) = from[i * objects + l];
}

// Whether the objects from n on that share a register share no memory, so that their elements may be
// stored in any order.
template <class View>
VORM_INLINE bool objectsApart(const View& view, int n, int rows, int len)
{
    using T = std::remove_const_t<std::remove_pointer_t<decltype(view.object(n))>>;
    constexpr int width = Lanes<T>::width;
    const std::ptrdiff_t row = len * std::ptrdiff_t{sizeof(T)};
    std::ptrdiff_t stride1 = 0;
    if constexpr (requires { view.stride1; }) stride1 = view.stride1;
    const std::ptrdiff_t span = (rows - 1) * stride1 + row;
    if constexpr (requires { view.stride0; }) {
        return view.stride0 >= span ||
               (view.stride0 >= row && (width - 1) * std::ptrdiff_t{view.stride0} + row <= stride1);
    } else {
        const auto at = [&](int l) VORM_INLINE_LAMBDA { return reinterpret_cast<const char*>(view.object(n + l)); };
        for (int i = 1; i < width; ++i)
            for (int j = 0; j < i; ++j)
                if (const std::ptrdiff_t distance = at(i) - at(j); - span < distance && distance < span) return false;
        return true;
    }
}

// Whether an array lies in planes, and registers of objects stored to it never overlap each other.
template <class View>
VORM_INLINE bool storableAsPlanes(const View& dst, int rows, int columns, int count)
{
    return inPlanes(dst) && planesApart(dst.pp, rows, columns, int{sizeof(__m128)}, std::int64_t{count} * rows);
}

}  // namespace vorm
