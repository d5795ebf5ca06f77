// Binary drawings are read through the text of the same tags, so that there is one reader only.
#include "sdk/dxf/binary_text.h"

#include "sdk/dxf/scanner.h"
#include "sdk/dxf/value_kinds.h"

namespace {

// A binary drawing starts with 22 bytes: the writer's name, these characters, line end and two marks.
constexpr std::size_t kNameSize = 7;
constexpr std::string_view kMark{" Binary DXF\r\n\x1a\0", 15};
constexpr std::size_t kStartSize = kNameSize + kMark.size();

class BinaryReader {
public:
    explicit BinaryReader(std::string_view bytes) : at(bytes.data()), end(bytes.data() + bytes.size()) {
        // Old versions write one byte for a code: the "SECTION" of the first tag follows it at once.
        wideCodes = bytes.size() > 1 && bytes[1] == '\0';
    }

    std::string text() {
        std::string result;
        while (at != end) {
            const char* start = at;
            const int code = readCode();
            if (code < kMinGroupCode || code > kMaxGroupCode)
                throw DxfFault{start, "a group code out of range"};
            const std::string value = readValue(code, start);
            result += dxfTagText(code, value, "\n");
            if (code == 0 && dxfTrimmed(value) == "EOF")
                break;
        }
        return result;
    }

private:
    template <class T> T take() {
        T value;
        if (end - at < static_cast<std::ptrdiff_t>(sizeof value))
            throw DxfFault{at, "the file ends within a value"};
        std::memcpy(&value, at, sizeof value);
        at += sizeof value;
        return value;
    }

    int readCode() {
        if (wideCodes)
            return take<std::int16_t>();
        const int code = take<std::uint8_t>();
        return code == 255 ? take<std::int16_t>() : code;
    }

    std::string readValue(int code, const char* start) {
        switch (kindOf(code, start)) {
        case DxfValueKind::Text:
            return takeText();
        case DxfValueKind::Real:
            return dxfText(take<double>());
        case DxfValueKind::Int16:
            return std::to_string(take<std::int16_t>());
        case DxfValueKind::Int32:
            return std::to_string(take<std::int32_t>());
        case DxfValueKind::Int64:
            return std::to_string(take<std::int64_t>());
        case DxfValueKind::Bool:
            return std::to_string(wideCodes ? take<std::uint8_t>() : take<std::int16_t>());
        case DxfValueKind::Chunk:
            return takeChunk();
        case DxfValueKind::None:
            break;
        }
        return {};
    }

    static DxfValueKind kindOf(int code, const char* start) {
        const DxfValueKind kind = dxfValueKind(code);
        if (kind == DxfValueKind::None)
            throw DxfFault{start, "a group code out of range"};
        return kind;
    }

    std::string takeText() {
        const void* zero = std::memchr(at, 0, static_cast<std::size_t>(end - at));
        if (!zero)
            throw DxfFault{at, "the file ends within a text"};
        std::string text(at, static_cast<const char*>(zero));
        at = static_cast<const char*>(zero) + 1;
        for (char& c : text)
            if (c == '\n' || c == '\r')
                c = ' ';
        return text;
    }

    std::string takeChunk() {
        const std::size_t size = take<std::uint8_t>();
        if (static_cast<std::size_t>(end - at) < size)
            throw DxfFault{at, "the file ends within a value"};
        std::string text;
        for (std::size_t i = 0; i < size; ++i) {
            const auto byte = static_cast<unsigned char>(*at++);
            text += "0123456789ABCDEF"[byte >> 4];
            text += "0123456789ABCDEF"[byte & 15];
        }
        return text;
    }

    const char* at;
    const char* end;
    bool wideCodes = true;
};

} // namespace

bool isBinaryDxf(std::string_view bytes) {
    return bytes.substr(0, kStartSize).substr(std::min(bytes.size(), kNameSize)) == kMark;
}

std::string textOfBinaryDxf(std::string_view bytes) { return BinaryReader(bytes.substr(kStartSize)).text(); }
