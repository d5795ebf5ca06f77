// The exact check, for the few values that the quick one leaves open.
#include "sdk/dxf/number_check.h"

#include "sdk/dxf/tag.h"

#include <charconv>
#include <cmath>

DxfNumberFault dxfNumberFault(std::string_view value) {
    std::string_view number = dxfTrimmed(value);
    if (number.size() > 1 && number.front() == '+' && number[1] != '-')
        number.remove_prefix(1);
    double result = 0;
    const char* const end = number.data() + number.size();
    const auto [rest, error] = std::from_chars(number.data(), end, result);
    if (error == std::errc::invalid_argument || rest != end)
        return DxfNumberFault::NoNumber;
    // Out of range are numbers next to nothing, too.
    if (error == std::errc::result_out_of_range)
        return number.find("e-") != number.npos || number.find("E-") != number.npos
                   ? DxfNumberFault::None
                   : DxfNumberFault::TooLarge;
    if (std::isnan(result) || std::isinf(result))
        return DxfNumberFault::NoNumber;
    return std::fabs(result) > kDxfLargestNumber ? DxfNumberFault::TooLarge : DxfNumberFault::None;
}
