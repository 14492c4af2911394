// The members of one shape and element type, by layout.
#pragma once

namespace bench {

template <class Standard, class List, class Pointers>
struct Members {
    const char* name;
    Standard* standard;
    List* list;
    Pointers* pointers;
};
// clang 14 deduces no aggregates by itself.
template <class Standard, class List, class Pointers>
Members(const char*, Standard*, List*, Pointers*) -> Members<Standard, List, Pointers>;
#define BENCH_MEMBERS(stem) \
    bench::Members { #stem, stem, stem##_L, stem##_P }

}  // namespace bench
