// The first half of reading: one pass over the text that finds the records and their places.
#include "sdk/db/drawing_reader.h"

#include "sdk/db/progress.h"
#include "sdk/db/sub_entities.h"
#include "sdk/dxf/binary_text.h"
#include "sdk/dxf/line_ends.h"
#include "sdk/dxf/number_check.h"
#include "sdk/dxf/value_kinds.h"

#include <algorithm>

namespace {

constexpr std::size_t kBytesOfRecord = 16;         // the shortest record with a handle has about as many
constexpr std::ptrdiff_t kBytesOfReport = 1 << 19; // between reports of progress
constexpr std::uint64_t kHighestHandle = std::uint64_t{1} << 60;

// A text that ends with a section ends there, whatever blank lines follow: they are no tags.
std::string_view withoutBlankEnd(std::string_view text) {
    constexpr std::string_view sectionEnd = "ENDSEC";
    const std::size_t last = text.find_last_not_of(std::string_view(" \t\r\n\0\x1a", 6));
    const std::size_t size = last == std::string_view::npos ? 0 : last + 1;
    if (size < sectionEnd.size() || text.substr(size - sectionEnd.size(), sectionEnd.size()) != sectionEnd)
        return text;
    return text.substr(0, text.find('\n', size) == std::string_view::npos ? text.size()
                                                                          : text.find('\n', size) + 1);
}

} // namespace

void OdDbDrawingReader::read(std::string bytes) {
    checkKind(bytes);
    isBinary = isBinaryDxf(bytes);
    if (isBinary) {
        try {
            bytes = textOfBinaryDxf(bytes);
        } catch (const DxfFault& fault) {
            throw OdError(eDxfReadError, fileName + OdString(L", byte ") +
                                             OdString(std::to_wstring(fault.position - bytes.data())) +
                                             OdString(L": ") + OdString(fault.reason));
        }
    }
    keepSource(std::move(bytes));
    const std::string_view text = *impl.source;
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
    impl.warnings = notices.texts(text, isBinary);
    odDbReportProgress(OdDbProgressMeter::kReading, 1);
}

void OdDbDrawingReader::keepSource(std::string bytes) {
    if (dxfHasLoneReturns(bytes)) {
        impl.fileBytes = std::make_shared<const std::string>(bytes);
        bytes = dxfWithLineFeeds(std::move(bytes));
    }
    impl.source = std::make_shared<const std::string>(std::move(bytes));
    const std::string_view text = *impl.source;
    if (impl.fileBytes)
        warn(text.data(), L"the lines end with a carriage return alone");
    impl.handles.expectHandlesBelow(text.size() / kBytesOfRecord);
    const std::size_t firstLine = text.find('\n');
    impl.carriageReturns =
        firstLine != std::string_view::npos && firstLine > 0 && text[firstLine - 1] == '\r';
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
    constexpr std::size_t enoughForATag = 4096;
    std::string start = bytes.substr(bytes.compare(0, 3, kByteOrderMark) == 0 ? 3 : 0, enoughForATag);
    if (dxfHasLoneReturns(start))
        start = dxfWithLineFeeds(std::move(start));
    DxfScanner scanner(start);
    DxfTag tag;
    try {
        scanner.next(tag);
    } catch (const DxfFault&) {
        refuse(eBadDwgFile, L"line 1: the file is no drawing");
    }
}

void OdDbDrawingReader::scan(std::string_view text) {
    const std::size_t mark = text.substr(0, 3) == kByteOrderMark ? 3 : 0;
    scannedText = withoutBlankEnd(text);
    scannedText.remove_prefix(std::min(mark, scannedText.size()));
    DxfScanner scanner(scannedText);
    DxfTag tag;
    bool first = true;
    reported = text.data();
    safeEnd = text.size() < kDxfPlainNumber ? text.data() : text.data() + text.size() - kDxfPlainNumber;
    while (!ended && scanner.next(tag)) {
        if (tag.code != 0) {
            note(tag);
            continue;
        }
        const bool walkingOver = place == Place::Opaque && record.type == "SECTION";
        if (walkingOver && dxfTrimmed(tag.value()) == "SECTION")
            fail(record.start, L"a section without an end");
        if (walkingOver && dxfTrimmed(tag.value()) != "ENDSEC")
            continue;
        takeRecord(tag, first);
        first = false;
    }
    scannedText = scannedText.substr(0, static_cast<std::size_t>(scanner.position() - scannedText.data()));
    if (!ended)
        finishWithoutEndMark(scanner.position());
    addStub(text.data() + text.size(), OdDbStub::kStructure);
    impl.sections["EOF"].begin = &impl.stubs[impl.stubs.size() - 1];
    impl.fileStubCount = impl.stubs.size();
}

void OdDbDrawingReader::takeRecord(const DxfTag& tag, bool first) {
    if (tag.raw - reported >= kBytesOfReport)
        reportProgress(tag.raw);
    if (!first)
        finish(tag.raw);
    record = Record();
    record.start = first ? impl.source->data() : tag.raw;
    record.type = dxfTrimmed(tag.value());
    ended = place == Place::Outside && record.type == "EOF";
    if (ended && record.type.size() != tag.valueSize)
        warn(tag.raw, L"blanks around the end mark");
}

