// What kind of value each group code has; both the binary form and the check of numbers follow it.
#pragma once

#include "sdk/dxf/tag.h"

#include <array>

enum class DxfValueKind : std::uint8_t { None, Text, Real, Int16, Int32, Int64, Bool, Chunk };

namespace dxf_kinds {

struct Range {
    int first, last;
    DxfValueKind kind;
};

constexpr Range ranges[] = {
    {0, 9, DxfValueKind::Text},        {10, 59, DxfValueKind::Real},      {60, 79, DxfValueKind::Int16},
    {90, 99, DxfValueKind::Int32},     {100, 109, DxfValueKind::Text},    {110, 149, DxfValueKind::Real},
    {160, 169, DxfValueKind::Int64},   {170, 179, DxfValueKind::Int16},   {210, 239, DxfValueKind::Real},
    {270, 289, DxfValueKind::Int16},   {290, 299, DxfValueKind::Bool},    {300, 309, DxfValueKind::Text},
    {310, 319, DxfValueKind::Chunk},   {320, 369, DxfValueKind::Text},    {370, 389, DxfValueKind::Int16},
    {390, 399, DxfValueKind::Text},    {400, 409, DxfValueKind::Int16},   {410, 419, DxfValueKind::Text},
    {420, 429, DxfValueKind::Int32},   {430, 439, DxfValueKind::Text},    {440, 459, DxfValueKind::Int32},
    {460, 469, DxfValueKind::Real},    {470, 489, DxfValueKind::Text},    {999, 1003, DxfValueKind::Text},
    {1004, 1004, DxfValueKind::Chunk}, {1005, 1009, DxfValueKind::Text},  {1010, 1059, DxfValueKind::Real},
    {1060, 1070, DxfValueKind::Int16}, {1071, 1071, DxfValueKind::Int32},
};

constexpr std::array<DxfValueKind, kMaxGroupCode + 1> table() {
    std::array<DxfValueKind, kMaxGroupCode + 1> kinds{};
    for (const Range& range : ranges)
        for (int code = range.first; code <= range.last; ++code)
            kinds[static_cast<std::size_t>(code)] = range.kind;
    return kinds;
}

constexpr std::array<DxfValueKind, kMaxGroupCode + 1> byCode = table();

} // namespace dxf_kinds

// None for a code below zero and one that has no kind.
constexpr DxfValueKind dxfValueKind(int code) {
    return code < 0 ? DxfValueKind::None : dxf_kinds::byCode[static_cast<std::size_t>(code)];
}

constexpr bool dxfIsNumberKind(DxfValueKind kind) {
    return kind >= DxfValueKind::Real && kind <= DxfValueKind::Bool;
}

// Whether the value is the handle of another object.
constexpr bool dxfIsReference(int code) {
    return (code >= 320 && code <= 369) || (code >= 390 && code <= 399) || code == 480 || code == 481 ||
           code == 1005;
}
