// The first half of reading: one pass over the text that finds the records and their places.
#include "sdk/db/drawing_reader.h"

#include "sdk/db/progress.h"
#include "sdk/db/sub_entities.h"
#include "sdk/dxf/binary_text.h"

#include <algorithm>

namespace {

constexpr std::size_t kBytesOfRecord = 16;         // the shortest record with a handle has about as many
constexpr std::ptrdiff_t kBytesOfReport = 1 << 19; // between reports of progress
constexpr std::uint64_t kHighestHandle = std::uint64_t{1} << 60;

} // namespace

void OdDbDrawingReader::read(std::string bytes) {
    checkKind(bytes);
    if (isBinaryDxf(bytes)) {
        try {
            bytes = textOfBinaryDxf(bytes);
        } catch (const DxfFault& fault) {
            throw OdError(eDxfReadError, fileName + OdString(L", byte ") +
                                             OdString(std::to_wstring(fault.position - bytes.data())) +
                                             OdString(L": ") + OdString(fault.reason));
        }
    }
    impl.source = std::make_shared<const std::string>(std::move(bytes));
    const std::string_view text = *impl.source;
    impl.handles.expectHandlesBelow(text.size() / kBytesOfRecord);
    countedTo = text.data();
    const std::size_t firstLine = text.find('\n');
    impl.carriageReturns =
        firstLine != std::string_view::npos && firstLine > 0 && text[firstLine - 1] == '\r';
    try {
        scan(text);
        readHeader();
        readVersion();
    } catch (const DxfFault& fault) {
        fail(fault.position, fault.reason);
    }
    numberTheRest();
    addMissingTables();
    linkBlocks();
    linkSpaces();
    odDbReportProgress(OdDbProgressMeter::kReading, 1);
}

void OdDbDrawingReader::checkKind(const std::string& bytes) const {
    const auto refuse = [this](OdResult code, const wchar_t* reason) {
        throw OdError(code, fileName + OdString(L": ") + OdString(reason));
    };
    if (bytes.size() > 0xFFFFFFFFu)
        refuse(eInvalidDrawing, L"files of more than 4 GB are not read");
    if (bytes.find_first_not_of(" \t\r\n") == std::string::npos)
        refuse(eInvalidDrawing, L"the file is empty");
    if (isBinaryDxf(bytes))
        return;
    if (bytes.compare(0, 3, "AC1") == 0 || bytes.compare(0, 4, "MC0.") == 0)
        refuse(eUnsupportedFileFormat, L"binary DWG drawings are not supported, save it as DXF");
    const std::size_t start = bytes.compare(0, 3, kByteOrderMark) == 0 ? 3 : 0;
    DxfScanner scanner(std::string_view(bytes).substr(start));
    DxfTag tag;
    try {
        scanner.next(tag);
    } catch (const DxfFault&) {
        refuse(eBadDwgFile, L"line 1: the file is no drawing");
    }
}

void OdDbDrawingReader::scan(std::string_view text) {
    const std::size_t mark = text.substr(0, 3) == kByteOrderMark ? 3 : 0;
    DxfScanner scanner(text.substr(mark));
    DxfTag tag;
    bool first = true;
    const char* reported = text.data();
    while (!ended && scanner.next(tag)) {
        if (tag.code != 0) {
            note(tag);
            continue;
        }
        const bool walkingOver = place == Place::Opaque && record.type == "SECTION";
        if (walkingOver && tag.value() == "SECTION")
            fail(record.start, "a section without an end");
        if (walkingOver && tag.value() != "ENDSEC")
            continue;
        if (tag.raw - reported >= kBytesOfReport) {
            reported = tag.raw;
            odDbReportProgress(OdDbProgressMeter::kReading,
                               double(reported - text.data()) / double(text.size()));
        }
        if (!first)
            finish(tag.raw);
        record = Record();
        record.start = first ? text.data() : tag.raw;
        record.type = dxfTrimmed(tag.value());
        first = false;
        ended = place == Place::Outside && record.type == "EOF";
    }
    if (!ended)
        fail(text.data() + text.size(), "the file ends before its end mark");
    addStub(text.data() + text.size(), OdDbStub::kStructure);
    impl.sections["EOF"].begin = &impl.stubs[impl.stubs.size() - 1];
    impl.fileStubCount = impl.stubs.size();
}

