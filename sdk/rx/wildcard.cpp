// Name patterns with wildcards, as commands take them.
#include "sdk/rx/wildcard.h"

#include <cwctype>
#include <vector>

namespace {

using Text = std::wstring;

// One element of a pattern that stands for exactly one character.
struct Single {
    bool matches;
    std::size_t length; // in the pattern
};

Single matchSet(const Text& pattern, std::size_t at, wchar_t c) {
    const std::size_t end = pattern.find(L']', at + 1);
    if (end == Text::npos)
        return {c == L'[', 1};
    std::size_t i = at + 1;
    const bool inverted = pattern[i] == L'~';
    if (inverted)
        ++i;
    bool found = false;
    while (i < end) {
        if (i + 2 < end && pattern[i + 1] == L'-') {
            found = found || (c >= pattern[i] && c <= pattern[i + 2]);
            i += 3;
        } else {
            found = found || c == pattern[i];
            ++i;
        }
    }
    return {found != inverted, end - at + 1};
}

Single matchSingle(const Text& pattern, std::size_t at, wchar_t c) {
    switch (pattern[at]) {
    case L'?':
        return {true, 1};
    case L'#':
        return {std::iswdigit(static_cast<std::wint_t>(c)) != 0, 1};
    case L'@':
        return {std::iswalpha(static_cast<std::wint_t>(c)) != 0, 1};
    case L'.':
        return {std::iswalnum(static_cast<std::wint_t>(c)) == 0, 1};
    case L'[':
        return matchSet(pattern, at, c);
    case L'`':
        return at + 1 < pattern.size() ? Single{c == pattern[at + 1], 2} : Single{c == L'`', 1};
    default:
        return {c == pattern[at], 1};
    }
}

// Goes back to the last * only, so that the time is at most the product of the lengths.
bool matchOne(const Text& name, const Text& pattern) {
    std::size_t n = 0, p = 0, starPattern = Text::npos, starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            starPattern = ++p;
            starName = n;
            continue;
        }
        const Single single = p < pattern.size() ? matchSingle(pattern, p, name[n]) : Single{false, 0};
        if (single.matches) {
            ++n;
            p += single.length;
        } else if (starPattern != Text::npos) {
            p = starPattern;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*')
        ++p;
    return p == pattern.size();
}

std::vector<Text> alternatives(const Text& pattern) {
    std::vector<Text> parts(1);
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == L'`' && i + 1 < pattern.size()) {
            parts.back() += pattern[i++];
            parts.back() += pattern[i];
        } else if (pattern[i] == L',') {
            parts.emplace_back();
        } else {
            parts.back() += pattern[i];
        }
    }
    return parts;
}

} // namespace

bool odutWcMatchNoCase(const OdString& name, const OdString& pattern) {
    const Text upperName = name.makeUpper().wide();
    for (const Text& part : alternatives(pattern.makeUpper().wide())) {
        const bool inverted = !part.empty() && part[0] == L'~';
        if (matchOne(upperName, inverted ? part.substr(1) : part) != inverted)
            return true;
    }
    return false;
}
