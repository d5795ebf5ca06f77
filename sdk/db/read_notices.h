// What a reader has to say about a file that it takes all the same. Lines are counted once, at the end.
#pragma once

#include "sdk/rx/od_string.h"

#include <string_view>
#include <vector>

class OdDbReadNotices {
public:
    // `position` is a place in the text, or null for the file as a whole; `other` a second place that the
    // notice is about, or null.
    void add(const char* position, OdString reason, const char* other = nullptr);
    // In the order of the file, with the lines; of very many the first, and how many more there are. `unit`
    // is what is counted: lines, or the two lines of a tag where the file has no lines.
    std::vector<OdString> texts(std::string_view text, bool countsTags) const;
    static OdString placeText(std::string_view text, const char* position, bool countsTags);

private:
    struct Notice {
        const char* position;
        const char* other;
        OdString reason;
    };
    std::vector<Notice> notices;
    std::size_t untold = 0;
};
