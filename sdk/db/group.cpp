#include "sdk/db/group.h"

#include "sdk/db/anonymous_names.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/dictionary.h"

#include <algorithm>
#include <unordered_set>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbGroup, OdDbObject)

namespace {
constexpr std::string_view kMarker = "AcDbGroup";
constexpr int kDescription = 300;
constexpr int kUnnamed = 70;
constexpr int kSelectable = 71;
constexpr int kMember = 340;

OdDbDictionaryPtr ownerOf(const OdDbGroup& group, OdDb::OpenMode mode) {
    return odrxQuery<OdDbDictionary>(group.ownerId().openObject(mode).get());
}
} // namespace

OdDbGroup::OdDbGroup() {
    startTags("GROUP");
    content.append(100, kMarker);
    content.append(kDescription, "");
    content.append(kUnnamed, "0");
    content.append(kSelectable, "1");
}

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
        edit().set(kMarker, kUnnamed, "0");
}

OdString OdDbGroup::description() const { return textValue(kMarker, kDescription); }

void OdDbGroup::setDescription(const OdString& text) { setTextValue(kMarker, kDescription, text); }

bool OdDbGroup::isSelectable() const {
    return content.integer(content.subclass(kMarker), kSelectable, 1) != 0;
}

void OdDbGroup::setSelectable(bool selectable) { edit().set(kMarker, kSelectable, selectable ? "1" : "0"); }

bool OdDbGroup::isAnonymous() const { return content.integer(content.subclass(kMarker), kUnnamed) != 0; }

void OdDbGroup::setAnonymous() {
    if (isAnonymous())
        return;
    edit().set(kMarker, kUnnamed, "1");
    rename(odDbNewAnonymousName());
}

bool OdDbGroup::isNotAccessible() const { return isErased() || name().find(L'|') >= 0; }

void OdDbGroup::fillCache() const {
    if (cached)
        return;
    members.clear();
    memberTags.clear();
    const DxfTagList::Range range = content.subclass(kMarker);
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (content[i].code != kMember)
            continue;
        const OdDbHandle handle(dxfHandle(content[i].value()));
        members.push_back(database() ? database()->getOdDbObjectId(handle).getStub() : nullptr);
        memberTags.push_back(i);
    }
    cached = true;
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

unsigned OdDbGroup::numEntities() const { return static_cast<unsigned>(visibleMembers().size()); }

unsigned OdDbGroup::allEntityIds(OdDbObjectIdArray& ids) const {
    ids.clear();
    for (const std::size_t member : visibleMembers())
        ids.emplace_back(members[member]);
    return static_cast<unsigned>(ids.size());
}

bool OdDbGroup::has(const OdDbEntity* entity) const {
    fillCache();
    const OdDbStub* wanted = entity ? entity->objectId().getStub() : nullptr;
    return wanted && !wanted->has(OdDbStub::kErased) &&
           std::find(members.begin(), members.end(), wanted) != members.end();
}

void OdDbGroup::getIndex(OdDbObjectId id, unsigned& index) const {
    unsigned position = 0;
    for (const std::size_t member : visibleMembers()) {
        if (members[member] == id.getStub()) {
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
    assertWriteEnabled();
    std::unordered_set<OdDbStub*> present(members.begin(), members.end());
    std::size_t place = content.subclass(kMarker).end;
    for (const OdDbObjectId id : ids) {
        if (!present.insert(id.getStub()).second)
            continue;
        content.insert(place, kMember, dxfHandleText(id.getHandle().number()));
        members.push_back(id.getStub());
        memberTags.push_back(place++);
    }
}

void OdDbGroup::remove(const OdDbObjectIdArray& ids) {
    std::unordered_set<OdDbStub*> leaving;
    fillCache();
    const std::unordered_set<OdDbStub*> present(members.begin(), members.end());
    for (const OdDbObjectId id : ids) {
        if (id.isNull() || present.count(id.getStub()) == 0)
            throw OdError(eKeyNotFound);
        leaving.insert(id.getStub());
    }
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i < members.size(); ++i)
        if (leaving.count(members[i]) == 0)
            kept.push_back(i);
    setMembers(kept);
}

void OdDbGroup::clear() { setMembers({}); }

// Member tags are taken out and put back as texts; what lies between them stays.
void OdDbGroup::setMembers(const std::vector<std::size_t>& order) {
    fillCache();
    assertWriteEnabled();
    std::vector<std::string> handles;
    for (const std::size_t member : order)
        handles.emplace_back(content[memberTags[member]].value());
    for (std::size_t i = 0; i < handles.size(); ++i)
        if (content[memberTags[i]].value() != handles[i])
            content.replace(memberTags[i], handles[i]);
    std::size_t last = memberTags.size();
    while (last > handles.size()) {
        // Runs of neighbours go in one piece.
        std::size_t first = last - 1;
        while (first > handles.size() && memberTags[first - 1] + 1 == memberTags[first])
            --first;
        content.erase(memberTags[first], last - first);
        last = first;
    }
    cached = false;
}

void OdDbGroup::transfer(unsigned from, unsigned to, unsigned count) {
    assertWriteEnabled();
    const std::vector<std::size_t> visible = visibleMembers();
    const std::size_t size = visible.size();
    if (from > size || to > size || count > size - from || count > size - to)
        throw OdError_InvalidIndex();
    std::vector<std::size_t> moved = visible;
    const auto at = [&moved](unsigned position) { return moved.begin() + position; };
    if (to < from)
        std::rotate(at(to), at(from), at(from + count));
    else
        std::rotate(at(from), at(from + count), at(to + count));
    std::vector<std::size_t> order(members.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    for (std::size_t i = 0; i < size; ++i)
        order[visible[i]] = moved[i];
    setMembers(order);
}

void OdDbGroup::reverse() {
    fillCache();
    std::vector<std::size_t> order(members.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = order.size() - 1 - i;
    setMembers(order);
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
