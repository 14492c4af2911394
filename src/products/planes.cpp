// Products in pointer layout. Where the objects lie in planes, one for each element, whole registers of objects go
// through the tiles of plane_tiles.hpp at the orders 3 to 6; objects left over and all other tables, one by one.

#include "frame/planes.hpp"
#include "frame/minmax.hpp"
#include "frame/overlap.hpp"
#include "products/anywhere.hpp"
#include "products/plane_tiles.hpp"

namespace vorm::products {

namespace {

// At orders 3 to 6 results are computed for so many objects at once, some of their elements after the
// other. Sources that are read again for other elements should stay in the cache, but the longer the
// run along a plane, the better does the memory keep up. No plane is read twice where all objects share the vector.
template <Second second, class T>
int objectsAtOnce(const TabledElements<const T>& b, int count)
{
    if (second == Second::vectors && b.isCommon()) return count;
    return min(count, (second == Second::vectors ? 32768 : 2048) / int{sizeof(T)});
}

// Whether the objects of an array lie side by side, a plane for each element.
template <class T>
bool inPlanes(const TabledElements<T>& elements)
{
    return elements.isCommon() || elements.object == sizeof(T);
}

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

bool inPlanes(NothingAdded) { return true; }

// The distance from one pointer of a table to the next, if it is the same for all: bytes.
template <class T>
bool evenDistance(const TabledElements<T>& table, int elements, std::ptrdiff_t& distance)
{
    const auto address = [&](int i) { return reinterpret_cast<const char*>(table.pp[i]); };
    distance = address(1) - address(0);
    for (int i = 2; i < elements; ++i)
        if (address(i) - address(i - 1) != distance) return false;
    return true;
}

// What is added to some rows of a product with a common matrix, from row i on: a vector for each object, in planes, or
// one that all objects share, which is spread for this.
template <class T, int some>
AddedLines<T, some> linesOf(const TabledElements<const T>& added, Lanes<T> (&spread)[some], int i, std::ptrdiff_t begin)
{
    AddedLines<T, some> lines;
    lines.mask = added.isCommon() ? 0 : ~std::ptrdiff_t{0};
    for (int r = 0; r < some; ++r) {
        const T* const plane = added.plane(i + r, 0);
        if (added.isCommon()) spread[r] = T(elementAt(plane, 0));
        lines.from[r] = added.isCommon() ? reinterpret_cast<const T*>(&spread[r]) : advance(plane, begin);
    }
    return lines;
}
template <class T, int some>
NothingLines linesOf(NothingAdded, Lanes<T> (&)[some], int, std::ptrdiff_t)
{
    return {};
}

// Products where all objects share an operand, some lines of which stay in registers: rows of A or columns
// of B. Each line of the other operand, a column or a row, meets all of them while it is in the cache.
template <class T, int n, class Added>
class HeldProduct {
public:
    HeldProduct(const TabledElements<const T>& a, const TabledElements<const T>& b, const Added& added,
                const TabledElements<T>& d, int columns)
        : added_(added),
          planes_(a.isCommon() ? transposed(b) : a),
          d_(a.isCommon() ? d : transposed(d)),
          heldLines_(a.isCommon() ? n : columns),
          lines_(a.isCommon() ? columns : n)
    {
        const TabledElements<const T> held = a.isCommon() ? a : transposed(b);
        for (int i = 0; i < heldLines_; ++i)
            for (int k = 0; k < n; ++k) held_[i][k] = T(elementAt(held.plane(i, k), 0));
    }
    void objects(std::ptrdiff_t begin, int steps) const
    {
        constexpr int atOnce = n < 6 ? n : 3;
        if constexpr (!std::is_same_v<Added, NothingAdded>) return someLines<n>(0, 0, begin, steps);  // vectors
        if (lines_ == 1 && heldLines_ == n) return someLines<n>(0, 0, begin, steps);  // reads each plane once
        for (int j = 0; j < lines_; ++j) {
            int i = 0;
            for (; i + atOnce <= heldLines_; i += atOnce) someLines<atOnce>(i, j, begin, steps);
            for (; i < heldLines_; ++i) someLines<1>(i, j, begin, steps);
        }
    }

private:
    template <int some>
    void someLines(int i, int j, std::ptrdiff_t begin, int steps) const
    {
        const T* planes[n];
        T* d[some];
        for (int k = 0; k < n; ++k) planes[k] = advance(planes_.plane(j, k), begin);
        for (int r = 0; r < some; ++r) d[r] = advance(d_.plane(i + r, j), begin);
        Lanes<T> spread[some];
        heldTile<T, n, some>(&held_[i], planes, linesOf(added_, spread, i, begin), d, steps);
    }

