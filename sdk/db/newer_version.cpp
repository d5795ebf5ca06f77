// Objects of the old drawing are made anew, one by one, in an empty one; what refers to others by handle
// follows last.
#include "sdk/db/newer_version.h"

#include "sdk/db/block_table.h"
#include "sdk/db/class_registry.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/drawing_writer.h"
#include "sdk/db/group.h"
#include "sdk/db/upgraded_tags.h"
#include "sdk/dxf/value_kinds.h"

#include <set>

namespace {

class Upgrade {
public:
    Upgrade(OdDbDatabase& old, std::vector<OdString>& missed)
        : source(old), from(old.impl()), target(OdDbDatabase::createEmpty()), leftOut(missed) {}

    OdDbDatabasePtr run() {
        copyHeader();
        for (const char* table : {"LTYPE", "STYLE", "LAYER", "APPID", "DIMSTYLE", "VIEW", "UCS", "VPORT"})
            copyTable(table);
        makeBlocks();
        for (const auto& [block, newBlock] : blocks)
            copyEntities(*block, newBlock);
        copyGroups();
        return OdDbDatabase::readBytes(target->writeBytes());
    }

private:
    // Blanks and tabs around a number are none of it.
    std::string recoded(const DxfTag& tag) const {
        static const DxfCodec unicode;
        if (dxfIsNumberKind(dxfValueKind(tag.code)))
            return std::string(dxfTrimmed(tag.value()));
        return unicode.encode(from.codec.decode(tag.value()));
    }

    void fill(OdDbObject& object, const DxfTagList& tags) const {
        DxfTagList& content = object.edit();
        content.erase(0, content.size());
        content.append(0, tags[0].value());
        for (std::size_t i = 1; i < tags.size(); ++i)
            content.append(tags[i].code, recoded(tags[i]));
    }

    void copyHeader() {
        static const std::set<std::string_view> ownOnes{"$ACADVER", "$DWGCODEPAGE", "$HANDSEED", "$HANDLING"};
        // States of the screen and of input, which newer versions don't keep in a drawing.
        static const std::set<std::string_view> goneOnes{
            "$ATTDIA",  "$ATTREQ",   "$BLIPMODE",    "$COORDS",   "$DRAGMODE",  "$DRAGP1",
            "$DRAGP2",  "$FASTZOOM", "$FLATLAND",    "$GRIDMODE", "$GRIDUNIT",  "$OSMODE",
            "$SNAPANG", "$SNAPBASE", "$SNAPISOPAIR", "$SNAPMODE", "$SNAPSTYLE", "$SNAPUNIT",
            "$VIEWCTR", "$VIEWDIR",  "$VIEWMODE",    "$VIEWSIZE", "$VIEWTWIST"};
        OdDbHeader& header = target->impl().header;
        for (const OdDbHeader::Variable& variable : from.header.all()) {
            if (ownOnes.count(variable.name) != 0)
                continue;
            if (goneOnes.count(variable.name) != 0) {
                leftOut.push_back(OdString(L"the header value ") + OdString(variable.name.c_str(), CP_UTF8));
                continue;
            }
            DxfTagList tags;
            for (const DxfTag& tag : variable.tags)
                tags.append(tag.code, recoded(tag));
            header.put(variable.name, std::move(tags));
        }
    }

    void copyTable(const char* name) {
        const auto table = odrxCast<OdDbSymbolTable>(
            OdDbObjectId(target->impl().tables.at(name).record).safeOpenObject(OdDb::kForWrite));
        for (OdDbStub* stub : from.tables.at(name).entries) {
            if (stub->has(OdDbStub::kErased))
                continue;
            const DxfTagList tags = odDbUpgradedTableRecord(from.load(*stub)->tags());
            const auto record = odrxCast<OdDbSymbolTableRecord>(odDbClassForDxfName(name, false)->create());
            fill(*record, tags);
            const OdDbObjectId present = static_cast<const OdDbSymbolTable&>(*table).getAt(record->getName());
            if (present.isNull())
                table->add(record.get());
            else
                takeValues(present, record->tags());
        }
    }

    // A record that every new drawing has takes the values of the old one.
    static void takeValues(OdDbObjectId present, const DxfTagList& values) {
        const OdDbObjectPtr record = present.safeOpenObject(OdDb::kForWrite);
        const std::string marker(values[2].value());
        for (std::size_t i = 3; i < values.size() && values[i].code < 1000; ++i)
            if (values[i].code != 2)
                record->edit().set(marker, values[i].code, std::string(values[i].value()));
    }

