#include "tests/module/allocation_watch.h"

#include <cstring>
#include <dlfcn.h>

namespace {

AllocationWatch* watch = nullptr;

template <class Function> Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

AllocationWatch::AllocationWatch() { watch = this; }
AllocationWatch::~AllocationWatch() { watch = nullptr; }

extern "C" {

void* odrxAlloc(std::size_t size) {
    static const auto real = next<void* (*)(std::size_t)>("odrxAlloc");
    void* const block = real(size);
    if (!watch || !block)
        return block;
    std::memset(block, AllocationWatch::filling, size);
    watch->blocks.push_back({static_cast<unsigned char*>(block), size, false});
    return block;
}

void odrxFree(void* block) {
    static const auto real = next<void (*)(void*)>("odrxFree");
    if (watch)
        for (AllocationWatch::Block& taken : watch->blocks)
            taken.freed = taken.freed || taken.bytes == block;
    real(block);
}
}
