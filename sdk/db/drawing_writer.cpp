// Writes a drawing: what is unchanged goes out as the bytes it was read from.
#include "sdk/db/drawing_writer.h"

#include "sdk/db/block_table.h"
#include "sdk/db/handle_text.h"
#include "sdk/db/progress.h"
#include "sdk/db/sub_entities.h"
#include "sdk/db/thumbnail_section.h"
#include "sdk/dxf/line_ends.h"

#include <algorithm>

namespace {

constexpr std::size_t kRecordsOfReport = 8192; // between reports of progress

bool isTableHead(const OdDbDatabaseImpl& impl, const OdDbStub& stub) {
    return impl.typeName(stub).compare(0, 6, "TABLE:") == 0;
}

void setCount(DxfTagList& tableHead, std::ptrdiff_t count) {
    const std::size_t place = tableHead.find(70);
    if (place != DxfTagList::npos)
        tableHead.replace(place, dxfText(static_cast<std::int64_t>(count)));
}

bool isTableRecord(const OdDbDatabaseImpl& impl, const OdDbStub& stub) {
    return stub.owner && isTableHead(impl, *stub.owner);
}

} // namespace

std::vector<std::string_view> OdDbDrawingWriter::pieces() {
    placeNewRecords();
    if (versionLacksPlace())
        throw OdError(eFileWriteError,
                      impl.filename + OdString(L": a drawing of version R12 can't hold groups "
                                               L"or other objects, save it in a newer version"));
    closeOpenEnds();
    prepareHeader();
    placeMissingSections();
    headerBegin = beginOf("HEADER");
    previewBegin = beginOf("THUMBNAILIMAGE");
    const bool addsSomething = !before.empty() || !blocksBefore.empty() || !sectionsBefore.empty();
    writeBytes(std::string_view(*impl.source).substr(0, markSize()));
    for (std::size_t i = 0; i < impl.fileStubCount; ++i) {
        OdDbStub& stub = impl.stubs[i];
        if (i % kRecordsOfReport == 0)
            odDbReportProgress(OdDbProgressMeter::kWriting, double(i) / double(impl.fileStubCount));
        if (addsSomething)
            emitAdded(stub);
        emitFileRecord(stub);
    }
    if (impl.fileBytes)
        restoreLineEnds();
    odDbReportProgress(OdDbProgressMeter::kWriting, 1);
    return std::move(result);
}

// What comes before a record of the file: the ends of tables, blocks and sections, and the begin of a
// section, have something.
void OdDbDrawingWriter::emitAdded(const OdDbStub& stub) {
    const auto records = before.find(&stub);
    const auto openEnd = records == before.end() ? impl.openEnds.end() : impl.openEnds.find(&stub);
    if (openEnd != impl.openEnds.end())
        emitSeqEnd(openEnd->second);
    if (records != before.end())
        for (OdDbStub* added : records->second)
            emitObject(*added);
    const auto blocks = blocksBefore.find(&stub);
    if (blocks != blocksBefore.end())
        for (OdDbStub* added : blocks->second)
            emitBlock(*added);
    const auto sections = sectionsBefore.find(&stub);
    if (sections != sectionsBefore.end())
        for (const std::string& name : sections->second)
            emitSection(name);
}

// The end marks that are missing before new entities need handles before the header tells the next free one.
void OdDbDrawingWriter::closeOpenEnds() {
    for (auto& [record, end] : impl.openEnds)
        if (end.handle == 0 && before.count(record) != 0)
            end.handle = impl.takeHandle();
}

void OdDbDrawingWriter::emitSeqEnd(const OdDbOpenEnd& end) {
    if (isLeftOut(*end.main))
        return;
    const OdDbObjectPtr main = impl.load(*end.main);
    emitTag(0, "SEQEND");
    if (impl.fileHasHandles)
        emitTag(5, dxfHandleText(end.handle));
    if (impl.hasSubclassMarkers() && !end.main->has(OdDbStub::kNoHandle))
        emitTag(330, odDbHandleText(*end.main));
    if (impl.hasSubclassMarkers())
        emitTag(100, "AcDbEntity");
    const std::size_t layer = main->tags().find(8);
    emitTag(8, layer == DxfTagList::npos ? std::string_view("0") : main->tags()[layer].value());
}

