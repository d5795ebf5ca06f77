// Tags as views of the file's bytes; only those that are set have texts of their own.
#include "sdk/dxf/tag_list.h"

#include "sdk/dxf/scanner.h"
#include "sdk/dxf/unfilled_tags.h"

#include <algorithm>

namespace {

thread_local bool staysUnfilled = false;

constexpr int kSubclassMarker = 100;
constexpr int kGroupBrace = 102;
constexpr int kEmbeddedObject = 101;
constexpr int kExtendedData = 1000;

bool isEmbeddedStart(const DxfTag& tag) {
    return tag.code == kEmbeddedObject && dxfTrimmed(tag.value()) == "Embedded Object";
}

bool opensBraces(const DxfTag& tag) { return !tag.value().empty() && tag.value().front() == '{'; }
} // namespace

DxfUnfilledTags::DxfUnfilledTags() { staysUnfilled = true; }
DxfUnfilledTags::~DxfUnfilledTags() { staysUnfilled = false; }

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

// Whatever follows belongs to another object, whose codes mean other things.
std::size_t DxfTagList::ownEnd() const {
    std::size_t end = 0;
    while (end < tags.size() && tags[end].code < kExtendedData && !isEmbeddedStart(tags[end]))
        ++end;
    return end;
}

DxfTagList::Range DxfTagList::embedded() const {
    Range range{ownEnd(), ownEnd()};
    if (range.begin == tags.size() || !isEmbeddedStart(tags[range.begin]))
        return range;
    range.end = ++range.begin;
    while (range.end < tags.size() && tags[range.end].code < kExtendedData)
        ++range.end;
    return range;
}

DxfTagList::Range DxfTagList::marked(std::string_view name) const {
    std::size_t from = npos, to = 0;
    for (; to < tags.size() && tags[to].code < kExtendedData && !isEmbeddedStart(tags[to]); ++to) {
        if (tags[to].code != kSubclassMarker)
            continue;
        if (from != npos)
            break;
        if (dxfTrimmed(tags[to].value()) == name)
            from = to + 1;
    }
    return from == npos ? Range{npos, npos} : Range{from, to};
}

DxfTagList::Range DxfTagList::subclass(std::string_view name) const {
    const Range range = marked(name);
    return range.begin == range.end ? own() : range;
}

std::size_t DxfTagList::endOf(std::string_view subclassName) const {
    const Range range = marked(subclassName);
    return range.end == npos ? ownEnd() : range.end;
}

std::size_t DxfTagList::find(int code, Range range) const {
    bool inBraces = false;
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (tags[i].code == kGroupBrace)
            inBraces = opensBraces(tags[i]);
        if (tags[i].code == code && (!inBraces || code == kGroupBrace))
            return i;
    }
    return npos;
}

// In the part of the subclass, or else the first one anywhere in the own part; in one walk, since all that is
// shown of an entity is found here.
std::size_t DxfTagList::find(std::string_view subclassName, int code) const {
    enum { Before, Within, Behind } place = Before;
    bool inBraces = false;
    std::size_t elsewhere = npos;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const DxfTag& tag = tags[i];
        if (tag.code >= kExtendedData || isEmbeddedStart(tag) || (place == Behind && elsewhere != npos))
            break;
        if (tag.code == kSubclassMarker && place != Behind)
            place = place == Within ? Behind : dxfTrimmed(tag.value()) == subclassName ? Within : Before;
        if (tag.code == kGroupBrace)
            inBraces = opensBraces(tag);
        if (tag.code != code || (inBraces && code != kGroupBrace))
            continue;
        if (place == Within && !inBraces)
            return i;
        elsewhere = std::min(elsewhere, i);
    }
    return elsewhere;
}

// From a tag that was found for the subclass to the end of the part that it lies in.
DxfTagList::Range DxfTagList::restOf(std::string_view subclassName, std::size_t found) const {
    const Range range = marked(subclassName);
    const bool inside = range.begin != npos && found >= range.begin && found < range.end;
    return {found, inside ? range.end : ownEnd()};
}

void DxfTagList::insert(std::size_t position, int code, std::string_view value) {
    if (staysUnfilled)
        return;
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
    const std::size_t found = find(subclassName, code);
    if (found != npos)
        replace(found, value);
    else
        insert(endOf(subclassName), code, value);
}

void DxfTagList::remove(std::string_view subclassName, int code) {
    const std::size_t found = find(subclassName, code);
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

double DxfTagList::real(std::string_view subclassName, int code, double otherwise) const {
    const std::size_t found = find(subclassName, code);
    return found == npos ? otherwise : dxfReal(tags[found].value());
}

std::int64_t DxfTagList::integer(std::string_view subclassName, int code, std::int64_t otherwise) const {
    const std::size_t found = find(subclassName, code);
    return found == npos ? otherwise : dxfInteger(tags[found].value());
}

OdGePoint3d DxfTagList::point(std::string_view subclassName, int code) const {
    const std::size_t found = find(subclassName, code);
    return found == npos ? OdGePoint3d() : point(restOf(subclassName, found), code);
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
        const std::size_t found = last == npos ? find(subclassName, code + 10 * axis)
                                               : find(code + 10 * axis, restOf(subclassName, last));
        if (found != npos)
            replace(last = found, dxfText(parts[axis]));
        else
            insert(last = last == npos ? endOf(subclassName) : last + 1, code + 10 * axis,
                   dxfText(parts[axis]));
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
