// The measures and limits of all drivers, a row for the shapes that share them, and what they say of a call.

#include "limits.hpp"

#include <sstream>
#include <stdexcept>

namespace {

// What measures are made of, in wrapping arithmetic: rows and columns of the result, terms of its sums,
// objects. A vector or square matrix has n columns.
struct Work {
    std::uint32_t m, n, k, count;
};

// The first measures for which the driver runs; 0 where there is none.
struct Layouts {
    int standard, standardAnyStride, list, listAnyStride, pointers;
};
struct From {
    Layouts single, twice;
};
constexpr Layouts oneAbove(const Layouts& l)
{
    return {l.standard + 1, l.standardAnyStride + 1, l.list + 1, l.listAnyStride + 1, l.pointers + 1};
}
constexpr From above(const Layouts& single, const Layouts& twice) { return {oneAbove(single), oneAbove(twice)}; }
// Whether elements are adjacent changes nothing, or leads to one limit for all.
constexpr From above(int standard32f, int standard64f, int list, int pointers)
{
    return above({standard32f, standard32f, list, list, pointers}, {standard64f, standard64f, list, list, pointers});
}
constexpr From above(int standard32f, int standard64f, int list, int pointers, int anyStride)
{
    return above({standard32f, anyStride, list, anyStride, pointers},
                 {standard64f, anyStride, list, anyStride, pointers});
}
constexpr From from(int measure) { return above(measure - 1, measure - 1, measure - 1, measure - 1); }

struct Row {
    const char *families, *shapes;
    std::uint32_t (*measure)(const Work&);
    From from;
};

constexpr From sums = above(4800, 1400, 2500, 1500), products = above(2500, 3600, 3600, 1440, 1440);
constexpr From saxpy = above({3000, 2000, 1500, 1000, 1200}, {3000, 1200, 1000, 1000, 1200});
constexpr From lComb = above({4500, 4500, 4500, 3750, 4500}, {4500, 4500, 4500, 4500, 4500});
constexpr From reflections = above(2800, 2800, 1800, 1800);

constexpr From matrixSums = above({2999, 1999, 1999, 1999, 1999}, {1999, 1999, 1999, 1999, 1999});
constexpr From gaxpy = above({7000, 5000, 7000, 500, 4500}, {5000, 5000, 6000, 5000, 7000});

constexpr From cross = above(36000, 36000, 27000, 45000);

constexpr Row table[] = {
    {"Add Sub", "vav vva vac", [](const Work& w) { return (2 * w.count + 1) * w.n; }, sums},
    {"Add Sub", "vava", [](const Work& w) { return 3 * w.count * w.n; }, sums},
    {"Add Sub", "vaca cava", [](const Work& w) { return w.count * (2 * w.n + 1); }, sums},
    {"Add Sub", "vca cav", [](const Work& w) { return w.n * w.count + w.n + w.count; }, sums},
    {"Sub", "cva", [](const Work& w) { return 2 * w.count; }, above(4799, 1399, 2499, 1499)},

    {"Add Sub", "mam mat tam tat mma mta tma tta", [](const Work& w) { return w.m * w.n * (2 * w.count + 1); },
     matrixSums},
    {"Add Sub", "mama mata tama tata", [](const Work& w) { return 3 * w.m * w.n * w.count; }, matrixSums},

    {"Saxpy", "vav", [](const Work& w) { return (2 * w.count + 1) * w.n; }, saxpy},
    {"Saxpy", "vva", [](const Work& w) { return (2 * w.count + 1) * w.n; },
     above({3000, 2000, 1500, 1500, 1200}, {3000, 1200, 1000, 1000, 1200})},
    {"Saxpy", "vava", [](const Work& w) { return 3 * w.count * w.n; }, saxpy},
    {"LComb", "vav", [](const Work& w) { return (2 * w.count + 1) * w.n; }, lComb},
    {"LComb", "vava", [](const Work& w) { return 3 * w.count * w.n; }, lComb},

    {"Mul", "vac", [](const Work& w) { return 2 * w.n * w.count; }, products},
    {"Mul", "mac tac", [](const Work& w) { return 2 * w.m * w.n * w.count; },
     above({3500, 3500, 3500, 1500, 1700}, {3500, 3500, 3500, 3500, 1700})},
    {"Mul", "vaca", [](const Work& w) { return (2 * w.n + 1) * w.count; }, above(2100, 2100, 1200, 650)},
    {"Mul", "vca", [](const Work& w) { return w.n * (w.count + 1) + w.count; }, above(2100, 2100, 1200, 650)},
    {"Mul", "mva tva", [](const Work& w) { return w.m * w.k + (w.m + w.k) * w.count; }, products},
    {"Mul", "mav tav", [](const Work& w) { return w.m * (w.k + 1) * w.count + w.k; }, products},
    {"Mul", "mava tava", [](const Work& w) { return (w.m * w.k + w.m + w.k) * w.count; }, products},
    {"Mul", "mam mat tam tat", [](const Work& w) { return w.n * w.k + (w.n + w.k) * w.m * w.count; }, products},
    {"Mul", "mma mta tma tta", [](const Work& w) { return w.m * w.k + (w.m + w.k) * w.n * w.count; }, products},
    {"Mul", "mama mata tama tata", [](const Work& w) { return ((w.n + w.k) * w.m + w.n * w.k) * w.count; }, products},

    {"Gaxpy", "mva", [](const Work& w) { return (w.k + 2 * w.m) * w.count; }, gaxpy},
    {"Gaxpy", "mvav", [](const Work& w) { return w.k * w.count + w.m * (w.count + 1); }, gaxpy},

    {"LUDecomp", "ma", [](const Work& w) { return w.n * w.n * w.count; }, from(1001)},
    {"LUBackSubst", "mva", [](const Work& w) { return (2 * w.count + w.n) * w.n; }, from(701)},
    {"LUBackSubst", "mava", [](const Work& w) { return (w.n + 2) * w.n * w.count; }, from(1201)},

    {"CholeskyDecomp", "ma", [](const Work& w) { return w.n * w.n * w.count; },
     above({7500, 7500, 2000, 2000, 2000}, {2000, 2000, 720, 2000, 2000})},
    {"CholeskyBackSubst", "mva", [](const Work& w) { return (2 * w.count + w.n) * w.n; }, above(1200, 720, 720, 720)},
    {"CholeskyBackSubst", "mava", [](const Work& w) { return (w.n + 2) * w.n * w.count; },
     above({2050, 1700, 1700, 1700, 1700}, {1700, 1700, 1700, 1700, 2050})},
    {"Det", "ma", [](const Work& w) { return w.n * w.count; }, above(14400, 14400, 14400, 14400)},
    // Order 1 has no driver.
    {"Invert", "ma", [](const Work& w) { return w.n == 1 ? 0 : 2 * w.n * w.count; },
     above(3600, 2500, 2500, 2500, 2500)},

    {"CrossProduct", "vav vva", [](const Work& w) { return 3 * (2 * w.count + 1); }, cross},
    {"CrossProduct", "vava", [](const Work& w) { return 9 * w.count; }, cross},

    {"AffineTransform3DH", "mva", [](const Work& w) { return 6 * w.count; }, from(785)},
    {"QRDecomp", "ma", [](const Work& w) { return 2 * w.n * w.m * w.count; }, reflections},
    {"QRBackSubst", "mva", [](const Work& w) { return w.n * w.m + (w.n + w.m) * w.count; }, reflections},
    {"QRBackSubst", "mava", [](const Work& w) { return (w.n * (w.m + 1) + w.m) * w.count; }, reflections},

    {"DotProduct", "vav", [](const Work& w) { return w.n * (w.count + 1); }, above(21600, 21600, 14400, 21600)},
    {"DotProduct", "vava", [](const Work& w) { return 2 * w.n * w.count; }, above(21600, 21600, 14400, 21600)},
    {"L2Norm", "va", [](const Work& w) { return w.n * w.count; }, above(14400, 14400, 14400, 21600)},
    {"Trace", "ma", [](const Work& w) { return w.n * w.count; }, above(10800, 10800, 10800, 21600)},
    {"FrobNorm", "ma", [](const Work& w) { return w.m * w.n * w.count; }, above(21600, 21600, 14400, 21600)},
    {"EigenValuesSym", "ma", [](const Work& w) { return (w.n * w.n + w.n) * w.count; }, from(1001)},
    {"EigenValues", "ma", [](const Work& w) { return (w.n * w.n + w.n) * w.count; }, from(251)},
    {"EigenValuesVectorsSym", "ma", [](const Work& w) { return (2 * w.n * w.n + w.n) * w.count; }, from(701)},
    {"EigenValuesVectors EigenValuesVectorsLeft EigenValuesVectorsRight", "ma",
     [](const Work& w) { return w.n * (3 * w.n + 1) * w.count; }, from(501)},
};

bool hasWord(const std::string& text, const std::string& word)
{
    std::istringstream words(text);
    for (std::string next; words >> next;)
        if (next == word) return true;
    return false;
}

const Row& rowOf(const Function& f)
{
    static std::map<const Function*, const Row*> rows;
    if (const auto found = rows.find(&f); found != rows.end()) return *found->second;
    for (const Row& row : table)
        if (hasWord(row.families, f.family) && hasWord(row.shapes, f.shape)) return *(rows[&f] = &row);
    throw std::out_of_range("no limit of " + f.name);
}

}  // namespace

Limit limitOf(const Function& f, const Sizes& s, int count, bool isContiguous)
{
    if (f.isFixed() || f.isMovement()) return {0, INT32_MAX};
    const Row& row = rowOf(f);
    const std::uint32_t measure =
        row.measure({std::uint32_t(s.rows), std::uint32_t(s.columns), std::uint32_t(s.terms), std::uint32_t(count)});
    const Layouts& by = f.type == "32f" ? row.from.single : row.from.twice;
    const int from = f.layout == "P"   ? by.pointers
                     : f.layout == "L" ? (isContiguous ? by.list : by.listAnyStride)
                     : isContiguous    ? by.standard
                                       : by.standardAnyStride;
    const bool drives = from > 0 && f.hasDriver();
    return {static_cast<std::int32_t>(measure), drives ? from : INT32_MAX};
}
