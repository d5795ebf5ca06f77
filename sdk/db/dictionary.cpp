// Dictionaries keep names and handles in their tags; an index of both is made when it is first asked for.
#include "sdk/db/dictionary.h"

#include "sdk/db/anonymous_names.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/handle_text.h"

#include <algorithm>
#include <numeric>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbDictionary, OdDbObject)
ODRX_DEFINE_CLASS(OdDbDictionaryIterator, OdRxObject)

namespace {

constexpr std::string_view kMarker = "AcDbDictionary";
constexpr int kNameCode = 3;
constexpr int kHardOwnerCode = 280;
constexpr int kSoftEntry = 350;
constexpr int kHardEntry = 360;
constexpr int kExtendedData = 1000;

bool isEntry(const DxfTagList& tags, std::size_t at) {
    return tags[at].code == kNameCode && at + 1 < tags.size() &&
           (tags[at + 1].code == kSoftEntry || tags[at + 1].code == kHardEntry);
}

using Order = OdDbDictionaryIterator::Order;

// Each name is folded once, and not in each comparison.
void sortByName(const OdDbDictionaryEntries& entries, Order& order) {
    std::vector<std::wstring> folded;
    folded.reserve(entries.size());
    for (const OdDbDictionaryEntry& entry : entries)
        folded.push_back(odDbFoldedName(entry.name));
    std::stable_sort(order.begin(), order.end(),
                     [&folded](std::uint32_t a, std::uint32_t b) { return folded[a] < folded[b]; });
}

} // namespace

OdDbDictionary::OdDbDictionary() {
    startTags("DICTIONARY");
    content.append(100, kMarker);
    content.append(281, "1");
}

bool OdDbDictionaryEntry::isAlive() const { return stub && !stub->has(OdDbStub::kErased); }

void OdDbDictionary::fillCache() const {
    if (cached)
        return;
    entries = std::make_shared<OdDbDictionaryEntries>();
    orders[0] = orders[1] = nullptr;
    byName.clear();
    byObject.clear();
    distinct = true;
    dangling = 0;
    hardOwner = content.integer(kMarker, kHardOwnerCode) != 0;
    for (std::size_t i = 0; i < content.size(); ++i)
        if (isEntry(content, i))
            noteEntryAt(i);
    cached = true;
}

OdDbDictionaryEntries& OdDbDictionary::ownEntries() const {
    if (entries.use_count() > 1)
        entries = std::make_shared<OdDbDictionaryEntries>(*entries);
    orders[0] = orders[1] = nullptr;
    return *entries;
}

void OdDbDictionary::noteEntryAt(std::size_t tag) const {
    const OdString name = codec().decode(content[tag].value());
    const OdDbHandle handle(dxfHandle(content[tag + 1].value()));
    OdDbStub* const stub = database() ? database()->getOdDbObjectId(handle).getStub() : nullptr;
    distinct &= byName.emplace(odDbFoldedName(name), entries->size()).second;
    if (stub)
        distinct &= byObject.emplace(stub, entries->size()).second;
    else
        ++dangling;
    ownEntries().push_back({name, stub, tag});
    odDbNoteAnonymousName(name);
}

void OdDbDictionary::forgetLastEntry() {
    OdDbDictionaryEntries& list = ownEntries();
    const OdDbDictionaryEntry& last = list.back();
    byName.erase(odDbFoldedName(last.name));
    if (last.stub)
        byObject.erase(last.stub);
    else
        --dangling;
    list.pop_back();
}

void OdDbDictionary::renameEntryAt(std::size_t tag) {
    OdDbDictionaryEntries& list = ownEntries();
    const auto entry =
        std::lower_bound(list.begin(), list.end(), tag,
                         [](const OdDbDictionaryEntry& e, std::size_t wanted) { return e.tag < wanted; });
    if (entry == list.end() || entry->tag != tag) {
        cached = false;
        return;
    }
    byName.erase(odDbFoldedName(entry->name));
    entry->name = codec().decode(content[tag].value());
    const auto index = static_cast<std::size_t>(entry - list.begin());
    distinct &= byName.emplace(odDbFoldedName(entry->name), index).second;
}

// An entry at the end and a changed name, there and back, are brought into the cache; anything else has it
// made anew.
void OdDbDictionary::contentSpliced(std::size_t position, std::size_t removed, std::size_t inserted) {
    if (!cached || !distinct)
        cached = false;
    else if (removed == 0 && inserted == 2 && position + 2 == content.size() && isEntry(content, position))
        noteEntryAt(position);
    else if (removed == 2 && inserted == 0 && position == content.size() && !entries->empty() &&
             entries->back().tag == position)
        forgetLastEntry();
    else if (removed == 1 && inserted == 1)
        renameEntryAt(position);
    else
        cached = false;
}

