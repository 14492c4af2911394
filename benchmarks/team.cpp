// The team against one thread, from each member's threshold upwards.

#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench {

namespace {

template <class T, class Function>
void addMember(Section& s, const char* name, Function* function, int len, int threshold)
{
    const int first = (threshold / len - 1) / 2 + 1;  // the lowest count with (2 count + 1) len above it
    for (const int times : {1, 2, 4, 8, 16, 64, 256}) {
        const int count = first * times;
        s.rows.push_back(
            {std::string(name) + " len " + std::to_string(len) + ", count " + std::to_string(count), count, [=] {
                 const std::ptrdiff_t elements = std::ptrdiff_t{len} * count;
                 T *const src = Memory::region<T>(elements), *const common = Memory::region<T>(len),
                          *const dst = Memory::region<T>(elements);
                 fill(src, elements), fill(common, len), fill(dst, elements);
                 const auto call = [=](int threads) {
                     constexpr int e = sizeof(T);
                     vorSetNumThreads(threads);
                     function(src, len * e, e, common, e, dst, len * e, e, len, count);
                     vorSetNumThreads(1);
                 };
                 return Task{{{"team", [=] { call(0); }}, {"one thread", [=] { call(1); }}}};
             }});
    }
}

}  // namespace

void addTeam(Sections& sections)
{
    Section& s = sections.emplace_back(
        Section{"Team of threads",
                "Wall-clock time; the peer is the same call on one thread. The first count of each "
                "member is the lowest that forks. Meaningful on an otherwise idle machine only.",
                true});
    addMember<float>(s, "vormAdd_vav_32f", vormAdd_vav_32f, 3, 4800);
    addMember<float>(s, "vormAdd_vav_32f", vormAdd_vav_32f, 6, 4800);
    addMember<double>(s, "vormAdd_vav_64f", vormAdd_vav_64f, 3, 1400);
    addMember<double>(s, "vormAdd_vav_64f", vormAdd_vav_64f, 6, 1400);
}

}  // namespace bench
