// The libFuzzer target for the reader of drawings, in text and in binary form.
#include "tests/fuzz/tag_mutation.h"
#include "tests/sdk/dxf/reading_contract.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string fault = faultOfReading(std::string(reinterpret_cast<const char*>(data), size));
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maximum,
                                               unsigned seed) {
    const bool asTags = seed % 3 != 0 && !isBinaryDxf({reinterpret_cast<const char*>(data), size});
    return asTags ? mutateTags(data, size, maximum, seed) : LLVMFuzzerMutate(data, size, maximum);
}
