// Writes a drawing: what is unchanged goes out as the bytes it was read from.
#include "sdk/db/drawing_writer.h"

#include "sdk/db/block_table.h"
#include "sdk/db/progress.h"
#include "sdk/db/sub_entities.h"
#include "sdk/db/thumbnail_section.h"

#include <algorithm>

namespace {

constexpr std::size_t kRecordsOfReport = 8192; // between reports of progress

bool isTableRecord(const OdDbDatabaseImpl& impl, const OdDbStub& stub) {
    return stub.owner && impl.typeName(*stub.owner).compare(0, 6, "TABLE:") == 0;
}

} // namespace

std::vector<std::string_view> OdDbDrawingWriter::pieces() {
    placeNewRecords();
    if (versionLacksPlace())
        throw OdError(eFileWriteError,
                      impl.filename + OdString(L": a drawing of version R12 can't hold groups "
                                               L"or other objects, save it in a newer version"));
    prepareHeader();
    if (header.isChanged() && impl.sections.count("HEADER") == 0)
        emitHeaderSection();
    headerBegin = beginOf("HEADER");
    previewBegin = beginOf("THUMBNAILIMAGE");
    const OdDbStub* fileEnd = beginOf("EOF");
    for (std::size_t i = 0; i < impl.fileStubCount; ++i) {
        OdDbStub& stub = impl.stubs[i];
        if (i % kRecordsOfReport == 0)
            odDbReportProgress(OdDbProgressMeter::kWriting, double(i) / double(impl.fileStubCount));
        if (!before.empty() || !blocksBefore.empty())
            emitAdded(stub);
        if (&stub == fileEnd)
            emitMissingSections();
        emitFileRecord(stub);
    }
    odDbReportProgress(OdDbProgressMeter::kWriting, 1);
    return std::move(result);
}

// What comes before a record of the file; only ends of tables, blocks and sections have something.
void OdDbDrawingWriter::emitAdded(const OdDbStub& stub) {
    const auto records = before.find(&stub);
    if (records != before.end())
        for (OdDbStub* added : records->second)
            emitObject(*added);
    const auto blocks = blocksBefore.find(&stub);
    if (blocks != blocksBefore.end())
        for (OdDbStub* added : blocks->second)
            emitBlock(*added);
}

const OdDbStub* OdDbDrawingWriter::beginOf(const char* sectionName) const {
    const auto found = impl.sections.find(sectionName);
    return found == impl.sections.end() ? nullptr : found->second.begin;
}

const OdDbStub* OdDbDrawingWriter::endOf(const char* sectionName) const {
    const auto found = impl.sections.find(sectionName);
    return found == impl.sections.end() ? nullptr : found->second.end;
}

void OdDbDrawingWriter::placeNewRecords() {
    for (std::size_t i = impl.fileStubCount; i < impl.stubs.size(); ++i) {
        OdDbStub& stub = impl.stubs[i];
        if (stub.has(OdDbStub::kErased) || stub.has(OdDbStub::kUnwritten))
            continue;
        placeNewRecord(stub);
        writesNewHandles = true;
    }
    for (const auto& [record, content] : impl.blocks) {
        if (!content.begin || content.begin->source || content.begin->has(OdDbStub::kErased))
            continue;
        OdDbStub* owner = content.begin->owner;
        if (const OdDbStub* end = endOf("BLOCKS"))
            blocksBefore[end].push_back(owner);
        else
            missing["BLOCKS"].push_back(owner);
    }
    for (auto& [place, records] : blocksBefore)
        std::sort(records.begin(), records.end(),
                  [](const OdDbStub* a, const OdDbStub* b) { return a->index < b->index; });
}

void OdDbDrawingWriter::placeNewRecord(OdDbStub& stub) {
    const OdDbStub* place = nullptr;
    const char* section = "OBJECTS";
    if (isTableRecord(impl, stub)) {
        OdDbTableContent& table = impl.tableOf(*stub.owner);
        if (table.end)
            before[table.end].push_back(&stub);
        else
            missing[impl.typeName(*table.record)].push_back(&stub);
        return;
    }
    if (stub.has(OdDbStub::kEntity)) {
        const auto block = impl.blocks.find(stub.owner);
        const bool inSpace = stub.owner == impl.modelSpace || stub.owner == impl.paperSpace;
        if (block == impl.blocks.end() || &stub == block->second.begin || &stub == block->second.end)
            return; // written with the entity or the block that it belongs to
        section = "ENTITIES";
        if (!inSpace) {
            if (block->second.end && block->second.end->source)
                before[block->second.end].push_back(&stub);
            return;
        }
    }
    place = endOf(section);
    if (place)
        before[place].push_back(&stub);
    else
        missing[section].push_back(&stub);
}

// The oldest version has no place for dictionaries, groups and property records: better no file than one that
// has lost them.
bool OdDbDrawingWriter::versionLacksPlace() const {
    const auto found = missing.find("OBJECTS");
    if (impl.version >= kVersionR13 || found == missing.end())
        return false;
    return !std::all_of(found->second.begin(), found->second.end(),
                        [this](const OdDbStub* stub) { return impl.typeName(*stub) == "DICTIONARY"; });
}

bool OdDbDrawingWriter::hasPlaceForAll() {
    placeNewRecords();
    return !versionLacksPlace();
}

