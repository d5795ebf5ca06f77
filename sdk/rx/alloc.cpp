// Memory of the SDK comes from malloc, since callers may free it so.
#include "sdk/rx/alloc.h"

#include <atomic>
#include <cstdlib>

namespace {
std::atomic<std::uint64_t> allocCount{0};
std::atomic<std::uint64_t> freeCount{0};
std::atomic<bool> failing{false};
} // namespace

void* odrxAlloc(std::size_t size) {
    allocCount.fetch_add(1, std::memory_order_relaxed);
    return failing.load(std::memory_order_relaxed) ? nullptr : std::malloc(size);
}

void* odrxRealloc(void* block, std::size_t newSize, std::size_t) {
    return failing.load(std::memory_order_relaxed) ? nullptr : std::realloc(block, newSize);
}

void odrxFree(void* block) {
    freeCount.fetch_add(1, std::memory_order_relaxed);
    std::free(block);
}

std::uint64_t odrxAllocCount() { return allocCount.load(std::memory_order_relaxed); }

std::uint64_t odrxFreeCount() { return freeCount.load(std::memory_order_relaxed); }

void odrxFailAllocations(bool fail) { failing.store(fail, std::memory_order_relaxed); }
