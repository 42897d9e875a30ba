#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace tavrel {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};

/// Memory that is not cleared. Blocks of megabytes ask for large pages, so that a file's millions of numbers do not
/// cost a page fault for every few hundred of them; what is not touched takes no memory.
inline std::unique_ptr<std::byte[], FreeMemory> allocateLarge(std::size_t bytes) {
    constexpr std::size_t largePage = std::size_t{2} << 20;
    void* memory = nullptr;
    if (bytes < largePage) {
        memory = std::malloc(bytes);
    } else {
        const std::size_t whole = (bytes + largePage - 1) / largePage * largePage;
        memory = std::aligned_alloc(largePage, whole);
#ifdef __linux__
        if (memory) {
            madvise(memory, whole, MADV_HUGEPAGE);  // only a hint
        }
#endif
    }
    if (!memory) {
        throw std::bad_alloc();
    }
    return std::unique_ptr<std::byte[], FreeMemory>(static_cast<std::byte*>(memory));
}

}  // namespace tavrel
