// Questions about 16 bytes at once, for the two places that look at every byte of a drawing file. Without the
// instructions for it they are asked byte by byte.
#pragma once

#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

// Bit i of an answer is about byte i.
class DxfBytes16 {
public:
    // Reads 16 bytes at `start`, whatever they belong to.
    explicit DxfBytes16(const char* start) : bytes(load(start)) {}

#ifdef __SSE2__
    std::uint32_t equalTo(char wanted) const { return bits(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted))); }
    std::uint32_t digits() const {
        const __m128i fromZero = _mm_sub_epi8(bytes, _mm_set1_epi8('0'));
        return bits(_mm_cmpeq_epi8(_mm_min_epu8(fromZero, _mm_set1_epi8(9)), fromZero));
    }

private:
    static __m128i load(const char* start) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(start));
    }
    static std::uint32_t bits(__m128i answer) {
        return static_cast<std::uint32_t>(_mm_movemask_epi8(answer));
    }
    __m128i bytes;
#else
    std::uint32_t equalTo(char wanted) const {
        return collect([wanted](char c) { return c == wanted; });
    }
    std::uint32_t digits() const {
        return collect([](char c) { return c >= '0' && c <= '9'; });
    }

private:
    static const char* load(const char* start) { return start; }
    template <class Is> std::uint32_t collect(Is is) const {
        std::uint32_t answer = 0;
        for (int i = 0; i < 16; ++i)
            answer |= static_cast<std::uint32_t>(is(bytes[i])) << i;
        return answer;
    }
    const char* bytes;
#endif
};

// Of the lowest bit that is set; `bits` is not 0.
inline int dxfLowestBit(std::uint32_t bits) { return __builtin_ctz(bits); }
