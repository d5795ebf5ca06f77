// The drawing SDK's allocator. The module sends every allocation of its own here; Qt, which knows nothing of
// that, frees some of it with plain free(), so these stay compatible with malloc() and free().
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" {
void* odrxAlloc(std::size_t size);
void* odrxRealloc(void* block, std::size_t newSize, std::size_t oldSize);
void odrxFree(void* block);
}

// Numbers of odrxAlloc and odrxFree calls since the start of the process, and a switch for tests: while set,
// odrxAlloc yields null.
std::uint64_t odrxAllocCount();
std::uint64_t odrxFreeCount();
void odrxFailAllocations(bool fail);
