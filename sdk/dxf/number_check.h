// Whether a value that should be a number is one that can be worked with.
#pragma once

#include "sdk/dxf/bytes16.h"

#include <cstddef>
#include <string_view>

constexpr double kDxfLargestNumber = 1e100;

enum class DxfNumberFault { None, NoNumber, TooLarge };

// Blanks around the number, a plus sign and an exponent are right.
DxfNumberFault dxfNumberFault(std::string_view value);

// What may stand in a plain number, as a bit for each of up to 32 characters.
struct DxfNumberBits {
    std::uint32_t digits, blanks, points, signs;
};

inline DxfNumberBits dxfNumberBits(const char* start) {
    const DxfBytes16 bytes(start);
    return {bytes.digits(), bytes.equalTo(' '), bytes.equalTo('.'), bytes.equalTo('-')};
}

constexpr std::size_t kDxfPlainNumber = 32;

// True for a number of digits, with or without a sign and a point, which almost all are; false says nothing.
// 32 bytes must be readable from the start of the value on.
inline bool dxfIsPlainNumber(std::string_view value) {
    if (value.empty() || value.size() > kDxfPlainNumber)
        return false;
    DxfNumberBits bits = dxfNumberBits(value.data());
    if (value.size() > 16) {
        const DxfNumberBits more = dxfNumberBits(value.data() + 16);
        bits = {bits.digits | more.digits << 16, bits.blanks | more.blanks << 16,
                bits.points | more.points << 16, bits.signs | more.signs << 16};
    }
    const std::uint32_t all = 0xFFFFFFFFu >> (kDxfPlainNumber - value.size());
    const std::uint32_t digits = bits.digits & all, points = bits.points & all, signs = bits.signs & all;
    const std::uint32_t text = all & ~bits.blanks;
    if (digits == 0 || (digits | points | signs) != text || (points & (points - 1)) != 0)
        return false;
    const std::uint32_t run = text >> dxfLowestBit(text), first = text & (~text + 1);
    return (run & (run + 1)) == 0 && (signs & ~first) == 0;
}
