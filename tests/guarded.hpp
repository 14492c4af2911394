// Memory between two unmapped pages, so that a byte too far faults.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

class Guarded {
public:
    explicit Guarded(std::size_t bytes) : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE)))
    {
        inner_ = (bytes + page_ - 1) / page_ * page_;
        void* const base =
            mmap(nullptr, inner_ + 2 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (base == MAP_FAILED) throw std::bad_alloc();
        base_ = static_cast<char*>(base);
        if (inner_ && mprotect(base_ + page_, inner_, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
    }
    ~Guarded() { munmap(base_, inner_ + 2 * page_); }
    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;

    char* data() const { return base_ + page_; }
    std::size_t size() const { return inner_; }
    std::intptr_t begin() const { return reinterpret_cast<std::intptr_t>(data()); }

private:
    std::size_t page_, inner_;
    char* base_;
};
