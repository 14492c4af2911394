// Teams against one thread: each kind of family from the lowest count that enters its driver upwards.

#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench {

namespace {

// Operands of count objects: elements of each source object, of each destination object and of common ones.
struct Sizes {
    int src1, src2, dst;
    int common = 0;
};

// call(src1, src2, dst, pivotIndex, count) with count from the first one of the driver upwards, on all
// processors and with more threads asked for than most machines have.
template <class T, class Call>
void addMember(Section& s, const std::string& name, int first, Sizes sizes, const Call& call)
{
    for (const int times : {1, 8, 64, 512, 4096}) {
        const int count = first * times;
        if (std::int64_t{count} * (sizes.src1 + sizes.src2 + sizes.dst) > 8 << 20) break;
        for (const int threads : {0, 16, 64}) {
            const std::string asked = threads ? std::to_string(threads) + " threads" : "all threads";
            s.rows.push_back({name + ", count " + std::to_string(count) + ", " + asked, count, [=] {
                                  const auto operand = [&](int elements) {
                                      const std::ptrdiff_t n = std::ptrdiff_t{elements} * count + sizes.common;
                                      T* const p = Memory::region<T>(n);
                                      fill(p, n);
                                      return p;
                                  };
                                  T *const src1 = operand(sizes.src1), *const src2 = operand(sizes.src2);
                                  T* const dst = operand(sizes.dst);
                                  int* const pivots = Memory::region<int>(std::ptrdiff_t{16} * count);
                                  for (int k = 0; k < 16 * count; ++k) pivots[k] = k % 3;
                                  const auto on = [=](int n) {
                                      vorSetNumThreads(n);
                                      call(src1, src2, dst, pivots, count);
                                      vorSetNumThreads(1);
                                  };
                                  return Task{{{"team", [=] { on(threads); }}, {"one thread", [=] { on(1); }}}};
                              }});
        }
    }
}

// Vectors of three in planes: pointer layout with a plane for each element.
template <class T>
void planesOf(T* p, int count, T* (&pointers)[3])
{
    for (int k = 0; k < 3; ++k) pointers[k] = p + std::ptrdiff_t{k} * count;
}

void addVectorSums(Section& s)
{
    addMember<float>(s, "vormAdd_vav_32f len 3", 800, {3, 0, 3, 8}, [](auto* a, auto* b, auto* d, int*, int count) {
        vormAdd_vav_32f(a, 12, 4, b, 4, d, 12, 4, 3, count);
    });
    addMember<double>(s, "vormAdd_vav_64f len 6", 117, {6, 0, 6, 8}, [](auto* a, auto* b, auto* d, int*, int count) {
        vormAdd_vav_64f(a, 48, 8, b, 8, d, 48, 8, 6, count);
    });
    addMember<double>(s, "vormAdd_vava_64f len 3", 156, {3, 3, 3}, [](auto* a, auto* b, auto* d, int*, int count) {
        vormAdd_vava_64f(a, 24, 8, b, 24, 8, d, 24, 8, 3, count);
    });
    addMember<float>(s, "vormSub_cva_32f len 16", 2400, {16, 0, 16}, [](auto* a, auto*, auto* d, int*, int count) {
        vormSub_cva_32f(a, 64, 4, 2, d, 64, 4, 16, count);
    });
    addMember<float>(s, "vormAdd_vav_32f_P len 3", 250, {3, 0, 3, 8}, [](auto* a, auto* b, auto* d, int*, int count) {
        float *as[3], *bs[3], *ds[3];
        planesOf(a, count, as), planesOf(b, 1, bs), planesOf(d, count, ds);
        vormAdd_vav_32f_P(as, 0, 4, bs, 0, ds, 0, 4, 3, count);
    });
}

void addProducts(Section& s)
{
    addMember<float>(s, "vormMul_mva_32f order 3", 416, {0, 3, 3, 16}, [](auto* a, auto* b, auto* d, int*, int count) {
        vormMul_mva_32f(a, 12, 4, 3, 3, b, 12, 4, 3, d, 12, 4, count);
    });
    addMember<double>(s, "vormMul_mava_64f order 4", 151, {16, 4, 4}, [](auto* a, auto* b, auto* d, int*, int count) {
        vormMul_mava_64f(a, 128, 32, 8, 4, 4, b, 32, 8, 4, d, 32, 8, count);
    });
    addMember<float>(s, "vormMul_mava_32f order 3", 167, {9, 3, 3}, [](auto* a, auto* b, auto* d, int*, int count) {
        vormMul_mava_32f(a, 36, 12, 4, 3, 3, b, 12, 4, 3, d, 12, 4, count);
    });
    addMember<float>(s, "vormMul_mama_32f order 4", 53, {16, 16, 16}, [](auto* a, auto* b, auto* d, int*, int count) {
        vormMul_mama_32f(a, 64, 16, 4, 4, 4, b, 64, 16, 4, 4, 4, d, 64, 16, 4, count);
    });
    addMember<double>(s, "vormMul_mama_64f order 12", 9, {144, 144, 144},
                      [](auto* a, auto* b, auto* d, int*, int count) {
                          vormMul_mama_64f(a, 1152, 96, 8, 12, 12, b, 1152, 96, 8, 12, 12, d, 1152, 96, 8, count);
                      });
}

void addFactorisations(Section& s)
{
    addMember<float>(s, "vormLUDecomp_ma_32f order 3", 112, {9, 0, 9}, [](auto* a, auto*, auto* d, int* p, int count) {
        vormLUDecomp_ma_32f(a, 36, 12, 4, p, d, 36, 12, 4, 3, count);
    });
    addMember<double>(s, "vormLUDecomp_ma_64f order 8", 16, {64, 0, 64},
                      [](auto* a, auto*, auto* d, int* p, int count) {
                          vormLUDecomp_ma_64f(a, 512, 64, 8, p, d, 512, 64, 8, 8, count);
                      });
    addMember<float>(s, "vormLUBackSubst_mva_32f order 3", 116, {0, 3, 3, 16},
                     [](auto* a, auto* b, auto* d, int* p, int count) {
                         vormLUBackSubst_mva_32f(a, 12, 4, p, b, 12, 4, d, 12, 4, 3, count);
                     });
    addMember<double>(s, "vormLUBackSubst_mava_64f order 3", 81, {9, 3, 3},
                      [](auto* a, auto* b, auto* d, int* p, int count) {
                          vormLUBackSubst_mava_64f(a, 72, 24, 8, p, b, 24, 8, d, 24, 8, 3, count);
                      });
}

}  // namespace

void addTeam(Sections& sections)
{
    Section& s = sections.emplace_back(Section{
        "Team of threads",
        "Wall-clock time; the peer is the same call on one thread. The first count of each member is the lowest "
        "that enters the driver; below about 40 microseconds of work it does the work on one thread all the "
        "same. Meaningful on an otherwise idle machine only.",
        true});
    addVectorSums(s);
    addProducts(s);
    addFactorisations(s);
}

}  // namespace bench