void OdDbDrawingReader::note(const DxfTag& tag) {
    switch (tag.code) {
    case 2:
        if (record.name.empty())
            record.name = dxfTrimmed(tag.value());
        if (record.type == "SECTION" && place == Place::Outside && !sectionNamed)
            enterSection(record.name);
        break;
    case 5:
        if (record.handle == 0 && record.type != "DIMSTYLE") {
            record.handle = dxfHandle(tag.value());
            record.handlePlace = tag.raw;
        }
        break;
    case 105:
        if (record.type == "DIMSTYLE") {
            record.handle = dxfHandle(tag.value());
            record.handlePlace = tag.raw;
        }
        break;
    case 67:
        record.inPaperSpace = dxfInteger(tag.value()) == 1;
        break;
    default:
        break;
    }
}

// Sections that hold no records are walked over without looking into them.
void OdDbDrawingReader::enterSection(std::string_view name) {
    sectionNamed = true;
    sectionName = name;
    if (placeOf(name) == Place::Opaque)
        place = Place::Opaque;
}

OdDbDrawingReader::Place OdDbDrawingReader::placeOf(std::string_view name) {
    static const std::map<std::string_view, Place> places{{"TABLES", Place::Tables},
                                                          {"BLOCKS", Place::Blocks},
                                                          {"ENTITIES", Place::Entities},
                                                          {"OBJECTS", Place::Objects}};
    const auto found = places.find(name);
    return found == places.end() ? Place::Opaque : found->second;
}

void OdDbDrawingReader::finish(const char* end) {
    if (place == Place::Outside || record.type == "SECTION")
        return finishOutside(end);
    const bool isEnd = record.type == "ENDSEC";
    const bool isEntity = place == Place::Blocks || place == Place::Entities;
    OdDbStub& stub = addStub(end, isEnd ? OdDbStub::kStructure : isEntity ? OdDbStub::kEntity : 0);
    if (isEnd)
        return leaveSection(stub);
    switch (place) {
    case Place::Tables:
        return finishTableRecord(stub);
    case Place::Blocks:
        return finishBlockRecord(stub);
    case Place::Entities:
        return finishEntity(stub, record.inPaperSpace ? paperEntities : modelEntities);
    default:
        registerHandle(stub);
        if (!impl.rootDictionary && record.type == "DICTIONARY")
            impl.rootDictionary = &stub;
    }
}

void OdDbDrawingReader::finishOutside(const char* end) {
    if (record.type != "SECTION")
        fail(record.start, "a record outside of the sections");
    if (!sectionNamed)
        fail(record.start,
             place == Place::Outside ? "a section without a name" : "a section within a section");
    OdDbStub& stub = addStub(end, OdDbStub::kStructure);
    OdDbSection& section = impl.sections[sectionName];
    if (section.begin)
        warn(record.start, L"a second section of the same name");
    else
        section.begin = &stub;
    place = placeOf(sectionName);
    sectionNamed = false;
}

void OdDbDrawingReader::leaveSection(OdDbStub& stub) {
    if (openTable)
        fail(record.start, "a table without an end");
    if (openBlock)
        fail(record.start, "a block without an end");
    OdDbSection& section = impl.sections[sectionName];
    if (!section.end)
        section.end = &stub;
    place = Place::Outside;
    lastMain = nullptr;
}

