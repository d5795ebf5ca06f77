// Groups keep their members as handles in their tags, in order; a list of them is made when it is first asked
// for.
#include "sdk/db/group.h"

#include "sdk/db/anonymous_names.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/handle_text.h"

#include <algorithm>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbGroup, OdDbObject)

namespace {
constexpr std::string_view kMarker = "AcDbGroup";
constexpr int kDescription = 300;
constexpr int kUnnamed = 70;
constexpr int kSelectable = 71;
constexpr int kMember = 340;

// A group is made for each reading of one too, in which its first tags are soon replaced: they are views of a
// fixed text.
const DxfTagList& tagsOfNewGroup() {
    static const DxfTagList tags =
        DxfTagList::parse("  0\nGROUP\n100\nAcDbGroup\n300\n\n 70\n0\n 71\n1\n", nullptr, false);
    return tags;
}

DxfTagList memberTagsOf(const DxfTagList& like, const std::vector<OdDbStub*>& joining) {
    DxfTagList tags = like.part({0, 0});
    for (const OdDbStub* stub : joining)
        tags.append(kMember, odDbHandleText(*stub));
    return tags;
}

OdDbDictionaryPtr ownerOf(const OdDbGroup& group, OdDb::OpenMode mode) {
    return odrxQuery<OdDbDictionary>(group.ownerId().openObject(mode).get());
}
} // namespace

// Another order of the members from `first` to `last`, with the way back: the order turned round, or, with a
// `middle` between them, the members from `middle` on put before the others.
class OdDbGroupOrderChange : public OdDbChange {
public:
    OdDbGroupOrderChange(OdDbGroup& changed, std::size_t from, std::size_t to)
        : OdDbGroupOrderChange(changed, from, from, to) {}
    OdDbGroupOrderChange(OdDbGroup& changed, std::size_t from, std::size_t between, std::size_t to)
        : stub(changed.objectId().getStub()), first(from), middle(between), last(to) {}
    void apply(OdDbGroup& group) {
        const auto steps = static_cast<std::ptrdiff_t>(middle - first);
        group.rearrange(first, last - first, [steps](auto begin, auto end) {
            steps == 0 ? std::reverse(begin, end) : void(std::rotate(begin, begin + steps, end));
        });
        if (steps != 0)
            middle = first + (last - middle);
    }
    void swap() override {
        apply(static_cast<OdDbGroup&>(*stub->object));
        stub->database->impl().tellModified(*stub);
    }

private:
    OdDbStub* stub;
    std::size_t first, middle, last;
};

OdDbGroup::OdDbGroup() { content = tagsOfNewGroup(); }

OdString OdDbGroup::name() const {
    if (!database())
        return pendingName;
    const OdDbDictionaryPtr dictionary = ownerOf(*this, OdDb::kForRead);
    return dictionary.isNull() ? OdString() : dictionary->nameAt(objectId());
}

void OdDbGroup::rename(const OdString& newName) {
    const OdDbDictionaryPtr dictionary = database() ? ownerOf(*this, OdDb::kForWrite) : OdDbDictionaryPtr();
    pendingName = newName;
    const OdString oldName = dictionary.isNull() ? OdString() : dictionary->nameAt(objectId());
    if (!oldName.isEmpty())
        dictionary->setName(oldName, newName);
}

void OdDbGroup::setName(const OdString& newName) {
    if (name() == newName)
        return;
    assertWriteEnabled();
    rename(newName);
    if (isAnonymous())
        setTag(kUnnamed, "0");
}

void OdDbGroup::setTag(int code, std::string_view value) {
    const std::size_t found = content.find(kMarker, code);
    DxfTagList tag = content.part({0, 0});
    tag.append(code, value);
    if (found == DxfTagList::npos)
        splice(content.endOf(kMarker), 0, std::move(tag));
    else
        splice(found, 1, std::move(tag));
}

OdString OdDbGroup::description() const {
    const std::size_t found = content.find(kMarker, kDescription);
    return found == DxfTagList::npos ? OdString() : codec().decode(content[found].value());
}

void OdDbGroup::setDescription(const OdString& text) { setTag(kDescription, codec().encode(text)); }

bool OdDbGroup::isSelectable() const {
    const std::size_t found = content.find(kMarker, kSelectable);
    return found == DxfTagList::npos || dxfInteger(content[found].value()) != 0;
}

void OdDbGroup::setSelectable(bool selectable) { setTag(kSelectable, selectable ? "1" : "0"); }

bool OdDbGroup::isAnonymous() const {
    const std::size_t found = content.find(kMarker, kUnnamed);
    return found != DxfTagList::npos && dxfInteger(content[found].value()) != 0;
}