    void makeBlocks() {
        blocks.emplace_back(from.modelSpace, target->getModelSpaceId());
        blocks.emplace_back(from.paperSpace, target->getPaperSpaceId());
        const auto table =
            odrxCast<OdDbBlockTable>(target->getBlockTableId().safeOpenObject(OdDb::kForWrite));
        for (OdDbStub* stub : from.tables.at("BLOCK_RECORD").entries) {
            if (stub->has(OdDbStub::kErased) || stub == from.modelSpace || stub == from.paperSpace)
                continue;
            const auto old = odrxCast<OdDbBlockTableRecord>(from.load(*stub));
            OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
            block->setName(old->getName());
            const OdDbObjectId id = table->add(block.get());
            block->setOrigin(old->origin());
            block->setBlockFlags(old->blockFlags());
            block->setPathName(old->pathName());
            blocks.emplace_back(stub, id);
        }
    }

    // Vertices and attributes follow their entity, as they stand in the file.
    void copyEntities(OdDbStub& block, OdDbObjectId newBlock) {
        const auto space = odrxCast<OdDbBlockTableRecord>(newBlock.safeOpenObject(OdDb::kForWrite));
        for (OdDbStub* entity : from.blocks[&block].entities) {
            if (entity->has(OdDbStub::kErased))
                continue;
            copyEntity(*entity, *space);
            for (std::size_t i = entity->index + 1; i < from.stubs.size() && from.stubs[i].owner == entity;
                 ++i)
                copyEntity(from.stubs[i], *space);
        }
    }

    void copyEntity(OdDbStub& stub, OdDbBlockTableRecord& space) {
        const DxfTagList tags = odDbUpgradedEntity(from.load(stub)->tags());
        const auto entity = odrxCast<OdDbEntity>(odDbClassForDxfName(tags[0].value(), true)->create());
        fill(*entity, tags);
        copies[stub.handle] = space.appendOdDbEntity(entity.get());
    }

    void copyGroups() {
        const auto root = odrxCast<OdDbDictionary>(source.getNamedObjectsDictionaryId().safeOpenObject());
        for (auto it = root->newIterator(); !it->done(); it->next())
            if (it->objectId() != source.getGroupDictionaryId())
                leftOut.push_back(OdString(L"the dictionary entry ") + it->name());
        const auto old = odrxQuery<OdDbDictionary>(source.getGroupDictionaryId().openObject().get());
        if (old.isNull())
            return;
        const auto groups =
            odrxCast<OdDbDictionary>(target->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
        for (auto it = old->newIterator(); !it->done(); it->next())
            if (const auto group = odrxQuery<OdDbGroup>(it->getObject().get()); !group.isNull())
                copyGroup(*groups, it->name(), *group);
    }

    void copyGroup(OdDbDictionary& groups, const OdString& name, const OdDbGroup& old) {
        OdDbGroupPtr group(new OdDbGroup);
        groups.setAt(name, group.get());
        group->setDescription(old.description());
        group->setSelectable(old.isSelectable());
        if (old.isAnonymous())
            group->edit().set("AcDbGroup", 70, "1");
        OdDbObjectIdArray members;
        old.allEntityIds(members);
        for (OdDbObjectId& member : members)
            member = copies[member.getHandle().number()];
        group->append(members);
    }

    OdDbDatabase& source;
    OdDbDatabaseImpl& from;
    OdDbDatabasePtr target;
    std::vector<OdString>& leftOut;
    std::vector<std::pair<OdDbStub*, OdDbObjectId>> blocks;
    std::map<std::uint64_t, OdDbObjectId> copies; // by the handle in the old drawing
};

} // namespace

bool odDbNeedsNewerVersion(OdDbDatabase& database) {
    return database.impl().version < kVersionR13 && !OdDbDrawingWriter(database.impl()).hasPlaceForAll();
}

OdDbDatabasePtr odDbInNewerVersion(OdDbDatabase& database, std::vector<OdString>& leftOut) {
    if (database.impl().version >= kVersionR13)
        throw OdError(eInvalidInput, L"Only drawings of version R12 and older are made newer");
    return Upgrade(database, leftOut).run();
}