const OdDbStub* OdDbDrawingWriter::beginOf(const std::string& sectionName) const {
    const auto found = impl.sections.find(sectionName);
    return found == impl.sections.end() ? nullptr : found->second.begin;
}

const OdDbStub* OdDbDrawingWriter::endOf(const std::string& sectionName) const {
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
    for (OdDbStub* stub : handles.unwrittenRecords())
        stub == impl.rootDictionary ? placeRoot(*stub) : placeNewRecord(*stub);
    writesNewHandles |= !handles.empty();
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

// The root is the first of all objects.
void OdDbDrawingWriter::placeRoot(OdDbStub& root) {
    const OdDbStub* begin = beginOf("OBJECTS");
    Stubs& place = begin ? before[&impl.stubs[begin->index + 1]] : missing["OBJECTS"];
    place.insert(place.begin(), &root);
}

void OdDbDrawingWriter::placeNewRecord(OdDbStub& stub) {
    if (isTableHead(impl, stub))
        return; // written with its records
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
    hasNewObjects |= !stub.has(OdDbStub::kEntity) && impl.typeName(stub) != "DICTIONARY";
    place = endOf(section);
    if (place)
        before[place].push_back(&stub);
    else
        missing[section].push_back(&stub);
}

// The oldest version has no place for dictionaries, groups and property records: better no file than one that
// has lost them. Other readers pass over such records there even in a file that has some.
bool OdDbDrawingWriter::versionLacksPlace() const { return impl.version < kVersionR13 && hasNewObjects; }

bool OdDbDrawingWriter::hasPlaceForAll() {
    placeNewRecords();
    return !versionLacksPlace();
}

void OdDbDrawingWriter::prepareHeader() {
    header = impl.header;
    if (!impl.fileHasHandles || !writesNewHandles)
        return;
    if (impl.version >= kVersionR13 && !header.find("$ACADVER"))
        header.set("$ACADVER", 1, impl.self.versionName().toUtf8());
    header.set("$HANDSEED", 5, dxfHandleText(impl.nextHandle));
}

// Of the byte order mark.
std::size_t OdDbDrawingWriter::markSize() const {
    return impl.source->compare(0, kByteOrderMark.size(), kByteOrderMark) == 0 ? kByteOrderMark.size() : 0;
}

// Sections that the file lacks come in the usual order among those that it has.
void OdDbDrawingWriter::placeMissingSections() {
    static const std::vector<std::string> order{"HEADER",   "CLASSES", "TABLES",         "BLOCKS",
                                                "ENTITIES", "OBJECTS", "THUMBNAILIMAGE", "EOF"};
    const bool hasTables = missing.lower_bound("TABLE:") != missing.lower_bound("TABLE;");
    const std::map<std::string, bool> needed{
        {"HEADER", header.isChanged() && !header.all().empty()},
        {"TABLES", hasTables},
        {"BLOCKS", missing.count("BLOCKS") != 0},
        {"ENTITIES", missing.count("ENTITIES") != 0},
        {"OBJECTS", missing.count("OBJECTS") != 0 && impl.version >= kVersionR13},
        {"THUMBNAILIMAGE", impl.newPreview && impl.version >= kVersionR13}};
    for (auto name = order.begin(); name != order.end(); ++name) {
        const auto need = needed.find(*name);
        if (need == needed.end() || !need->second || beginOf(*name))
            continue;
        const OdDbStub* next = nullptr;
        for (auto later = name; later != order.end(); ++later)
            if (const OdDbStub* begin = beginOf(*later); begin && (!next || begin->index < next->index))
                next = begin;
        sectionsBefore[next].push_back(*name);
    }
    const OdDbStub* tablesEnd = endOf("TABLES");
    if (hasTables && tablesEnd)
        sectionsBefore[tablesEnd].push_back("TABLES");
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
        writeBytes(withoutMark(stub, stub.bytes().substr(0, impl.headerStart)));
        return emitOwned(header.bytes());
    }
    if (&stub == previewBegin && impl.newPreview)
        return emitOwned(odDbThumbnailSectionText(*impl.newPreview, impl.carriageReturns, true));
    if (stub.has(OdDbStub::kChanged) || refersToErased(stub) ||
        (handles.concerns(stub) && !isTableHead(impl, stub)))
        return emitObject(stub);
    if ((!before.empty() || handles.concerns(stub)) && isTableHead(impl, stub))
        return emitTableHead(stub);
    writeBytes(withoutMark(stub, stub.bytes()));
}

