// A look at each character of a text.
#include "standin/params/yaml_text_check.h"

namespace standin {

namespace {

bool isAllowedControl(unsigned char byte) { return byte == '\t' || byte == '\n' || byte == '\r'; }

// Length of the UTF-8 sequence that starts at `at`, 0 when it is none.
std::size_t sequenceLength(const std::string& text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = lead < 0x80    ? 1
                               : lead < 0xC2  ? 0
                               : lead < 0xE0  ? 2
                               : lead < 0xF0  ? 3
                               : lead <= 0xF4 ? 4
                                              : 0;
    if (at + length > text.size())
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((static_cast<unsigned char>(text[at + i]) & 0xC0) != 0x80)
            return 0;
    return length;
}

} // namespace

std::optional<YamlProblem> findUnreadableText(const std::string& text, const std::string& file) {
    int line = 1;
    std::size_t lineStart = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const std::size_t length = sequenceLength(text, at);
        const bool control = (byte < 0x20 && !isAllowedControl(byte)) || byte == 0x7F;
        if (length == 0 || control)
            return YamlProblem{file, line, static_cast<int>(at - lineStart) + 1,
                               control ? "a control character" : "text that is not UTF-8"};
        at += length;
        if (byte == '\n') {
            ++line;
            lineStart = at;
        }
    }
    return std::nullopt;
}

} // namespace standin
