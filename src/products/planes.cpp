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

// Covers n rows and some columns with tiles of full size; what is left of the columns one by one.
template <class T, int n, class A, class B, class D>
void cover(const A& a, const B& b, const D& d, int columns, int steps)
{
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

template <class T, int n>
void products(const PlaneTable<const T>& a, const PlaneTable<const T>& b, const PlaneTable<T>& d, int columns,
              int count)
{
    constexpr int width = Lanes<T>::width, registerBytes = 16;
    const int elementsOfB = n * columns;
    const Spread<T, n> spreadA(a, n), spreadB(b, columns);
    std::ptrdiff_t distanceA = registerBytes, distanceB = registerBytes, distanceD;
    bool even = evenDistance(d, elementsOfB, distanceD);
    if (!a.isCommon) even = even && evenDistance(a, n * n, distanceA);
    if (!b.isCommon) even = even && evenDistance(b, elementsOfB, distanceB);
    // One matrix for all vectors: registers of objects are the columns of B and D.
    const bool objectsAcross = a.isCommon && columns == 1;

    for (int first = 0; first < count; first += objectsAtOnce<T>) {
        const int registers = (std::min(first + objectsAtOnce<T>, count) - first) / width;
        const auto begin = std::ptrdiff_t{first} * int{sizeof(T)};
        const auto coverAll = [&](const auto& ofA, auto ofB, auto ofD) {
            if (!objectsAcross) return cover<T, n>(ofA, ofB, ofD, columns, registers);
            constexpr int across = tileColumns<n>;
            const int tiles = registers / across;
            auto restOfB = ofB.from(0, tiles * across);
            auto restOfD = ofD.from(0, tiles * across);
            restOfB.step = restOfD.step = registerBytes;
            ofB.step = ofD.step = across * registerBytes;
            cover<T, n>(ofA, ofB, ofD, across, tiles);
            cover<T, n>(ofA, restOfB, restOfD, 1, registers - tiles * across);
        };
        if (even) {
            const auto planes = [&]<class Element>(const PlaneTable<Element>& table, std::ptrdiff_t distance) {
                return EvenPlanes<Element>{advance(table.pp[0], table.shift + begin), distance * table.row,
                                           objectsAcross ? registerBytes : distance * table.column, registerBytes};
            };
            const auto source = [&](const auto& table, std::ptrdiff_t distance, const auto& spread, int breadth) {
                if (!table.isCommon) return planes(table, distance);
                return EvenPlanes<const T>{spread.pointers()[0], breadth * registerBytes, registerBytes, 0};
            };
            coverAll(source(a, distanceA, spreadA, n), source(b, distanceB, spreadB, columns), planes(d, distanceD));
        } else {
            const auto planes = [&]<class Element>(const PlaneTable<Element>& table) {
                return ListedPlanes<Element>{table.pp,
                                             std::ptrdiff_t{table.row},
                                             std::ptrdiff_t{table.column},
                                             table.shift + begin,
                                             std::ptrdiff_t{objectsAcross ? registerBytes : 0},
                                             std::ptrdiff_t{registerBytes}};
            };
            const auto source = [&](const auto& table, const auto& spread, int breadth) {
                if (!table.isCommon) return planes(table);
                return ListedPlanes<const T>{spread.pointers(), breadth, 1, 0, 0, 0};
            };
            coverAll(source(a, spreadA, n), source(b, spreadB, columns), planes(d));
        }
    }
}

}  // namespace

template <class T>
void productsInPlanes(int order, const PlaneTable<const T>& a, const PlaneTable<const T>& b, const PlaneTable<T>& d,
                      int columns, int count)
{
    switch (order) {
    case 3: return products<T, 3>(a, b, d, columns, count);
    case 4: return products<T, 4>(a, b, d, columns, count);
    case 5: return products<T, 5>(a, b, d, columns, count);
    case 6: return products<T, 6>(a, b, d, columns, count);
    }
}

template void productsInPlanes(int, const PlaneTable<const float>&, const PlaneTable<const float>&,
                               const PlaneTable<float>&, int, int);
template void productsInPlanes(int, const PlaneTable<const double>&, const PlaneTable<const double>&,
                               const PlaneTable<double>&, int, int);

}  // namespace vorm