void OdDbDrawingWriter::prepareHeader() {
    header = impl.header;
    if (impl.fileHasHandles && writesNewHandles)
        header.set("$HANDSEED", 5, dxfHandleText(impl.nextHandle));
}

void OdDbDrawingWriter::writeBytes(std::string_view bytes) {
    if (!result.empty() && result.back().data() + result.back().size() == bytes.data())
        result.back() = {result.back().data(), result.back().size() + bytes.size()};
    else
        result.push_back(bytes);
}

void OdDbDrawingWriter::emitOwned(std::string text) {
    texts.push_back(std::move(text));
    result.push_back(texts.back());
}

void OdDbDrawingWriter::emitTag(int code, std::string_view value) {
    emitOwned(dxfTagText(code, value, impl.carriageReturns ? "\r\n" : "\n"));
}

bool OdDbDrawingWriter::isLeftOut(const OdDbStub& stub) const {
    if (impl.erasures == 0)
        return false;
    return stub.has(OdDbStub::kErased) ||
           (stub.owner && stub.owner->has(OdDbStub::kErased) && stub.has(OdDbStub::kEntity));
}

bool OdDbDrawingWriter::refersToErased(OdDbStub& stub) const {
    if (impl.erasures == 0 || stub.has(OdDbStub::kEntity) || stub.has(OdDbStub::kStructure))
        return false;
    const std::string& type = impl.typeName(stub);
    return (type == "GROUP" || type == "DICTIONARY") && impl.load(stub)->refersToErased();
}

void OdDbDrawingWriter::emitFileRecord(OdDbStub& stub) {
    if (isLeftOut(stub))
        return;
    if (&stub == headerBegin && header.isChanged()) {
        writeBytes(stub.bytes().substr(0, impl.headerStart));
        return emitOwned(header.bytes());
    }
    if (&stub == previewBegin && impl.newPreview)
        return emitOwned(odDbThumbnailSectionText(*impl.newPreview, impl.carriageReturns, true));
    if (stub.has(OdDbStub::kChanged) || refersToErased(stub))
        return emitObject(stub);
    if (!before.empty() && impl.typeName(stub).compare(0, 6, "TABLE:") == 0)
        return emitTableHead(stub);
    writeBytes(stub.bytes());
}

// A table says how many records it has; that is only rewritten where it has become wrong.
void OdDbDrawingWriter::emitTableHead(OdDbStub& stub) {
    const auto headed = std::find_if(impl.tables.begin(), impl.tables.end(),
                                     [&stub](const auto& entry) { return entry.second.record == &stub; });
    if (headed == impl.tables.end() || before.count(headed->second.end) == 0)
        return writeBytes(stub.bytes());
    const OdDbTableContent& table = headed->second;
    DxfTagList tags = impl.load(stub)->tags();
    const auto alive = std::count_if(table.entries.begin(), table.entries.end(),
                                     [](const OdDbStub* entry) { return !entry->has(OdDbStub::kErased); });
    const std::size_t count = tags.find(70);
    if (count != DxfTagList::npos)
        tags.replace(count, dxfText(static_cast<std::int64_t>(alive)));
    emitOwned(tags.bytes());
}

void OdDbDrawingWriter::emitObject(OdDbStub& stub) { emitOwned(impl.load(stub)->tagsForFile().bytes()); }

void OdDbDrawingWriter::emitBlock(const OdDbStub& record) {
    const OdDbBlockContent& content = impl.blocks.at(&record);
    emitObject(*content.begin);
    for (OdDbStub* entity : content.entities)
        if (!entity->has(OdDbStub::kErased))
            emitObject(*entity);
    emitObject(*content.end);
}

void OdDbDrawingWriter::openSection(std::string_view name) {
    emitTag(0, "SECTION");
    emitTag(2, name);
}

void OdDbDrawingWriter::emitHeaderSection() {
    openSection("HEADER");
    emitOwned(header.bytes());
    emitTag(0, "ENDSEC");
}

void OdDbDrawingWriter::emitMissingTables() {
    bool inTables = false;
    for (const auto& [name, records] : missing) {
        if (name.compare(0, 6, "TABLE:") != 0)
            continue;
        if (!inTables)
            openSection("TABLES");
        inTables = true;
        emitObject(*records.front()->owner);
        for (OdDbStub* stub : records)
            emitObject(*stub);
        emitTag(0, "ENDTAB");
    }
    if (inTables)
        emitTag(0, "ENDSEC");
}

void OdDbDrawingWriter::emitMissingSections() {
    emitMissingTables();
    for (const char* name : {"BLOCKS", "ENTITIES", "OBJECTS"}) {
        const bool isObjects = std::string_view(name) == "OBJECTS";
        if (missing.count(name) == 0 || (isObjects && impl.version < kVersionR13))
            continue;
        openSection(name);
        if (isObjects && impl.rootDictionary && impl.rootDictionary->has(OdDbStub::kUnwritten))
            emitObject(*impl.rootDictionary);
        for (OdDbStub* stub : missing[name])
            std::string_view(name) == "BLOCKS" ? emitBlock(*stub) : emitObject(*stub);
        emitTag(0, "ENDSEC");
    }
    if (impl.newPreview && !previewBegin && impl.version >= kVersionR13)
        emitOwned(odDbThumbnailSectionText(*impl.newPreview, impl.carriageReturns, false));
}
