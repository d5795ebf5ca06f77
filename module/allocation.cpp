// The module's own global allocation functions: every allocation in it goes through the drawing SDK's
// allocator. The library is linked so that its own calls reach these and not the program's.
#include "sdk/rx/alloc.h"

#include <new>

namespace {

// A new-handler is called exactly once and the null pointer returned: there is no second attempt, and that is
// meant.
void* allocate(std::size_t size) {
    void* block = odrxAlloc(size);
    if (block || size == 0)
        return block;
    const std::new_handler handler = std::get_new_handler();
    if (!handler)
        throw std::bad_alloc();
    handler();
    return nullptr;
}

void deallocate(void* block) {
    if (block)
        odrxFree(block);
}

} // namespace

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }

// The nothrow forms are plain calls of the throwing forms, so they can throw. <new> declares them noexcept;
// under their assembler names they are not bound to that.
extern "C" {
void* nothrowNew(std::size_t size, const std::nothrow_t&) asm("_ZnwmRKSt9nothrow_t");
void* nothrowNewArray(std::size_t size, const std::nothrow_t&) asm("_ZnamRKSt9nothrow_t");
}
void* nothrowNew(std::size_t size, const std::nothrow_t&) { return ::operator new(size); }
void* nothrowNewArray(std::size_t size, const std::nothrow_t&) { return ::operator new[](size); }

void operator delete(void* block) noexcept { deallocate(block); }
void operator delete[](void* block) noexcept { deallocate(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { deallocate(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { deallocate(block); }
void operator delete(void* block, std::size_t) noexcept { deallocate(block); }
void operator delete[](void* block, std::size_t) noexcept { deallocate(block); }