void OdDbGroup::setAnonymous() {
    if (isAnonymous())
        return;
    setTag(kUnnamed, "1");
    rename(odDbNewAnonymousName());
}

bool OdDbGroup::isNotAccessible() const { return isErased() || name().find(L'|') >= 0; }

void OdDbGroup::fillCache() const {
    if (cached)
        return;
    members.clear();
    memberTags.clear();
    known.clear();
    const DxfTagList::Range range = content.subclass(kMarker);
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (content[i].code != kMember)
            continue;
        members.push_back(memberAt(i));
        memberTags.push_back(i);
    }
    cached = true;
}

OdDbStub* OdDbGroup::memberAt(std::size_t tag) const {
    const OdDbHandle handle(dxfHandle(content[tag].value()));
    return database() ? database()->getOdDbObjectId(handle).getStub() : nullptr;
}

// Members at the end and another value of a tag before them, there and back, are brought into the cache;
// anything else has it made anew.
void OdDbGroup::contentSpliced(std::size_t position, std::size_t removed, std::size_t inserted) {
    const bool isBeforeMembers =
        removed == inserted && (memberTags.empty() || position + removed <= memberTags[0]);
    if (!isBeforeMembers)
        known.clear();
    cached = cached && (isBeforeMembers || (removed == 0 && joinAppended(position, inserted)) ||
                        (inserted == 0 && dropAppended(position, removed)));
}

bool OdDbGroup::joinAppended(std::size_t position, std::size_t inserted) {
    if (!memberTags.empty() && position != memberTags.back() + 1)
        return false;
    for (std::size_t tag = position; tag < position + inserted; ++tag) {
        if (content[tag].code != kMember)
            return false;
        members.push_back(memberAt(tag));
        memberTags.push_back(tag);
    }
    return true;
}

bool OdDbGroup::dropAppended(std::size_t position, std::size_t removed) {
    if (removed > memberTags.size() || removed == 0 || memberTags[memberTags.size() - removed] != position ||
        memberTags.back() != position + removed - 1)
        return false;
    members.resize(members.size() - removed);
    memberTags.resize(members.size());
    return true;
}

bool OdDbGroup::isVisible(std::size_t member) const {
    return members[member] && !members[member]->has(OdDbStub::kErased);
}

std::vector<std::size_t> OdDbGroup::visibleMembers() const {
    fillCache();
    std::vector<std::size_t> result;
    for (std::size_t i = 0; i < members.size(); ++i)
        if (isVisible(i))
            result.push_back(i);
    return result;
}

unsigned OdDbGroup::numEntities() const {
    fillCache();
    unsigned count = 0;
    for (std::size_t i = 0; i < members.size(); ++i)
        count += isVisible(i);
    return count;
}

unsigned OdDbGroup::allEntityIds(OdDbObjectIdArray& ids) const {
    fillCache();
    ids.clear();
    ids.reserve(members.size());
    for (std::size_t i = 0; i < members.size(); ++i)
        if (isVisible(i))
            ids.emplace_back(members[i]);
    return static_cast<unsigned>(ids.size());
}

bool OdDbGroup::has(const OdDbEntity* entity) const {
    fillCache();
    const OdDbStub* wanted = entity ? entity->objectId().getStub() : nullptr;
    return wanted && !wanted->has(OdDbStub::kErased) && memberSet().count(wanted) != 0;
}

const std::unordered_set<const OdDbStub*>& OdDbGroup::memberSet() const {
    if (known.empty())
        known.insert(members.begin(), members.end());
    return known;
}

void OdDbGroup::getIndex(OdDbObjectId id, unsigned& index) const {
    fillCache();
    unsigned position = 0;
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (!isVisible(i))
            continue;
        if (members[i] == id.getStub()) {
            index = position;
            return;
        }
        ++position;
    }
    throw OdError(eKeyNotFound);
}

void OdDbGroup::append(const OdDbObjectIdArray& ids) {
    if (std::any_of(ids.begin(), ids.end(), [](OdDbObjectId id) { return id.isNull(); }))
        throw OdError(eNullObjectId);
    fillCache();
    std::unordered_set<OdDbStub*> present(members.begin(), members.end());
    std::vector<OdDbStub*> joining;
    for (const OdDbObjectId id : ids)
        if (present.insert(id.getStub()).second)
            joining.push_back(id.getStub());
    splice(content.endOf(kMarker), 0, memberTagsOf(content, joining));
    if (!database()) // where handles lead nowhere
        std::copy(joining.begin(), joining.end(),
                  members.end() - static_cast<std::ptrdiff_t>(joining.size()));
}

