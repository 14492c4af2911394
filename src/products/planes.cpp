// Products over structures of arrays, orders 3 to 6: which tiles cover them.

#include "products/planes.hpp"

#include "products/plane_tiles.hpp"

namespace vorm {

namespace {

// The fastest tiles where D has several columns. Where it has one, as many rows as there are.
template <int n>
constexpr int tileRows = n == 4   ? 2
                         : n == 5 ? 5
                                  : 3;
template <int n>
constexpr int tileColumns = n == 4   ? 4
                            : n == 5 ? 2
                                     : 3;

// Covers n rows of one column. A tile of all rows reads every plane at once, which is best in a cache; no
// memory follows so many streams, where one of two rows costs some loads more.
template <class T, int n, class A, class B, class D>
void coverColumn(const A& a, const B& b, const D& d, int steps, bool cached)
{
    if (cached || n == 3) return planeTile<T, n, n, 1>(a, b, d, steps);
    for (int i = 0; i + 2 <= n; i += 2) planeTile<T, n, 2, 1>(a.from(i, 0), b, d.from(i, 0), steps);
    if constexpr (n % 2 != 0) planeTile<T, n, 1, 1>(a.from(n - 1, 0), b, d.from(n - 1, 0), steps);
}

// Covers n rows and some columns with tiles of full size; what is left of the columns one by one.
template <class T, int n, class A, class B, class D>
void cover(const A& a, const B& b, const D& d, int columns, int steps, bool cached)
{
    if (columns == 1) return coverColumn<T, n>(a, b, d, steps, cached);
    constexpr int rows = tileRows<n>, width = tileColumns<n>;
    int j = 0;
    for (; j + width <= columns; j += width)
        for (int i = 0; i < n; i += rows) planeTile<T, n, rows, width>(a.from(i, 0), b.from(0, j), d.from(i, j), steps);
    for (; j < columns; ++j) planeTile<T, n, n, 1>(a, b.from(0, j), d.from(0, j), steps);
}

// The distance from one pointer of a table to the next, if it is the same for all: bytes.
template <class T>
bool evenDistance(const PlaneTable<T>& table, int elements, std::ptrdiff_t& distance)
{
    const auto address = [&](int i) { return reinterpret_cast<const char*>(table.pp[i]); };
    distance = address(1) - address(0);
    for (int i = 2; i < elements; ++i)
        if (address(i) - address(i - 1) != distance) return false;
    return true;
}

// Products where all objects share an operand, some lines of which stay in registers: rows of A or columns
// of B. Each line of the other operand, a column or a row, meets all of them while it is in the cache.
template <class T, int n>
class HeldProduct {
public:
    HeldProduct(const PlaneTable<const T>& a, const PlaneTable<const T>& b, const PlaneTable<T>& d, int columns)
        : planes_(a.isCommon ? transposed(b) : a),
          d_(a.isCommon ? d : transposed(d)),
          heldLines_(a.isCommon ? n : columns),
          lines_(a.isCommon ? columns : n)
    {
        const PlaneTable<const T> held = a.isCommon ? a : transposed(b);
        for (int i = 0; i < heldLines_; ++i)
            for (int k = 0; k < n; ++k) held_[i][k] = T(elementAt(address(held, i, k, 0), 0));
    }
    void objects(std::ptrdiff_t begin, int steps) const
    {
        constexpr int atOnce = n < 6 ? n : 3;
        if (lines_ == 1 && heldLines_ == n) return someLines<n>(0, 0, begin, steps);  // reads each plane once
        for (int j = 0; j < lines_; ++j) {
            int i = 0;
            for (; i + atOnce <= heldLines_; i += atOnce) someLines<atOnce>(i, j, begin, steps);
            for (; i < heldLines_; ++i) someLines<1>(i, j, begin, steps);
        }
    }

private:
    template <class Element>
    static PlaneTable<Element> transposed(PlaneTable<Element> table)
    {
        std::swap(table.row, table.column);
        return table;
    }
    template <int some>
    void someLines(int i, int j, std::ptrdiff_t begin, int steps) const
    {
        const T* planes[n];
        T* d[some];
        for (int k = 0; k < n; ++k) planes[k] = address(planes_, j, k, begin);
        for (int r = 0; r < some; ++r) d[r] = address(d_, i + r, j, begin);
        heldTile<T, n, some>(&held_[i], planes, d, steps);
    }
    template <class Element>
    static Element* address(const PlaneTable<Element>& table, int r, int c, std::ptrdiff_t begin)
    {
        return advance(table.pp[r * table.row + c * table.column], table.shift + begin);
    }

    Lanes<T> held_[n][n];
    PlaneTable<const T> planes_;
    PlaneTable<T> d_;
    int heldLines_, lines_;
};

template <class T, int n>
void products(const PlaneTable<const T>& a, const PlaneTable<const T>& b, const PlaneTable<T>& d, int columns, Run run,
              int count)
{
    constexpr int width = Lanes<T>::width;
    const int atOnce = objectsAtOnce<T>(run, count);
    const bool cached = atOnce == count;
    const auto eachRound = [&](const auto& round) {
        for (std::ptrdiff_t first = 0; first < count; first += atOnce)
            round(first * int{sizeof(T)}, static_cast<int>(min<std::ptrdiff_t>(atOnce, count - first)) / width);
    };
    if (a.isCommon || b.isCommon) {
        const HeldProduct<T, n> product(a, b, d, columns);
        eachRound([&](std::ptrdiff_t begin, int steps) { product.objects(begin, steps); });
        return;
    }

    std::ptrdiff_t distanceA, distanceB, distanceD;
    const bool even = evenDistance(a, n * n, distanceA) && evenDistance(b, n * columns, distanceB) &&
                      evenDistance(d, n * columns, distanceD);
    eachRound([&](std::ptrdiff_t begin, int steps) {
        if (even) {
            const auto planes = [&]<class Element>(const PlaneTable<Element>& table, std::ptrdiff_t distance) {
                return EvenPlanes<Element>{advance(table.pp[0], table.shift + begin), distance * table.row,
                                           distance * table.column};
            };
            cover<T, n>(planes(a, distanceA), planes(b, distanceB), planes(d, distanceD), columns, steps, cached);
        } else {
            const auto planes = [&]<class Element>(const PlaneTable<Element>& table) {
                return ListedPlanes<Element>{table.pp, table.row, table.column, table.shift + begin};
            };
            cover<T, n>(planes(a), planes(b), planes(d), columns, steps, cached);
        }
    });
}

}  // namespace

template <class T>
void productsInPlanes(int order, const PlaneTable<const T>& a, const PlaneTable<const T>& b, const PlaneTable<T>& d,
                      int columns, Run run, int count)
{
    switch (order) {
    case 3: return products<T, 3>(a, b, d, columns, run, count);
    case 4: return products<T, 4>(a, b, d, columns, run, count);
    case 5: return products<T, 5>(a, b, d, columns, run, count);
    case 6: return products<T, 6>(a, b, d, columns, run, count);
    }
}

template void productsInPlanes(int, const PlaneTable<const float>&, const PlaneTable<const float>&,
                               const PlaneTable<float>&, int, Run, int);
template void productsInPlanes(int, const PlaneTable<const double>&, const PlaneTable<const double>&,
                               const PlaneTable<double>&, int, Run, int);

}  // namespace vorm
