// A file may be wrong at every line of it, so the notices are limited, and their lines found in one walk.
#include "sdk/db/read_notices.h"

#include <algorithm>
#include <map>

namespace {

constexpr std::size_t kMostNotices = 200;

OdString lineText(long line, bool countsTags) {
    return OdString(countsTags ? L"tag " : L"line ") +
           OdString(std::to_wstring(countsTags ? (line + 1) / 2 : line));
}

} // namespace

void OdDbReadNotices::add(const char* position, OdString reason, const char* other) {
    if (notices.size() < kMostNotices)
        notices.push_back({position, other, std::move(reason)});
    else
        ++untold;
}

OdString OdDbReadNotices::placeText(std::string_view text, const char* position, bool countsTags) {
    return lineText(1 + std::count(text.data(), position, '\n'), countsTags);
}

std::vector<OdString> OdDbReadNotices::texts(std::string_view text, bool countsTags) const {
    std::map<const char*, long> lines;
    for (const Notice& notice : notices)
        lines[notice.position] = lines[notice.other] = 0;
    lines.erase(nullptr);
    const char* at = text.data();
    long line = 1;
    for (auto& [position, number] : lines) {
        line += std::count(at, position, '\n');
        at = position;
        number = line;
    }
    std::vector<Notice> sorted = notices;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Notice& a, const Notice& b) { return std::less<>()(a.position, b.position); });
    std::vector<OdString> result;
    for (const Notice& notice : sorted) {
        OdString told =
            notice.position ? lineText(lines[notice.position], countsTags) + OdString(L": ") : OdString();
        told += notice.reason;
        if (notice.other)
            told += OdString(L", that of ") + lineText(lines[notice.other], countsTags);
        result.push_back(told);
    }
    if (untold > 0)
        result.push_back(OdString(L"and ") + OdString(std::to_wstring(untold)) + OdString(L" more"));
    return result;
}