// A file may name a member more than once.
void OdDbGroup::remove(OdDbObjectId id) {
    fillCache();
    auto found = std::find(members.begin(), members.end(), id.getStub());
    if (id.isNull() || found == members.end())
        throw OdError(eKeyNotFound);
    assertWriteEnabled();
    while (found != members.end()) {
        const auto place = static_cast<std::size_t>(found - members.begin());
        rearrange(place, members.size() - place,
                  [](auto begin, auto end) { std::rotate(begin, begin + 1, end); });
        cutOff(members.size() - 1);
        found = std::find(members.begin() + static_cast<std::ptrdiff_t>(place), members.end(), id.getStub());
    }
}

void OdDbGroup::remove(const OdDbObjectIdArray& ids) {
    std::unordered_set<const OdDbStub*> leaving;
    fillCache();
    for (const OdDbObjectId id : ids) {
        if (id.isNull() || memberSet().count(id.getStub()) == 0)
            throw OdError(eKeyNotFound);
        leaving.insert(id.getStub());
    }
    std::vector<std::ptrdiff_t> kept;
    for (std::size_t i = 0; i < members.size(); ++i)
        if (leaving.count(members[i]) == 0)
            kept.push_back(static_cast<std::ptrdiff_t>(i));
    assertWriteEnabled();
    rearrange(0, members.size(), [&kept](auto begin, auto) {
        for (std::size_t i = 0; i < kept.size(); ++i)
            begin[static_cast<std::ptrdiff_t>(i)] = begin[kept[i]];
    });
    cutOff(kept.size());
}

void OdDbGroup::clear() {
    fillCache();
    assertWriteEnabled();
    cutOff(0);
}

template <class Move> void OdDbGroup::rearrange(std::size_t first, std::size_t count, Move move) {
    fillCache();
    content.rearrange(memberTags.data() + first, count, move);
    const auto begin = members.begin() + static_cast<std::ptrdiff_t>(first);
    move(begin, begin + static_cast<std::ptrdiff_t>(count));
}

// What lies between the tags of the members stays.
void OdDbGroup::cutOff(std::size_t count) {
    std::size_t last = memberTags.size();
    while (last > count) {
        // Runs of neighbours go in one piece.
        std::size_t first = last - 1;
        while (first > count && memberTags[first - 1] + 1 == memberTags[first])
            --first;
        content.erase(memberTags[first], last - first);
        last = first;
    }
    members.resize(count);
    memberTags.resize(count);
    known.clear();
}

void OdDbGroup::changeOrder(std::unique_ptr<OdDbGroupOrderChange> change) {
    change->apply(*this);
    if (database())
        database()->impl().rememberChange(*this, std::move(change));
}

void OdDbGroup::transfer(unsigned from, unsigned to, unsigned count) {
    if (!isWriteEnabled())
        throw OdError(eNotOpenForWrite);
    const std::size_t size = numEntities();
    if (from > size || to > size || count > size - from || count > size - to)
        throw OdError_InvalidIndex();
    if (count == 0 || from == to)
        return;
    const unsigned first = std::min(from, to), last = std::max(from, to) + count;
    const unsigned middle = to < from ? from : from + count;
    if (size == members.size())
        changeOrder(std::make_unique<OdDbGroupOrderChange>(*this, first, middle, last));
    else
        transferAmongErased(first, middle, last);
}

// Erased members keep their places.
void OdDbGroup::transferAmongErased(unsigned first, unsigned middle, unsigned last) {
    const std::vector<std::size_t> visible = visibleMembers();
    std::vector<std::size_t> moved = visible;
    std::rotate(moved.begin() + first, moved.begin() + middle, moved.begin() + last);
    assertWriteEnabled();
    rearrange(0, members.size(), [&](auto begin, auto end) {
        const std::vector<typename std::iterator_traits<decltype(begin)>::value_type> former(begin, end);
        for (unsigned i = first; i < last; ++i)
            begin[static_cast<std::ptrdiff_t>(visible[i])] = former[moved[i]];
    });
}

void OdDbGroup::reverse() {
    if (!isWriteEnabled())
        throw OdError(eNotOpenForWrite);
    fillCache();
    changeOrder(std::make_unique<OdDbGroupOrderChange>(*this, 0, members.size()));
}

bool OdDbGroup::refersToErased() const {
    fillCache();
    return std::any_of(members.begin(), members.end(),
                       [](const OdDbStub* stub) { return stub && stub->has(OdDbStub::kErased); });
}

DxfTagList OdDbGroup::tagsForFile() const {
    fillCache();
    DxfTagList tags = content;
    for (std::size_t i = members.size(); i-- > 0;)
        if (members[i] && members[i]->has(OdDbStub::kErased))
            tags.erase(memberTags[i]);
    return tags;
}
