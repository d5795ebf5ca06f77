// No byte is added or taken away, so that places in one text are places in the other.
#include "sdk/dxf/line_ends.h"

bool dxfHasLoneReturns(std::string_view text) {
    const std::size_t end = text.find_first_of("\r\n");
    return end != std::string_view::npos && text[end] == '\r' &&
           (end + 1 == text.size() || text[end + 1] != '\n');
}

std::string dxfWithLineFeeds(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'))
            text[i] = '\n';
    return text;
}

// From the end, so that what stands before a line feed is still what it was.
void dxfPutLoneReturns(std::string& text) {
    for (std::size_t i = text.size(); i-- > 0;)
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r'))
            text[i] = '\r';
}
