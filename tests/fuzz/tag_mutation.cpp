#include "tests/fuzz/tag_mutation.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

struct Tag {
    std::string code, value;
};
using Tags = std::vector<Tag>;

Tags tagsOf(const std::string& text) {
    Tags tags;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t codeEnd = std::min(text.find('\n', at), text.size());
        const std::size_t valueStart = std::min(codeEnd + 1, text.size());
        const std::size_t valueEnd = std::min(text.find('\n', valueStart), text.size());
        tags.push_back({text.substr(at, codeEnd - at), text.substr(valueStart, valueEnd - valueStart)});
        at = valueEnd + 1;
    }
    return tags;
}

// The record, from one code 0 to the next, that begins at or before `position`.
std::pair<std::size_t, std::size_t> recordAt(const Tags& tags, std::size_t position) {
    const auto begins = [&tags](std::size_t i) {
        return tags[i].code.find_last_not_of(" 0") == std::string::npos;
    };
    std::size_t end = position + 1;
    while (position > 0 && !begins(position))
        --position;
    while (end < tags.size() && !begins(end))
        ++end;
    return {position, end};
}

class TagMutation {
public:
    TagMutation(const std::string& text, unsigned seed) : tags(tagsOf(text)), random(seed) {}

    std::string text() {
        if (!tags.empty())
            change();
        std::string result;
        for (const Tag& tag : tags)
            result += tag.code + "\n" + tag.value + "\n";
        return result;
    }

private:
    std::size_t any(std::size_t count) { return random() % count; }
    Tag& anyTag() { return tags[any(tags.size())]; }
    auto place(std::size_t index) { return tags.begin() + static_cast<std::ptrdiff_t>(index); }

    void change() {
        static const char* const values[] = {"0",   "1",          "-1", "FFFFFFFFFFFFFFFF", "1e308",
                                             "nan", "2147483648", "",   "*Model_Space",     "ACAD_GROUP",
                                             "A",   "\\U+0000",   "{X"};
        static const char* const codes[] = {"0",   "2",    "5",   "8",   "10",  "67",  "70",
                                            "100", "102",  "105", "330", "340", "350", "1001",
                                            "-5",  "1071", "42",  "91",  "310", "3"};
        const auto [first, last] = recordAt(tags, any(tags.size()));
        switch (any(8)) {
        case 0:
            anyTag().value = values[any(std::size(values))];
            break;
        case 1:
            anyTag().code = codes[any(std::size(codes))];
            break;
        case 2:
            anyTag().value = anyTag().value;
            break;
        case 3:
            tags.erase(place(any(tags.size())));
            break;
        case 4:
            tags.insert(place(any(tags.size())), Tag(anyTag()));
            break;
        case 5:
            tags.erase(place(first), place(last));
            break;
        case 6: {
            const Tags record(place(first), place(last));
            tags.insert(place(recordAt(tags, any(tags.size())).first), record.begin(), record.end());
            break;
        }
        default:
            std::swap(anyTag(), anyTag());
        }
    }

    Tags tags;
    std::minstd_rand random;
};

} // namespace

std::size_t mutateTags(std::uint8_t* data, std::size_t size, std::size_t maximum, unsigned seed) {
    const std::string changed =
        TagMutation(std::string(reinterpret_cast<const char*>(data), size), seed).text().substr(0, maximum);
    std::copy(changed.begin(), changed.end(), data);
    return changed.size();
}