    Lanes<T> held_[n][n];
    Added added_;
    TabledElements<const T> planes_;
    TabledElements<T> d_;
    int heldLines_, lines_;
};

// Orders 3 to 6, for whole registers of objects. B and D have as many columns as A, or one. Every sum goes from left to
// right, with the first product as its start value.
template <class T, int n, class Added>
void squarePlanes(const TabledElements<const T>& a, const TabledElements<const T>& b, const Added& added,
                  const TabledElements<T>& d, int columns, int atOnce, int count)
{
    constexpr int width = Lanes<T>::width;
    const auto eachRound = [&](const auto& round) {
        for (std::ptrdiff_t first = 0; first < count; first += atOnce)
            round(first * int{sizeof(T)}, static_cast<int>(min<std::ptrdiff_t>(atOnce, count - first)) / width);
    };
    if (!std::is_same_v<Added, NothingAdded> || a.isCommon() || b.isCommon()) {
        const HeldProduct<T, n, Added> product(a, b, added, d, columns);
        eachRound([&](std::ptrdiff_t begin, int steps) { product.objects(begin, steps); });
        return;
    }

    const bool cached = atOnce >= count;
    std::ptrdiff_t distanceA = 0, distanceB = 0, distanceD = 0;
    const bool even = evenDistance(a, n * n, distanceA) && evenDistance(b, n * columns, distanceB) &&
                      evenDistance(d, n * columns, distanceD);
    eachRound([&](std::ptrdiff_t begin, int steps) {
        if (even) {
            const auto planes = [&]<class Element>(const TabledElements<Element>& table, std::ptrdiff_t distance) {
                return EvenPlanes<Element>{advance(table.pp[0], table.shift + begin), distance * table.row,
                                           distance * table.column};
            };
            cover<T, n>(planes(a, distanceA), planes(b, distanceB), planes(d, distanceD), columns, steps, cached);
        } else {
            const auto planes = [&]<class Element>(const TabledElements<Element>& table) {
                return ListedPlanes<Element>{table.pp, table.row, table.column, table.shift + begin};
            };
            cover<T, n>(planes(a), planes(b), planes(d), columns, steps, cached);
        }
    });
}

// Vectors of any length where all objects share A and it is small: each of its elements waits in memory, spread over a
// register. Four rows of two registers of objects at a time.
template <class T>
class HeldMatrix {
public:
    static bool holds(Lengths lengths) { return std::int64_t{lengths.m} * lengths.k <= mostElements; }
    HeldMatrix(const TabledElements<const T>& a, Lengths lengths) : lengths_(lengths)
    {
        for (int i = 0; i < lengths.m; ++i)
            for (int k = 0; k < lengths.k; ++k) held_[i * lengths.k + k] = T(elementAt(a.plane(i, k), 0));
    }
    // So many objects, which fill whole registers.
    template <class Added>
    void objects(const TabledElements<const T>& b, const Added& added, const TabledElements<T>& d, int count) const
    {
        const T* planes[mostElements];
        for (int k = 0; k < lengths_.k; ++k) planes[k] = b.plane(k, 0);
        constexpr int run = 16 * width;
        for (int first = 0; first < count; first += run) {
            const int end = min(count, first + run);
            int i = 0;
            for (; i + 4 <= lengths_.m; i += 4) rows<4>(planes, added, d, i, first, end);
            for (; i < lengths_.m; ++i) rows<1>(planes, added, d, i, first, end);
        }
    }

private:
    static constexpr int mostElements = 512, width = Lanes<T>::width;

    template <int some, class Added>
    void rows(const T* const* planes, const Added& added, const TabledElements<T>& d, int i, int object, int end) const
    {
        Lanes<T> spread[some];
        const auto lines = linesOf(added, spread, i, 0);
        T* to[some];
        for (int r = 0; r < some; ++r) to[r] = d.plane(i + r, 0);
        for (; object + 2 * width <= end; object += 2 * width) someRows<some, 2>(planes, lines, to, i, object);
        for (; object < end; object += width) someRows<some, 1>(planes, lines, to, i, object);
    }
    template <int some, int registers, class Lines>
    VORM_INLINE void someRows(const T* const* planes, const Lines& lines, T* const (&to)[some], int i, int object) const
    {
        const Lanes<T>* const held = held_ + i * lengths_.k;
        Lanes<T> sums[some][registers];
        for (auto& row : sums)
            for (auto& sum : row) sum = T(0);
        for (int k = 0; k < lengths_.k; ++k) {
            Lanes<T> factors[registers];
            for (int p = 0; p < registers; ++p) factors[p] = Lanes<T>::load(planes[k] + object + p * width);
            for (int r = 0; r < some; ++r)
                for (int p = 0; p < registers; ++p) sums[r][p] = sums[r][p] + held[r * lengths_.k + k] * factors[p];
        }
        for (int r = 0; r < some; ++r)
            for (int p = 0; p < registers; ++p) {
                const int at = object + p * width;
                plus(sums[r][p], lines.at(r, at * std::ptrdiff_t{sizeof(T)})).store(to[r] + at);
            }
    }