std::size_t OdDbDictionary::findEntry(const OdString& name) const {
    fillCache();
    const auto found = byName.find(odDbFoldedName(name));
    return found == byName.end() ? DxfTagList::npos : found->second;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name, OdResult* status) const {
    const std::size_t found = findEntry(name);
    const bool alive = found != DxfTagList::npos && (*entries)[found].isAlive();
    if (status)
        *status = alive ? eOk : eKeyNotFound;
    return alive ? OdDbObjectId((*entries)[found].stub) : OdDbObjectId();
}

OdDbObjectPtr OdDbDictionary::getAt(const OdString& name, OdDb::OpenMode mode) const {
    return getAt(name).openObject(mode);
}

OdString OdDbDictionary::nameAt(OdDbObjectId id) const {
    fillCache();
    const auto found = id.isNull() ? byObject.end() : byObject.find(id.getStub());
    return found == byObject.end() ? OdString() : (*entries)[found->second].name;
}

DxfTagList OdDbDictionary::nameTag(const OdString& name) const {
    DxfTagList tags = content.part({0, 0});
    tags.append(kNameCode, codec().encode(name));
    return tags;
}

void OdDbDictionary::removeEntry(std::size_t entry) {
    splice((*entries)[entry].tag, 2, content.part({0, 0}));
}

// Throws before anything has changed. An entry of that name whose object is erased makes room.
OdDbObjectId OdDbDictionary::setAt(const OdString& name, OdDbObject* object) {
    if (name.isEmpty())
        throw OdError(eInvalidInput, L"A dictionary entry needs a name");
    if (has(name))
        throw OdError(eDuplicateKey, name);
    if (!isWriteEnabled())
        throw OdError(eNotOpenForWrite);
    const OdDbStub* const stub = objectId().getStub();
    if (stub && stub == database()->impl().waitingGroups && stub->has(OdDbStub::kUnwritten))
        database()->impl().enterGroups();
    OdDbObjectId id = object->objectId();
    if (id.isNull())
        id = database()->addOdDbObject(object, objectId());
    const std::size_t former = findEntry(name);
    if (former != DxfTagList::npos)
        removeEntry(former);
    fillCache();
    DxfTagList entry = nameTag(name);
    entry.append(hardOwner ? kHardEntry : kSoftEntry, odDbHandleText(*id.getStub()));
    const bool hasExtendedData = content[content.size() - 1].code >= kExtendedData;
    splice(hasExtendedData ? content.own().end : content.size(), 0, std::move(entry));
    return id;
}

OdDbObjectId OdDbDictionary::remove(const OdString& name) {
    const OdDbObjectId id = getAt(name);
    if (id.isValid())
        removeEntry(findEntry(name));
    return id;
}

// An entry of the new name whose object is erased makes room here too.
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
    const std::size_t former = findEntry(newName);
    if (former != DxfTagList::npos && !(*entries)[former].isAlive())
        removeEntry(former);
    const std::size_t place = findEntry(oldName); // may make the list anew
    splice((*entries)[place].tag, 1, nameTag(newName));
}

bool OdDbDictionary::areAllAlive() const {
    return dangling == 0 && database() && database()->impl().erasures == 0;
}

unsigned OdDbDictionary::numEntries() const {
    fillCache();
    if (areAllAlive())
        return static_cast<unsigned>(entries->size());
    return static_cast<unsigned>(std::count_if(
        entries->begin(), entries->end(), [](const OdDbDictionaryEntry& entry) { return entry.isAlive(); }));
}

std::shared_ptr<const OdDbDictionary::Order> OdDbDictionary::order(OdRx::DictIterType type) const {
    std::shared_ptr<const Order>& kept = orders[type == OdRx::kDictSorted];
    if (kept)
        return kept;
    const auto made = std::make_shared<Order>(entries->size());
    std::iota(made->begin(), made->end(), 0);
    if (type == OdRx::kDictSorted)
        sortByName(*entries, *made);
    return kept = made;
}

OdDbDictionaryIteratorPtr OdDbDictionary::newIterator(OdRx::DictIterType type) const {
    fillCache();
    std::shared_ptr<const Order> all = order(type);
    if (!areAllAlive()) {
        const auto alive = std::make_shared<Order>();
        std::copy_if(all->begin(), all->end(), std::back_inserter(*alive),
                     [this](std::uint32_t entry) { return (*entries)[entry].isAlive(); });
        all = alive;
    }
    return OdDbDictionaryIteratorPtr(new OdDbDictionaryIterator(entries, all));
}

bool OdDbDictionary::refersToErased() const {
    fillCache();
    return std::any_of(entries->begin(), entries->end(),
                       [](const OdDbDictionaryEntry& entry) { return entry.stub && !entry.isAlive(); });
}

DxfTagList OdDbDictionary::tagsForFile() const {
    fillCache();
    DxfTagList tags = content;
    for (std::size_t entry = entries->size(); entry-- > 0;)
        if ((*entries)[entry].stub && !(*entries)[entry].isAlive())
            tags.erase((*entries)[entry].tag, 2);
    return tags;
}
