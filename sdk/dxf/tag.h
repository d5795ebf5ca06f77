// One tag of a drawing file: a group code line and a value line, kept as the bytes they are.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct DxfTag {
    const char* raw = nullptr;    // start of the code line
    std::uint32_t rawSize = 0;    // both lines with their line ends
    std::uint32_t valueSize = 0;  // without the line end
    std::uint16_t valueStart = 0; // offset of the value from `raw`
    std::int16_t code = 0;

    std::string_view value() const { return {raw + valueStart, valueSize}; }
    std::string_view bytes() const { return {raw, rawSize}; }
};

constexpr int kMinGroupCode = -5;
constexpr int kMaxGroupCode = 1071;

// Numbers as drawing files write them. Reading takes leading blanks and ignores what follows the number; text
// that is no number gives 0.
double dxfReal(std::string_view text);
std::int64_t dxfInteger(std::string_view text);
std::uint64_t dxfHandle(std::string_view text);
std::string dxfText(double value); // the shortest text that reads back as the same number
std::string dxfText(std::int64_t value);
std::string dxfHandleText(std::uint64_t handle);
std::string_view dxfTrimmed(std::string_view text);
std::string dxfUpperCase(std::string_view text); // of the letters A to Z
// Both lines of a tag, with the code right-aligned to three places.
std::string dxfTagText(int code, std::string_view value, std::string_view lineEnd);