    Lanes<T> held_[mostElements];
    Lengths lengths_;
};

// Any lengths, for a register of objects. Every sum starts at zero and takes its products in ascending k.
template <class T, bool commonA, bool commonB, class Added>
void anyLengths(const TabledElements<const T>& a, const TabledElements<const T>& b, const Added& added,
                const TabledElements<T>& d, Lengths lengths, Outermost outermost, int count)
{
    if constexpr (std::is_same_v<Added, NothingAdded>)
        if (outermost == Outermost::columns)
            return anyLengths<T, commonB, commonA>(transposed(b), transposed(a), added, transposed(d),
                                                   {lengths.n, lengths.m, lengths.k}, Outermost::rows, count);
    const auto load = [](auto isCommon, const T* plane, int object) VORM_INLINE_LAMBDA {
        if constexpr (isCommon)
            return Lanes<T>(T(elementAt(plane, 0)));
        else
            return Lanes<T>::load(plane + object);
    };
    for (int object = 0; object < count; object += Lanes<T>::width)
        for (int i = 0; i < lengths.m; ++i)
            for (int j = 0; j < lengths.n; ++j) {
                Lanes<T> sum(0);
                for (int k = 0; k < lengths.k; ++k)
                    sum = sum + load(std::bool_constant<commonA>{}, a.plane(i, k), object) *
                                    load(std::bool_constant<commonB>{}, b.plane(k, j), object);
                if constexpr (!std::is_same_v<Added, NothingAdded>)
                    sum = sum + (added.isCommon() ? load(std::true_type{}, added.plane(i, 0), object)
                                                  : load(std::false_type{}, added.plane(i, 0), object));
                sum.store(d.plane(i, j) + object);
            }
}

}  // namespace

template <Second second, class T, class Added>
void pointerProducts(const TabledElements<const T>& a, const TabledElements<const T>& b, const Added& added,
                     const TabledElements<T>& d, Lengths lengths, Outermost outermost, int count)
{
    constexpr int width = Lanes<T>::width;
    int inLanes = 0;
    const int atOnce = objectsAtOnce<second>(b, count);
    if (count >= width && inPlanes(a) && inPlanes(b) && inPlanes(added) && inPlanes(d) &&
        planesApart(d.pp, lengths.m, lengths.n, std::ptrdiff_t{atOnce} * int{sizeof(T)},
                    std::int64_t{lengths.k} * count)) {
        inLanes = count / width * width;
        switch (squareOrder<second>(lengths)) {
        case 3: squarePlanes<T, 3>(a, b, added, d, lengths.n, min(atOnce, inLanes), inLanes); break;
        case 4: squarePlanes<T, 4>(a, b, added, d, lengths.n, min(atOnce, inLanes), inLanes); break;
        case 5: squarePlanes<T, 5>(a, b, added, d, lengths.n, min(atOnce, inLanes), inLanes); break;
        case 6: squarePlanes<T, 6>(a, b, added, d, lengths.n, min(atOnce, inLanes), inLanes); break;
        default:
            if constexpr (second == Second::vectors)
                if (a.isCommon() && HeldMatrix<T>::holds(lengths) && inLanes >= 8 * width) {
                    HeldMatrix<T>(a, lengths).objects(b, added, d, inLanes);
                    break;
                }
            if (!std::is_same_v<Added, NothingAdded> || a.isCommon())
                anyLengths<T, true, false>(a, b, added, d, lengths, outermost, inLanes);
            else if (b.isCommon())
                anyLengths<T, false, true>(a, b, added, d, lengths, outermost, inLanes);
            else
                anyLengths<T, false, false>(a, b, added, d, lengths, outermost, inLanes);
        }
    }
    if (inLanes < count) productsAnywhere<second>(a, b, added, d, lengths, outermost, inLanes, count);
}

#define VORM_POINTER_PRODUCTS(second, T, Added)                                                                   \
    template void pointerProducts<Second::second>(const TabledElements<const T>&, const TabledElements<const T>&, \
                                                  const Added&, const TabledElements<T>&, Lengths, Outermost, int)
VORM_POINTER_PRODUCTS(matrices, float, NothingAdded);
VORM_POINTER_PRODUCTS(matrices, double, NothingAdded);
VORM_POINTER_PRODUCTS(vectors, float, NothingAdded);
VORM_POINTER_PRODUCTS(vectors, double, NothingAdded);
VORM_POINTER_PRODUCTS(vectors, float, TabledElements<const float>);
VORM_POINTER_PRODUCTS(vectors, double, TabledElements<const double>);

}  // namespace vorm::products