// The first record of a file begins with its mark, which is written first of all.
std::string_view OdDbDrawingWriter::withoutMark(const OdDbStub& stub, std::string_view bytes) const {
    return bytes.substr(stub.index == 0 ? markSize() : 0);
}

// A table says how many records it has; that is only rewritten where it has become wrong.
void OdDbDrawingWriter::emitTableHead(OdDbStub& stub) {
    const auto headed = std::find_if(impl.tables.begin(), impl.tables.end(),
                                     [&stub](const auto& entry) { return entry.second.record == &stub; });
    const bool grows = headed != impl.tables.end() && before.count(headed->second.end) != 0;
    if (!grows && !handles.concerns(stub))
        return writeBytes(stub.bytes());
    DxfTagList tags = handles.tagsOf(stub);
    if (!grows)
        return emitOwned(tags.bytes());
    const OdDbTableContent& table = headed->second;
    const auto alive = std::count_if(table.entries.begin(), table.entries.end(),
                                     [](const OdDbStub* entry) { return !entry->has(OdDbStub::kErased); });
    setCount(tags, alive);
    emitOwned(tags.bytes());
}

void OdDbDrawingWriter::emitObject(OdDbStub& stub) { emitOwned(handles.tagsOf(stub).bytes()); }

void OdDbDrawingWriter::emitBlock(const OdDbStub& record) {
    const OdDbBlockContent& content = impl.blocks.at(&record);
    emitObject(*content.begin);
    for (OdDbStub* entity : content.entities)
        if (!entity->has(OdDbStub::kErased))
            emitObject(*entity);
    emitObject(*content.end);
}

// The last line of a file may have no end.
void OdDbDrawingWriter::openSection(std::string_view name) {
    const char* const lineEnd = impl.carriageReturns ? "\r\n" : "\n";
    if (!result.empty() && !result.back().empty() && result.back().back() != '\n' &&
        result.back() != kByteOrderMark)
        emitOwned(lineEnd);
    emitTag(0, "SECTION");
    emitTag(2, name);
}

void OdDbDrawingWriter::emitHeaderSection() {
    openSection("HEADER");
    emitOwned(header.bytes());
    emitTag(0, "ENDSEC");
}

void OdDbDrawingWriter::emitMissingTables() {
    for (const auto& [name, records] : missing) {
        if (name.compare(0, 6, "TABLE:") != 0)
            continue;
        DxfTagList head = handles.tagsOf(*records.front()->owner);
        setCount(head, static_cast<std::ptrdiff_t>(records.size()));
        emitOwned(head.bytes());
        for (OdDbStub* stub : records)
            emitObject(*stub);
        emitTag(0, "ENDTAB");
    }
}

void OdDbDrawingWriter::emitSection(const std::string& name) {
    if (name == "HEADER")
        return emitHeaderSection();
    if (name == "THUMBNAILIMAGE")
        return emitOwned(odDbThumbnailSectionText(*impl.newPreview, impl.carriageReturns, false));
    const bool isThere = beginOf(name) != nullptr;
    if (!isThere)
        openSection(name);
    if (name == "TABLES")
        emitMissingTables();
    for (OdDbStub* stub : missing[name])
        name == "BLOCKS" ? emitBlock(*stub) : emitObject(*stub);
    if (!isThere)
        emitTag(0, "ENDSEC");
}

// Of a file whose lines end with carriage returns alone.
void OdDbDrawingWriter::restoreLineEnds() {
    for (std::string& text : texts)
        dxfPutLoneReturns(text);
    const char* const begin = impl.source->data();
    for (std::string_view& piece : result)
        if (std::less_equal<>()(begin, piece.data()) &&
            std::less<>()(piece.data(), begin + impl.source->size()))
            piece = {impl.fileBytes->data() + (piece.data() - begin), piece.size()};
}
