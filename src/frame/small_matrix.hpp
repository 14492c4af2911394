// The square matrices of order 3 to 6, held row by row in registers.
#pragma once

#include <algorithm>
#include <concepts>

#include "frame/lanes.hpp"
#include "frame/operands.hpp"
#include "frame/unrolled.hpp"

namespace vorm {

// Views whose stored rows are contiguous, and which of the views are read transposed.
template <class View>
concept AdjacentRows = requires(const View& view)
{
    view.stride1;
    {
        view.stride2
        } -> std::same_as<const Adjacent&>;
};
template <class View> constexpr bool isTransposed = false;
template <class Stored> constexpr bool isTransposed<Transposed<Stored>> = true;

// One lane in all lanes.
template <int lane>
VORM_INLINE Lanes<float> splat(Lanes<float> a)
{
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a.v), lane * 0x55));
}
template <int lane>
VORM_INLINE Lanes<double> splat(Lanes<double> a) { return _mm_shuffle_pd(a.v, a.v, lane * 3); }
VORM_INLINE float firstLane(Lanes<float> a) { return _mm_cvtss_f32(a.v); }
VORM_INLINE double firstLane(Lanes<double> a) { return _mm_cvtsd_f64(a.v); }

VORM_INLINE Lanes<float> gather(float a, float b, float c, float d) { return _mm_setr_ps(a, b, c, d); }
VORM_INLINE Lanes<double> gather(double a, double b) { return _mm_setr_pd(a, b); }

template <class T, int n> struct SmallMatrix {
    static constexpr int width = Lanes<T>::width, full = n / width, rest = n % width, parts = full + (rest != 0);
    Lanes<T> v[n][parts];  // element (r, c) is lane c % width of v[r][c / width]; lanes behind the row are undefined

    template <class View>
    VORM_INLINE static SmallMatrix load(const View& view, int object)
    {
        SmallMatrix m;
        if constexpr (AdjacentRows<View>) {
            unrolled<n>([&](auto r) VORM_INLINE_LAMBDA { loadRow<r>(view, object, m.v[r]); });
        } else if constexpr (isTransposed<View>) {
            m = SmallMatrix::load(view.stored, object).transposed();
        } else {
            unrolled<n>([&](auto r) VORM_INLINE_LAMBDA {
                const auto element = [&](int c) VORM_INLINE_LAMBDA { return c < n ? T(view(object, r, c)) : T(0); };
                for (int p = 0; p < parts; ++p) {
                    if constexpr (width == 4)
                        m.v[r][p] = gather(element(4 * p), element(4 * p + 1), element(4 * p + 2), element(4 * p + 3));
                    else
                        m.v[r][p] = gather(element(2 * p), element(2 * p + 1));
                }
            });
        }
        return m;
    }

    VORM_INLINE SmallMatrix transposed() const
    {
        SmallMatrix m;
        unrolled<parts>([&](auto down) VORM_INLINE_LAMBDA {
            unrolled<parts>([&](auto across) VORM_INLINE_LAMBDA {
                Lanes<T> block[width];
                for (int k = 0; k < width; ++k) block[k] = v[std::min(width * down + k, n - 1)][across];
                transpose(block);
                for (int k = 0; k < width && width * across + k < n; ++k) m.v[width * across + k][down] = block[k];
            });
        });
        return m;
    }

    // One row, from or to contiguous elements. Three floats are read as four: the element before the
    // last row or behind any other one lies within the matrix, whatever its row stride.
    template <int r, class View>
    VORM_INLINE static void loadRow(const View& view, int object, Lanes<T> (&row)[parts])
    {
        const T* const p = advance(view.object(object), std::ptrdiff_t{r} * view.stride1);
        for (int k = 0; k < full; ++k) row[k] = Lanes<T>::load(p + k * width);
        if constexpr (width == 4 && rest == 3) {
            static_assert(full == 0);
            if constexpr (r < n - 1)
                row[0] = Lanes<T>::load(p);
            else
                row[0] = _mm_castsi128_ps(_mm_srli_si128(_mm_castps_si128(Lanes<T>::load(p - 1).v), 4));
        } else if constexpr (rest != 0) {
            row[full] = loadFirst<rest>(p + full * width);
        }
    }
    template <int r, class View>
    VORM_INLINE static void storeRow(const View& view, int object, const Lanes<T> (&row)[parts])
    {
        if constexpr (AdjacentRows<View>) {
            T* const p = advance(view.object(object), std::ptrdiff_t{r} * view.stride1);
            for (int k = 0; k < full; ++k) row[k].store(p + k * width);
            if constexpr (width == 4 && rest == 3) {
                if (r < n - 1 && view.stride1 == 3 * int{sizeof(T)}) {
                    row[0].store(p);  // the next row overwrites what is too much
                } else {
                    storeFirst<2>(p, row[0]);
                    storeFirst<1>(p + 2, _mm_movehl_ps(row[0].v, row[0].v));
                }
            } else if constexpr (rest != 0) {
                storeFirst<rest>(p + full * width, row[full]);
            }
        } else {
            unrolled<n>([&](auto c)
                            VORM_INLINE_LAMBDA { view(object, r, c) = firstLane(splat<c % width>(row[c / width])); });
        }
    }
};

}  // namespace vorm
