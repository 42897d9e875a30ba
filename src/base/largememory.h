#pragma once

#include <cstddef>
#include <cstdint>
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

constexpr std::size_t largePage = std::size_t{2} << 20;

/// Asks for large pages where a block of megabytes is about to be filled, so that a file's millions of numbers do not
/// cost a page fault for every few hundred of them. Only a hint.
inline void preferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t bytes) {
#ifdef __linux__
    void* start = memory;
    std::size_t rest = bytes;
    if (std::align(largePage, largePage, start, rest)) {
        madvise(start, rest / largePage * largePage, MADV_HUGEPAGE);
    }
#endif
}

/// Memory that is not cleared. Of a large block, what is not touched takes no memory.
inline std::unique_ptr<std::byte[], FreeMemory> allocateLarge(std::size_t bytes) {
    const std::size_t whole = (bytes + largePage - 1) / largePage * largePage;
    void* const memory = bytes < largePage ? std::malloc(bytes) : std::aligned_alloc(largePage, whole);
    if (!memory) {
        throw std::bad_alloc();
    }
    preferLargePages(memory, bytes < largePage ? bytes : whole);
    return std::unique_ptr<std::byte[], FreeMemory>(static_cast<std::byte*>(memory));
}

}  // namespace tavrel
