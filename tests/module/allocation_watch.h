// What goes through the drawing allocator, block by block: this binary's odrxAlloc and odrxFree stand before
// those of the SDK, which they call.
#pragma once

#include <cstddef>
#include <vector>

// Watches as long as it lives. Blocks are filled before they are given out, so that a test sees who has
// written to them.
class AllocationWatch {
public:
    static constexpr unsigned char filling = 0xab;
    struct Block {
        unsigned char* bytes;
        std::size_t size;
        bool freed;
    };
    AllocationWatch();
    ~AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;
    std::vector<Block> blocks; // in order
};
