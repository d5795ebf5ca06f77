// Tags as views of the file's bytes; only those that are set have texts of their own.
#include "sdk/dxf/tag_list.h"

#include "sdk/dxf/scanner.h"

#include <algorithm>

namespace {
constexpr int kSubclassMarker = 100;
constexpr int kGroupBrace = 102;
constexpr int kExtendedData = 1000;
} // namespace

DxfTagList DxfTagList::parse(std::string_view bytes, std::shared_ptr<const std::string> source,
                             bool carriageReturns) {
    DxfTagList list;
    list.source = std::move(source);
    list.withCarriageReturns = carriageReturns;
    constexpr std::size_t usualTagSize = 10, usualCount = 32;
    list.tags.reserve(std::min(bytes.size() / usualTagSize, usualCount)); // most objects are small
    DxfScanner scanner(bytes);
    DxfTag tag;
    while (scanner.next(tag))
        list.tags.push_back(tag);
    return list;
}

std::string DxfTagList::bytes() const {
    std::string result;
    for (const DxfTag& tag : tags)
        result += tag.bytes();
    return result;
}

DxfTagList::Range DxfTagList::subclass(std::string_view name) const {
    bool marked = false;
    std::size_t from = npos, to = 0;
    for (; to < tags.size() && tags[to].code < kExtendedData; ++to) {
        if (tags[to].code != kSubclassMarker)
            continue;
        marked = true;
        if (from != npos)
            break;
        if (dxfTrimmed(tags[to].value()) == name)
            from = to + 1;
    }
    if (!marked)
        return {0, to};
    return from == npos ? Range{to, to} : Range{from, to};
}

std::size_t DxfTagList::find(int code, Range range) const {
    bool inBraces = false;
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (tags[i].code == kGroupBrace)
            inBraces = !tags[i].value().empty() && tags[i].value().front() == '{';
        if (tags[i].code == code && (!inBraces || code == kGroupBrace))
            return i;
    }
    return npos;
}

std::size_t DxfTagList::find(std::string_view subclassName, int code) const {
    std::size_t marker = 0;
    while (marker < tags.size() &&
           (tags[marker].code != kSubclassMarker || dxfTrimmed(tags[marker].value()) != subclassName))
        if (tags[marker++].code >= kExtendedData)
            marker = tags.size();
    if (marker == tags.size())
        return find(code, subclass(subclassName));
    for (std::size_t end = marker + 1; end < tags.size(); ++end) {
        if (tags[end].code == kSubclassMarker || tags[end].code >= kExtendedData)
            return npos;
        if (tags[end].code != code)
            continue;
        const std::size_t found = find(code, {marker + 1, end + 1});
        if (found != npos)
            return found;
    }
    return npos;
}

void DxfTagList::insert(std::size_t position, int code, std::string_view value) {
    const DxfTag tag = makeTag(code, value);
    tags.insert(tags.begin() + static_cast<std::ptrdiff_t>(position), tag);
}

void DxfTagList::replace(std::size_t position, std::string_view value) {
    tags[position] = makeTag(tags[position].code, value);
}

void DxfTagList::erase(std::size_t position, std::size_t count) {
    const auto first = tags.begin() + static_cast<std::ptrdiff_t>(position);
    tags.erase(first, first + static_cast<std::ptrdiff_t>(count));
}

DxfTagList DxfTagList::part(Range range) const {
    DxfTagList result;
    result.pool = pool;
    result.source = source;
    result.withCarriageReturns = withCarriageReturns;
    result.tags.assign(tags.begin() + static_cast<std::ptrdiff_t>(range.begin),
                       tags.begin() + static_cast<std::ptrdiff_t>(range.end));
    return result;
}

