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

// The elements of an operand that all objects share, each in all lanes of a register.
template <class T, int n>
class Spread {
public:
    Spread(const PlaneTable<const T>& table, int columns)
    {
        if (!table.isCommon) return;
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < columns; ++c) {
                const T* const p = advance(table.pp[r * table.row + c * table.column], table.shift);
                Lanes<T>(elementAt(p, 0)).store(elements_[r * columns + c]);
                pointers_[r * columns + c] = elements_[r * columns + c];
            }
    }
    const T* const* pointers() const { return pointers_; }

private:
    T elements_[n * n][Lanes<T>::width];
    const T* pointers_[n * n];
};

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

// One matrix for all vectors, or one vector for all matrices.
template <class T, int n>
class HeldProduct {
public:
    HeldProduct(const PlaneTable<const T>& a, const PlaneTable<const T>& b, const PlaneTable<T>& d)
        : planes_(a.isCommon ? b : a), held_(a.isCommon ? a : b), d_(d), matrixIsHeld_(a.isCommon)
    {
    }
    // With a matrix all rows at once, even where there are registers for some only: each plane is read once.
    void objects(std::ptrdiff_t begin, int steps) const
    {
        if (matrixIsHeld_) return someRows<n>(0, begin, steps);
        for (int i = 0; i < n; ++i) someRows<1>(i, begin, steps);
    }

private:
    template <int rows>
    void someRows(int i, std::ptrdiff_t begin, int steps) const
    {
        Lanes<T> held[rows][n];
        const T* planes[n];
        T* d[rows];
        for (int k = 0; k < n; ++k) {
            planes[k] = address(planes_, matrixIsHeld_ ? 0 : i, k, begin);
            for (int r = 0; r < rows; ++r)
                held[r][k] = T(elementAt(address(held_, matrixIsHeld_ ? i + r : 0, k, 0), 0));
        }
        for (int r = 0; r < rows; ++r) d[r] = address(d_, 0, i + r, begin);
        heldTile<T, n, rows>(held, planes, d, steps);
    }
    // Element (r, c) of a matrix, element c of a vector.
    template <class Element>
    static Element* address(const PlaneTable<Element>& table, int r, int c, std::ptrdiff_t begin)
    {
        return advance(table.pp[table.column == 0 ? c : r * table.row + c * table.column], table.shift + begin);
    }

    const PlaneTable<const T>&planes_, &held_;
    const PlaneTable<T>& d_;
    bool matrixIsHeld_;
};

template <class T, int n>
void products(const PlaneTable<const T>& a, const PlaneTable<const T>& b, const PlaneTable<T>& d, int columns, Run run,
              int count)
{
    constexpr int width = Lanes<T>::width, registerBytes = 16;
    const int atOnce = objectsAtOnce<T>(run, count);
    const bool cached = atOnce == count;
    const auto eachRound = [&](const auto& round) {
        for (std::ptrdiff_t first = 0; first < count; first += atOnce)
            round(first * int{sizeof(T)}, static_cast<int>(std::min<std::ptrdiff_t>(atOnce, count - first)) / width);
    };
    if (columns == 1 && (a.isCommon || b.isCommon)) {
        const HeldProduct<T, n> product(a, b, d);
        eachRound([&](std::ptrdiff_t begin, int steps) { product.objects(begin, steps); });
        return;
    }

    const Spread<T, n> spreadA(a, n), spreadB(b, columns);
    std::ptrdiff_t distanceA = registerBytes, distanceB = registerBytes, distanceD;
    bool even = evenDistance(d, n * columns, distanceD);
    if (!a.isCommon) even = even && evenDistance(a, n * n, distanceA);
    if (!b.isCommon) even = even && evenDistance(b, n * columns, distanceB);
    eachRound([&](std::ptrdiff_t begin, int steps) {
        if (even) {
            const auto planes = [&]<class Element>(const PlaneTable<Element>& table, std::ptrdiff_t distance) {
                return EvenPlanes<Element>{advance(table.pp[0], table.shift + begin), distance * table.row,
                                           distance * table.column, registerBytes};
            };
            const auto source = [&](const auto& table, std::ptrdiff_t distance, const auto& spread, int breadth) {
                if (!table.isCommon) return planes(table, distance);
                return EvenPlanes<const T>{spread.pointers()[0], breadth * registerBytes, registerBytes, 0};
            };
            cover<T, n>(source(a, distanceA, spreadA, n), source(b, distanceB, spreadB, columns), planes(d, distanceD),
                        columns, steps, cached);
        } else {
            const auto planes = [&]<class Element>(const PlaneTable<Element>& table) {
                return ListedPlanes<Element>{table.pp, table.row, table.column, table.shift + begin, registerBytes};
            };
            const auto source = [&](const auto& table, const auto& spread, int breadth) {
                if (!table.isCommon) return planes(table);
                return ListedPlanes<const T>{spread.pointers(), breadth, 1, 0, 0};
            };
            cover<T, n>(source(a, spreadA, n), source(b, spreadB, columns), planes(d), columns, steps, cached);
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
