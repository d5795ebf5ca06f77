#include "sdk/db/dictionary.h"

#include "sdk/db/anonymous_names.h"
#include "sdk/db/database_impl.h"

#include <algorithm>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbDictionary, OdDbObject)
ODRX_DEFINE_CLASS(OdDbDictionaryIterator, OdRxObject)

namespace {

constexpr std::string_view kMarker = "AcDbDictionary";
constexpr int kNameCode = 3;
constexpr int kSoftEntry = 350;
constexpr int kHardEntry = 360;

bool isEntry(const DxfTagList& tags, std::size_t at) {
    return tags[at].code == kNameCode && at + 1 < tags.size() &&
           (tags[at + 1].code == kSoftEntry || tags[at + 1].code == kHardEntry);
}

// Each name is folded once, and not in each comparison.
void sortByName(std::vector<OdDbDictionaryIterator::Entry>& list) {
    using Keyed = std::pair<std::wstring, OdDbDictionaryIterator::Entry>;
    std::vector<Keyed> keyed;
    keyed.reserve(list.size());
    for (OdDbDictionaryIterator::Entry& entry : list)
        keyed.emplace_back(odDbFoldedName(entry.name), std::move(entry));
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const Keyed& a, const Keyed& b) { return a.first < b.first; });
    for (std::size_t i = 0; i < list.size(); ++i)
        list[i] = std::move(keyed[i].second);
}

} // namespace

OdDbDictionary::OdDbDictionary() {
    startTags("DICTIONARY");
    content.append(100, kMarker);
    content.append(281, "1");
}

bool OdDbDictionary::Entry::isAlive() const { return stub && !stub->has(OdDbStub::kErased); }

void OdDbDictionary::fillCache() const {
    if (cached)
        return;
    entries.clear();
    byName.clear();
    byObject.clear();
    for (std::size_t i = 0; i < content.size(); ++i) {
        if (!isEntry(content, i))
            continue;
        const OdString name = codec().decode(content[i].value());
        const std::uint64_t handle = dxfHandle(content[i + 1].value());
        byName.emplace(odDbFoldedName(name), entries.size());
        OdDbStub* const stub = database() ? database()->getOdDbObjectId(handle).getStub() : nullptr;
        byObject.emplace(stub, entries.size());
        entries.push_back({name, stub});
        odDbNoteAnonymousName(name);
    }
    cached = true;
}

std::size_t OdDbDictionary::tagOfEntry(std::size_t entry) const {
    for (std::size_t i = 0; i < content.size(); ++i)
        if (isEntry(content, i) && entry-- == 0)
            return i;
    return DxfTagList::npos;
}

std::size_t OdDbDictionary::findEntry(const OdString& name) const {
    fillCache();
    const auto found = byName.find(odDbFoldedName(name));
    return found == byName.end() ? DxfTagList::npos : found->second;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name, OdResult* status) const {
    const std::size_t found = findEntry(name);
    const bool alive = found != DxfTagList::npos && entries[found].isAlive();
    if (status)
        *status = alive ? eOk : eKeyNotFound;
    return alive ? OdDbObjectId(entries[found].stub) : OdDbObjectId();
}

OdDbObjectPtr OdDbDictionary::getAt(const OdString& name, OdDb::OpenMode mode) const {
    return getAt(name).openObject(mode);
}

OdString OdDbDictionary::nameAt(OdDbObjectId id) const {
    fillCache();
    const auto found = id.isNull() ? byObject.end() : byObject.find(id.getStub());
    return found == byObject.end() ? OdString() : entries[found->second].name;
}

bool OdDbDictionary::isHardOwner() const { return content.integer(content.subclass(kMarker), 280) != 0; }

OdDbObjectId OdDbDictionary::setAt(const OdString& name, OdDbObject* object) {
    if (name.isEmpty())
        throw OdError(eInvalidInput, L"A dictionary entry needs a name");
    if (has(name))
        throw OdError(eDuplicateKey, name);
    assertWriteEnabled();
    OdDbObjectId id = object->objectId();
    if (id.isNull())
        id = database()->addOdDbObject(object, objectId());
    const std::size_t former = findEntry(name);
    if (former != DxfTagList::npos) {
        content.erase(tagOfEntry(former), 2);
        cached = false;
    }
    content.append(kNameCode, codec().encode(name));
    content.append(isHardOwner() ? kHardEntry : kSoftEntry, dxfHandleText(id.getHandle().number()));
    if (cached) {
        byName.emplace(odDbFoldedName(name), entries.size());
        byObject.emplace(id.getStub(), entries.size());
        entries.push_back({name, id.getStub()});
    }
    odDbNoteAnonymousName(name);
    return id;
}

OdDbObjectId OdDbDictionary::remove(const OdString& name) {
    const OdDbObjectId id = getAt(name);
    if (id.isNull())
        return {};
    edit().erase(tagOfEntry(findEntry(name)), 2);
    cached = false;
    return id;
}

void OdDbDictionary::setName(const OdString& oldName, const OdString& newName) {
    const OdDbObjectId id = getAt(oldName);
    if (id.isNull())
        throw OdError(eKeyNotFound, oldName);
    if (newName.isEmpty())
        throw OdError(eInvalidInput, L"A dictionary entry needs a name");
    const OdDbObjectId other = getAt(newName);
    if (other.isValid() && other != id)
        throw OdError(eDuplicateKey, newName);
    if (nameAt(id) == newName)
        return;
    const std::size_t entry = findEntry(oldName);
    edit().replace(tagOfEntry(entry), codec().encode(newName));
    cached = false;
}

unsigned OdDbDictionary::numEntries() const {
    fillCache();
    return static_cast<unsigned>(
        std::count_if(entries.begin(), entries.end(), [](const Entry& entry) { return entry.isAlive(); }));
}

OdDbDictionaryIteratorPtr OdDbDictionary::newIterator(OdRx::DictIterType order) const {
    fillCache();
    std::vector<OdDbDictionaryIterator::Entry> list;
    for (const Entry& entry : entries)
        if (entry.isAlive())
            list.push_back({entry.name, OdDbObjectId(entry.stub)});
    if (order == OdRx::kDictSorted)
        sortByName(list);
    return OdDbDictionaryIteratorPtr(new OdDbDictionaryIterator(std::move(list)));
}

bool OdDbDictionary::refersToErased() const {
    fillCache();
    return std::any_of(entries.begin(), entries.end(),
                       [](const Entry& entry) { return entry.stub && !entry.isAlive(); });
}

DxfTagList OdDbDictionary::tagsForFile() const {
    fillCache();
    DxfTagList tags = content;
    for (std::size_t entry = entries.size(); entry-- > 0;)
        if (entries[entry].stub && !entries[entry].isAlive())
            tags.erase(tagOfEntry(entry), 2);
    return tags;
}
