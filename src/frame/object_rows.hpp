// Square matrices too large for registers, several at a time in a buffer: object by object, in rows of whole
// registers. So many steps of different objects can be under way together, where those of one would wait for each
// other; and a step works on lanes of a row.
#pragma once

#include "frame/object_lanes.hpp"

namespace vorm {

// As many objects as a register has lanes, of orders up to this.
constexpr int bufferedOrder = 16;
template <class T>
using RowBuffer = Lanes<T>[bufferedOrder * bufferedOrder];
template <class T>
constexpr int registersOf(int n)  // of a row
{
    return (n + narrow<T> - 1) / narrow<T>;
}

// Row r of object l begins at to[(l * n + r) * registersOf<T>(n)]; it ends in zeros. From planes another column may
// be taken along behind it, where that has room: column(r) is its element r of all objects.
template <class T>
struct NoColumn {
    Lanes<T> operator()(int) const { return T(0); }
};
template <class T, class View, class Column = NoColumn<T>>
VORM_INLINE void loadInRows(const View& view, int first, int n, Lanes<T>* to, const Column& column = {})
{
    constexpr int width = narrow<T>;
    const int registers = registersOf<T>(n), whole = n / width, rest = n % width;
    if constexpr (isAdjacent<View>) {
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r, to += registers) {
                const T* const from = rowAt(view, first + l, r);
                for (int i = 0; i < whole; ++i) to[i] = Lanes<T>::load(from + i * width);
                if (rest > 0) to[whole] = loadFirst(from + whole * width, rest);
            }
    } else if constexpr (isInPlanes<View>) {
        for (int r = 0; r < n; ++r)
            for (int i = 0; i < registers; ++i) {
                Lanes<T> block[width];
                for (int c = 0; c < width; ++c)
                    block[c] = i < whole || c < rest ? Lanes<T>::load(view.element(r, i * width + c) + first)
                               : c == rest           ? column(r)
                                                     : Lanes<T>(T(0));
                transpose(block);
                for (int l = 0; l < width; ++l) to[(l * n + r) * registers + i] = block[l];
            }
    } else {
        auto* const elements = reinterpret_cast<T*>(to);
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r)
                for (int c = 0; c < registers * width; ++c)
                    elements[(l * n + r) * registers * width + c] = c < n ? T(view(first + l, r, c)) : 0;
    }
}
template <class T, class View>
VORM_INLINE void storeInRows(const View& view, int first, int n, const Lanes<T>* from)
{
    constexpr int width = narrow<T>;
    const int registers = registersOf<T>(n), whole = n / width, rest = n % width;
    if constexpr (isAdjacent<View>) {
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r, from += registers) {
                T* const to = rowAt(view, first + l, r);
                for (int i = 0; i < whole; ++i) from[i].store(to + i * width);
                if (rest > 0) storeFirst(to + whole * width, from[whole], rest);
            }
    } else if constexpr (isInPlanes<View>) {
        for (int r = 0; r < n; ++r)
            for (int i = 0; i < registers; ++i) {
                Lanes<T> block[width];
                for (int l = 0; l < width; ++l) block[l] = from[(l * n + r) * registers + i];
                transpose(block);
                for (int c = 0; c < width; ++c)
                    if (i < whole || c < rest) block[c].store(view.element(r, i * width + c) + first);
            }
    } else {
        const auto* const elements = reinterpret_cast<const T*>(from);
        for (int l = 0; l < width; ++l)
            for (int r = 0; r < n; ++r)
                for (int c = 0; c < n; ++c) view(first + l, r, c) = elements[(l * n + r) * registers * width + c];
    }
}

}  // namespace vorm