void OdDbDrawingReader::reportProgress(const char* at) {
    reported = at;
    odDbReportProgress(OdDbProgressMeter::kReading,
                       double(at - impl.source->data()) / double(impl.source->size()));
}

// A file that ends behind a whole section has lost nothing.
void OdDbDrawingReader::finishWithoutEndMark(const char* end) {
    if (record.type != "ENDSEC")
        fail(end, L"the file ends before its end mark");
    finish(end);
    warn(end, L"the file has no end mark");
    record = Record();
    record.start = end;
}

void OdDbDrawingReader::note(const DxfTag& tag) {
    if (dxfIsNumberKind(dxfValueKind(tag.code)) &&
        (tag.raw > safeEnd || tag.value().data() > safeEnd || !dxfIsPlainNumber(tag.value())))
        checkNumber(tag);
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

void OdDbDrawingReader::checkNumber(const DxfTag& tag) {
    const DxfNumberFault fault = dxfNumberFault(tag.value());
    if (fault == DxfNumberFault::None)
        return;
    constexpr std::size_t longestQuote = 40;
    const std::string quoted(dxfTrimmed(tag.value()).substr(0, longestQuote));
    const OdString code = OdString(L" for the group code ") + OdString(std::to_wstring(tag.code));
    warn(tag.value().data(),
         OdString(L"\"") + OdString(quoted.c_str(), CP_UTF8) +
             OdString(fault == DxfNumberFault::NoNumber ? L"\" is no number" : L"\" is beyond 1e100") + code);
}

// Sections that hold no records are walked over without looking into them.
void OdDbDrawingReader::enterSection(std::string_view name) {
    sectionNamed = true;
    sectionName = dxfUpperCase(name);
    if (sectionName != name)
        warn(name.data(), L"a section name in small letters");
    if (placeOf(sectionName) == Place::Opaque)
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
        fail(record.start, L"a record outside of the sections");
    if (!sectionNamed)
        fail(record.start,
             place == Place::Outside ? L"a section without a name" : L"a section within a section");
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
        fail(record.start, L"a table without an end");
    if (openBlock)
        fail(record.start, L"a block without an end");
    impl.sections[sectionName].end = &stub; // of a second one, where what is added comes last
    if (place == Place::Entities)
        noteOpenEnd(stub);
    place = Place::Outside;
    lastMain = nullptr;
}

void OdDbDrawingReader::finishTableRecord(OdDbStub& stub) {
    if (record.type == "TABLE") {
        if (openTable)
            fail(record.start, L"a table within a table");
        const std::string tableName = dxfUpperCase(record.name);
        if (tableName != record.name)
            warn(record.name.data(), L"a table name in small letters");
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
        fail(record.start, L"a record outside of the tables");
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
            fail(record.start, L"a block within a block");
        openBlock = &stub;
        parts[&stub].begin = &stub;
        blockBegins.push_back({&stub, record.name});
        registerHandle(stub);
        return;
    }
    if (!openBlock)
        fail(record.start, L"a record outside of the blocks");
    if (record.type != "ENDBLK")
        return finishEntity(stub, parts[openBlock]);
    parts[openBlock].end = &stub;
    noteOpenEnd(stub);
    registerHandle(stub);
    openBlock = nullptr;
    lastMain = nullptr;
}

// `end` is the record behind the last entity: vertices and attributes that have no end mark run into it.
void OdDbDrawingReader::noteOpenEnd(const OdDbStub& end) {
    if (lastMain && (impl.stubs[end.index - 1].owner == lastMain || impl.typeName(*lastMain) == "POLYLINE"))
        impl.openEnds[&end].main = lastMain;
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
    OdDbStub* const former = record.handle < kHighestHandle ? impl.handles.find(record.handle) : nullptr;
    if (former)
        return shareHandle(stub, *former);
    if (record.handlePlace)
        warn(record.handlePlace, L"an object with an unusable handle");
    stub.handle = 0;
    unnumbered.push_back(&stub);
}

// The first keeps the number, but an entity gives it to an object: dictionaries would lead to nothing.
void OdDbDrawingReader::shareHandle(OdDbStub& stub, OdDbStub& former) {
    warn(record.start, L"an object with the handle of another one", former.source);
    const bool isObject = place == Place::Objects;
    OdDbStub& loser = isObject && former.has(OdDbStub::kEntity) ? former : stub;
    impl.sharedHandles.add(record.handle, &loser);
    if (&loser == &former)
        impl.handles.replace(&stub);
    loser.handle = 0;
    unnumbered.push_back(&loser);
}

void OdDbDrawingReader::fail(const char* position, const OdString& reason, OdResult code) const {
    throw OdError(code, fileName + OdString(L", ") +
                            OdDbReadNotices::placeText(*impl.source, position, isBinary) + OdString(L": ") +
                            reason);
}
