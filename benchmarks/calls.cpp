// What a call costs apart from its work: the stub alone, the argument tests alone, one small object.

#include <Eigen/Core>

#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench {

namespace {

constexpr int calls = 256;  // each on an object of its own

int counter = 0;

// Peers behind a call of their own, as a library function is.
[[gnu::noinline]] const void* nothing()
{
    asm volatile("");
    return &counter;
}

[[gnu::noinline]] int nothingOfTen(const float*, int, int, const float*, int, float*, int, int, int, int)
{
    asm volatile("");
    return 0;
}

template <int Len>
[[gnu::noinline]] int addVectors(const float* a, const float* b, float* dst)
{
    using Object = Eigen::Array<float, Len, 1>;
    Eigen::Map<Object>{dst} = Eigen::Map<const Object>(a) + Eigen::Map<const Object>(b);
    return 0;
}

[[gnu::noinline]] int addAnyLength(const float* a, const float* b, float* dst, int len)
{
    using Object = Eigen::ArrayXf;
    Eigen::Map<Object>(dst, len) = Eigen::Map<const Object>(a, len) + Eigen::Map<const Object>(b, len);
    return 0;
}

struct Objects {
    float *a = Memory::region<float>(calls * 8), *b = Memory::region<float>(calls * 8),
          *dst = Memory::region<float>(calls * 8);
    Objects() { fill(a, calls * 8), fill(b, calls * 8), fill(dst, calls * 8); }
};

// work(a, b, dst) for every object; its result must not be worked out beforehand.
template <class Work>
Contestant each(const char* name, Work work)
{
    Memory::startRow();  // the same objects for all
    return {name, [=, o = Objects()] {
                for (int n = 0; n < calls * 8; n += 8) {
                    auto result = work(o.a + n, o.b + n, o.dst + n);
                    asm volatile("" : : "r"(result) : "memory");
                }
            }};
}

template <int Len>
Contestant called()
{
    return each("called", addVectors<Len>);
}

}  // namespace

void addCalls(Sections& sections)
{
    using In = const float*;
    using Out = float*;
    constexpr int e = sizeof(float);
    Section& s = sections.emplace_back(Section{"Calls",
                                               "Times per call, the linkage table's jump included. Peers: the same "
                                               "signature with an empty body, or the sum alone in a function of this "
                                               "program (fixed size, or any length)."});
    s.rows.push_back({"vormGetLibVersion: the stub alone", calls, [] {
                          return Task{{each("vorm", [](In, In, Out) { return vormGetLibVersion(); }),
                                       each("empty", [](In, In, Out) { return nothing(); })}};
                      }});
    s.rows.push_back(
        {"vormAdd_vav_32f, count 0: stub and tests", calls, [] {
             return Task{
                 {each("vorm", [](In a, In b, Out d) { return vormAdd_vav_32f(a, 3 * e, e, b, e, d, 3 * e, e, 3, 0); }),
                  each("empty", [](In a, In b, Out d) { return nothingOfTen(a, 3 * e, e, b, e, d, 3 * e, e, 3, 0); })}};
         }});
    s.rows.push_back({"vormAdd_v3_32f", calls, [] { return Task{{each("vorm", vormAdd_v3_32f), called<3>()}}; }});
    s.rows.push_back({"vormAdd_v4_32f", calls, [] { return Task{{each("vorm", vormAdd_v4_32f), called<4>()}}; }});
    for (const int len : {3, 4, 6, 16}) {
        const auto any = [=](In a, In b, Out d) { return addAnyLength(a, b, d, len); };
        const std::string suffix = " len " + std::to_string(len);
        s.rows.push_back(
            {"vormAdd_vv_32f" + suffix, calls, [=] {
                 return Task{{each("vorm", [=](In a, In b, Out d) { return vormAdd_vv_32f(a, e, b, e, d, e, len); }),
                              each("any length", any)}};
             }});
        s.rows.push_back({"vormAdd_vav_32f, count 1" + suffix, calls, [=] {
                              return Task{{each("vorm",
                                                [=](In a, In b, Out d) {
                                                    return vormAdd_vav_32f(a, len * e, e, b, e, d, len * e, e, len, 1);
                                                }),
                                           each("any length", any)}};
                          }});
    }
}

}  // namespace bench
