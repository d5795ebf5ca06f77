// Numbers as text. Locale must play no part in them, hence no stream and no printf.
#include "sdk/dxf/tag.h"

#include <charconv>
#include <cmath>

namespace {

std::string_view numberPart(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    return text;
}

} // namespace

double dxfReal(std::string_view text) {
    const std::string_view number = numberPart(text);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        return 0;
    return value;
}

std::int64_t dxfInteger(std::string_view text) {
    const std::string_view number = numberPart(text);
    std::int64_t value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return value;
}

std::uint64_t dxfHandle(std::string_view text) {
    const std::string_view number = numberPart(text);
    std::uint64_t value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value, 16);
    return value;
}

std::string dxfText(double value) {
    if (!std::isfinite(value))
        return "0.0";
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    std::string text(buffer, end);
    if (text.find_first_of(".e") == std::string::npos)
        text += ".0";
    return text;
}

std::string dxfText(std::int64_t value) { return std::to_string(value); }

std::string dxfHandleText(std::uint64_t handle) {
    char buffer[20];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, handle, 16).ptr;
    for (char* c = buffer; c != end; ++c)
        if (*c >= 'a')
            *c = static_cast<char>(*c - 'a' + 'A');
    return {buffer, end};
}

std::string_view dxfTrimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

std::string dxfUpperCase(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    return result;
}

std::string dxfTagText(int code, std::string_view value, std::string_view lineEnd) {
    std::string text = std::to_string(code);
    if (text.size() < 3)
        text.insert(0, 3 - text.size(), ' ');
    text.append(lineEnd).append(value).append(lineEnd);
    return text;
}