void OdDbDrawingReader::finishTableRecord(OdDbStub& stub) {
    if (record.type == "TABLE") {
        if (openTable)
            fail(record.start, "a table within a table");
        const std::string tableName(record.name);
        stub.type = typeNumber("TABLE:" + tableName);
        openTable = &impl.tables[tableName];
        if (openTable->record)
            warn(record.start, L"a second table of the same name");
        else
            openTable->record = &stub;
        registerHandle(stub);
        return;
    }
    if (!openTable)
        fail(record.start, "a record outside of the tables");
    if (record.type == "ENDTAB") {
        stub.set(OdDbStub::kStructure, true);
        if (!openTable->end)
            openTable->end = &stub;
        openTable = nullptr;
        return;
    }
    stub.owner = openTable->record;
    openTable->entries.push_back(&stub);
    registerHandle(stub);
    if (record.type == "BLOCK_RECORD")
        blockRecords.push_back({&stub, record.name});
}

void OdDbDrawingReader::finishBlockRecord(OdDbStub& stub) {
    if (record.type == "BLOCK") {
        if (openBlock)
            fail(record.start, "a block within a block");
        openBlock = &stub;
        parts[&stub].begin = &stub;
        blockBegins.push_back({&stub, record.name});
        registerHandle(stub);
        return;
    }
    if (!openBlock)
        fail(record.start, "a record outside of the blocks");
    if (record.type != "ENDBLK")
        return finishEntity(stub, parts[openBlock]);
    parts[openBlock].end = &stub;
    registerHandle(stub);
    openBlock = nullptr;
    lastMain = nullptr;
}

void OdDbDrawingReader::finishEntity(OdDbStub& stub, OdDbBlockContent& content) {
    registerHandle(stub);
    if (!odDbIsSubEntityName(record.type)) {
        content.entities.push_back(&stub);
        lastMain = &stub;
    } else if (lastMain) {
        stub.owner = lastMain;
        if (record.type == "SEQEND")
            lastMain = nullptr;
    } else {
        warn(record.start, L"a vertex or an attribute that belongs to no entity");
    }
}

std::uint16_t OdDbDrawingReader::typeNumber(std::string_view name) {
    const std::size_t slot = name.empty() ? 0
                                          : (name.size() * 31 + static_cast<unsigned char>(name.front()) * 7 +
                                             static_cast<unsigned char>(name.back())) &
                                                255;
    std::uint16_t& recent = recentTypes[slot];
    if (!impl.hasTypeName(recent, name))
        recent = impl.typeNumber(name);
    return recent;
}

OdDbStub& OdDbDrawingReader::addStub(const char* end, std::uint8_t flags) {
    OdDbStub& stub = impl.stubs.add();
    stub.database = &impl.self;
    stub.source = record.start;
    stub.sourceSize = static_cast<std::uint32_t>(end - record.start);
    stub.flags = flags;
    stub.type = typeNumber(record.type);
    return stub;
}

void OdDbDrawingReader::registerHandle(OdDbStub& stub) {
    stub.handle = record.handle;
    if (record.handle != 0 && record.handle < kHighestHandle && impl.handles.insert(&stub))
        return;
    if (record.handlePlace)
        warn(record.handlePlace, record.handle == 0 || record.handle >= kHighestHandle
                                     ? L"an object with an unusable handle"
                                     : L"an object with the handle of another one");
    stub.handle = 0;
    unnumbered.push_back(&stub);
}

long OdDbDrawingReader::lineOf(const char* position) {
    if (position < countedTo) {
        countedTo = impl.source->data();
        countedLines = 1;
    }
    countedLines += std::count(countedTo, position, '\n');
    countedTo = position;
    return countedLines;
}

void OdDbDrawingReader::warn(const char* position, const OdString& reason) {
    constexpr std::size_t mostWarnings = 200;
    if (impl.warnings.size() > mostWarnings)
        return;
    if (impl.warnings.size() == mostWarnings)
        impl.warnings.push_back(L"and more");
    else
        impl.warnings.push_back(OdString(L"line ") + OdString(std::to_wstring(lineOf(position))) +
                                OdString(L": ") + reason);
}

void OdDbDrawingReader::fail(const char* position, const char* reason) {
    throw OdError(eDxfReadError, fileName + OdString(L", line ") +
                                     OdString(std::to_wstring(lineOf(position))) + OdString(L": ") +
                                     OdString(reason));
}
