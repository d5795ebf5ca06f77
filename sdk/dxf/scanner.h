// Walks the tags of a drawing text. The one place that knows where a tag begins and ends.
#pragma once

#include "sdk/dxf/bytes16.h"
#include "sdk/dxf/tag.h"

#include <cstring>

// A fault in a drawing text, at a byte of it.
struct DxfFault {
    const char* position;
    const char* reason;
};

class DxfScanner {
public:
    explicit DxfScanner(std::string_view text) : at(text.data()), end(text.data() + text.size()) {}

    const char* position() const { return at; }

    // Takes the next tag; false at the end of the text. Throws DxfFault for a code line that is no group code
    // and for a code line without a value line.
    bool next(DxfTag& tag) {
        if (at == end)
            return false;
        tag.raw = at;
        readCode(tag);
        const char* value = at;
        if (value == end)
            throw DxfFault{tag.raw, "a group code without a value"};
        const char* lineEnd = endOfLine(value);
        tag.valueStart = static_cast<std::uint16_t>(value - tag.raw);
        const char* valueEnd = lineEnd;
        if (valueEnd != value && valueEnd[-1] == '\r')
            --valueEnd;
        tag.valueSize = static_cast<std::uint32_t>(valueEnd - value);
        at = lineEnd == end ? end : lineEnd + 1;
        tag.rawSize = static_cast<std::uint32_t>(at - tag.raw);
        return true;
    }

private:
    // Most lines are shorter than a call of memchr takes.
    const char* endOfLine(const char* from) const {
        if (end - from >= 16) {
            const std::uint32_t feeds = DxfBytes16(from).equalTo('\n');
            if (feeds != 0)
                return from + dxfLowestBit(feeds);
            from += 16;
        }
        const void* found = std::memchr(from, '\n', static_cast<std::size_t>(end - from));
        return found ? static_cast<const char*>(found) : end;
    }
    static bool isBlank(char c) { return c == ' ' || c == '\t'; }

    void readCode(DxfTag& tag) {
        constexpr std::ptrdiff_t longestCodeLine = 64;
        const char* p = at;
        const char* limit = end - p > longestCodeLine ? p + longestCodeLine : end;
        while (p != limit && isBlank(*p))
            ++p;
        const bool negative = p != limit && *p == '-';
        if (negative)
            ++p;
        int code = 0;
        const char* digits = p;
        while (p != limit && *p >= '0' && *p <= '9' && p - digits < 5)
            code = code * 10 + (*p++ - '0');
        if (p == digits)
            throw DxfFault{tag.raw, "a group code was expected"};
        while (p != limit && (isBlank(*p) || *p == '\r'))
            ++p;
        if (p == end)
            throw DxfFault{tag.raw, "a group code without a value"};
        if (p == limit || *p != '\n')
            throw DxfFault{tag.raw, "a group code was expected"};
        code = negative ? -code : code;
        if (code < kMinGroupCode || code > kMaxGroupCode)
            throw DxfFault{tag.raw, "a group code out of range"};
        tag.code = static_cast<std::int16_t>(code);
        at = p + 1;
    }

    const char* at;
    const char* end;
};
