// The only place that allocates: per-call work space from the OpenMP runtime, for the drivers whose
// threads need it. The result is not tested, as in every driver's contract.
#pragma once

#include <cstddef>

#ifdef VORM_HAVE_KMPC_MALLOC  // LLVM's runtime; found out when CMake configures
extern "C" void* kmpc_malloc(std::size_t size);
extern "C" void kmpc_free(void* memory);
#else
#include <omp.h>
#endif

namespace vorm {

class Scratch {
public:
    explicit Scratch(std::size_t bytes) : memory_(bytes ? allocate(bytes) : nullptr) {}
    ~Scratch()
    {
        if (memory_) release(memory_);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    char* bytes() const { return static_cast<char*>(memory_); }

private:
#ifdef VORM_HAVE_KMPC_MALLOC
    static void* allocate(std::size_t bytes) { return kmpc_malloc(bytes); }
    static void release(void* memory) { kmpc_free(memory); }
#else
    static void* allocate(std::size_t bytes) { return omp_alloc(bytes, omp_default_mem_alloc); }
    static void release(void* memory) { omp_free(memory, omp_default_mem_alloc); }
#endif

    void* memory_;
};

}  // namespace vorm
