// A number in words of tests: so many decimals, without the zeros at their end and without a minus before
// zero.
#pragma once

#include <cmath>
#include <cstdio>
#include <string>

inline std::string plainNumber(double value, int decimals) {
    char text[350];
    const double least = 0.5 * std::pow(10, -decimals);
    std::snprintf(text, sizeof text, "%.*f", decimals, std::fabs(value) < least ? 0 : value);
    std::string result = text;
    result.erase(result.find_last_not_of('0') + 1);
    if (result.back() == '.')
        result.pop_back();
    return result;
}
