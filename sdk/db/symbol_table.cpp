// Tables of named records and the index by name that is made when a name is first looked for.
#include "sdk/db/symbol_table.h"

#include "sdk/db/database_impl.h"

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbSymbolTableRecord, OdDbObject)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbSymbolTable, OdDbObject)

namespace {

constexpr std::string_view kRecordMarker = "AcDbSymbolTableRecord";
constexpr int kNameCode = 2;

void fillNames(OdDbTableContent& content) {
    for (OdDbStub* stub : content.entries) {
        if (stub->has(OdDbStub::kErased))
            continue;
        const OdDbObjectPtr object = OdDbObjectId(stub).openObject();
        const auto record = odrxQuery<OdDbSymbolTableRecord>(object.get());
        if (!record.isNull())
            content.byName.emplace(odDbFoldedName(record->getName()), stub);
    }
}

} // namespace

OdString OdDbSymbolTableRecord::getName() const {
    // The name follows the marker of the record's own class in some tables.
    const std::size_t found = content.find(kNameCode);
    return found == DxfTagList::npos ? OdString() : codec().decode(content[found].value());
}

void OdDbSymbolTableRecord::assertNameIsFree(const OdString& name) const {
    if (!objectId().isValid())
        return;
    const auto table = odrxQuery<OdDbSymbolTable>(ownerId().openObject().get());
    if (table.isNull())
        return;
    const OdDbObjectId other = table->getAt(name);
    if (other.isValid() && other != objectId())
        throw OdError(eDuplicateKey, name);
}

void OdDbSymbolTableRecord::setName(const OdString& name) {
    assertNameIsFree(name);
    DxfTagList& tags = edit();
    const std::size_t found = tags.find(kNameCode);
    const std::string text = codec().encode(name);
    if (found != DxfTagList::npos)
        tags.replace(found, text);
    else
        tags.set(kRecordMarker, kNameCode, text);
    contentReplaced();
}

void OdDbSymbolTableRecord::contentReplaced() {
    if (database())
        database()->impl().forgetNames(ownerId().getStub());
}

OdDbSymbolTableRecordPtr OdDbSymbolTableIterator::getRecord(OdDb::OpenMode mode) const {
    return odrxCast<OdDbSymbolTableRecord>(getRecordId().openObject(mode));
}

OdDbObjectId OdDbSymbolTable::getAt(const OdString& name) const {
    OdDbTableContent& table = database()->impl().tableOf(*objectId().getStub());
    if (table.byName.empty())
        fillNames(table);
    const auto found = table.byName.find(odDbFoldedName(name));
    return found == table.byName.end() ? OdDbObjectId() : OdDbObjectId(found->second);
}

OdDbSymbolTableRecordPtr OdDbSymbolTable::getAt(const OdString& name, OdDb::OpenMode mode) const {
    return odrxCast<OdDbSymbolTableRecord>(getAt(name).openObject(mode));
}

OdDbObjectId OdDbSymbolTable::add(OdDbSymbolTableRecord* record) {
    if (has(record->getName()))
        throw OdError(eDuplicateKey, record->getName());
    OdDbDatabaseImpl& impl = database()->impl();
    OdDbTableContent& table = impl.tableOf(*objectId().getStub());
    OdDbStub& stub = impl.add(*record, objectId().getStub());
    table.entries.push_back(&stub);
    table.byName.clear();
    return OdDbObjectId(&stub);
}

OdDbSymbolTableIterator OdDbSymbolTable::newIterator() const {
    std::vector<OdDbObjectId> ids;
    for (OdDbStub* stub : database()->impl().tableOf(*objectId().getStub()).entries)
        if (!stub->has(OdDbStub::kErased))
            ids.emplace_back(stub);
    return OdDbSymbolTableIterator(std::move(ids));
}

int OdDbSymbolTable::numRecords() const {
    int count = 0;
    for (OdDbSymbolTableIterator it = newIterator(); !it.done(); it.step())
        ++count;
    return count;
}