void DxfTagList::exchange(std::size_t position, std::size_t count, DxfTagList& other) {
    adoptTexts(other);
    DxfTagList taken = part({position, position + count});
    const std::size_t common = std::min(count, other.size());
    const auto place = tags.begin() + static_cast<std::ptrdiff_t>(position);
    const auto firstNew = other.tags.begin() + static_cast<std::ptrdiff_t>(common);
    std::copy(other.tags.begin(), firstNew, place);
    tags.erase(place + static_cast<std::ptrdiff_t>(common), place + static_cast<std::ptrdiff_t>(count));
    tags.insert(tags.begin() + static_cast<std::ptrdiff_t>(position + common), firstNew, other.tags.end());
    other = std::move(taken);
}

// Texts that only `other` holds would go with it.
void DxfTagList::adoptTexts(DxfTagList& other) {
    if (!other.pool || other.pool == pool)
        return;
    if (!pool) {
        pool = other.pool;
        return;
    }
    for (DxfTag& tag : other.tags) {
        pool->texts.emplace_back(tag.bytes());
        tag.raw = pool->texts.back().data();
    }
}

void DxfTagList::set(std::string_view subclassName, int code, std::string_view value) {
    const Range range = subclass(subclassName);
    const std::size_t found = find(code, range);
    if (found != npos)
        replace(found, value);
    else
        insert(range.end, code, value);
}

void DxfTagList::remove(std::string_view subclassName, int code) {
    const std::size_t found = find(code, subclass(subclassName));
    if (found != npos)
        erase(found);
}

void DxfTagList::restyle(bool carriageReturns) {
    if (withCarriageReturns == carriageReturns)
        return;
    withCarriageReturns = carriageReturns;
    for (std::size_t i = 0; i < tags.size(); ++i)
        replace(i, std::string(tags[i].value()));
}

double DxfTagList::real(Range range, int code, double otherwise) const {
    const std::size_t found = find(code, range);
    return found == npos ? otherwise : dxfReal(tags[found].value());
}

std::int64_t DxfTagList::integer(Range range, int code, std::int64_t otherwise) const {
    const std::size_t found = find(code, range);
    return found == npos ? otherwise : dxfInteger(tags[found].value());
}

OdGePoint3d DxfTagList::point(Range range, int code) const {
    const std::size_t found = find(code, range);
    if (found == npos)
        return {};
    const Range rest{found, range.end};
    return {dxfReal(tags[found].value()), real(rest, code + 10), real(rest, code + 20)};
}

std::vector<OdGePoint3d> DxfTagList::points(Range range, int code) const {
    std::vector<OdGePoint3d> list;
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (tags[i].code == code)
            list.push_back({dxfReal(tags[i].value()), 0, 0});
        else if (tags[i].code == code + 10 && !list.empty())
            list.back().y = dxfReal(tags[i].value());
        else if (tags[i].code == code + 20 && !list.empty())
            list.back().z = dxfReal(tags[i].value());
    }
    return list;
}

void DxfTagList::setPoint(std::string_view subclassName, int code, const OdGePoint3d& value) {
    const double parts[] = {value.x, value.y, value.z};
    std::size_t last = npos;
    for (int axis = 0; axis < 3; ++axis) {
        const Range range = subclass(subclassName);
        const std::size_t found = find(code + 10 * axis, range);
        if (found != npos)
            replace(last = found, dxfText(parts[axis]));
        else
            insert(last = last == npos ? range.end : last + 1, code + 10 * axis, dxfText(parts[axis]));
    }
}

DxfTag DxfTagList::makeTag(int code, std::string_view value) {
    DxfTextPool& texts = ownPool();
    texts.texts.push_back(dxfTagText(code, value, withCarriageReturns ? "\r\n" : "\n"));
    const std::string& text = texts.texts.back();
    const std::size_t lineEnd = withCarriageReturns ? 2 : 1;
    DxfTag tag;
    tag.raw = text.data();
    tag.rawSize = static_cast<std::uint32_t>(text.size());
    tag.valueSize = static_cast<std::uint32_t>(value.size());
    tag.valueStart = static_cast<std::uint16_t>(text.size() - lineEnd - value.size());
    tag.code = static_cast<std::int16_t>(code);
    return tag;
}

DxfTextPool& DxfTagList::ownPool() {
    if (!pool)
        pool = std::make_shared<DxfTextPool>();
    return *pool;
}
