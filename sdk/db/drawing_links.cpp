// The second half of reading a drawing: header, handles and the ties between records, once all are found.
#include "sdk/db/drawing_reader.h"

#include "sdk/db/block_table.h"
#include "sdk/db/class_registry.h"
#include "sdk/dxf/value_kinds.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const wchar_t* kModelSpace = L"*Model_Space";
constexpr const wchar_t* kPaperSpace = L"*Paper_Space";
constexpr const char* kStandardTables[] = {"VPORT", "LTYPE", "LAYER",    "STYLE",       "VIEW",
                                           "UCS",   "APPID", "DIMSTYLE", "BLOCK_RECORD"};

bool isSpaceName(const OdString& name, const wchar_t* space) {
    const std::wstring folded = odDbFoldedName(name), wanted = odDbFoldedName(space);
    return folded == wanted || folded == L"$" + wanted.substr(1); // as the oldest versions write it
}

} // namespace

void OdDbDrawingReader::readHeader() {
    const auto found = impl.sections.find("HEADER");
    if (found == impl.sections.end())
        return;
    // The first two tags open the section.
    const std::string_view bytes = found->second.begin->bytes();
    DxfScanner scanner(bytes.substr(bytes.substr(0, 3) == kByteOrderMark ? 3 : 0));
    DxfTag tag;
    bool opened = false;
    while (scanner.next(tag) && !(opened && tag.code == 9))
        opened = opened || (tag.code == 2 && dxfUpperCase(dxfTrimmed(tag.value())) == "HEADER");
    const char* start = tag.code == 9 ? tag.raw : bytes.data() + bytes.size();
    impl.headerStart = static_cast<std::size_t>(start - bytes.data());
    impl.header.parse(bytes.substr(impl.headerStart), impl.source, impl.carriageReturns);
}

// Where the value of a header variable stands; the start of the file for one that is missing.
const char* OdDbDrawingReader::placeOfVariable(const char* name) const {
    const OdDbHeader::Variable* variable = impl.header.find(name);
    return variable && variable->tags.size() > 1 ? variable->tags[1].value().data() : impl.source->data();
}

void OdDbDrawingReader::readVersion() {
    // Old versions have no objects.
    const bool hasObjects = impl.sections.count("OBJECTS") != 0;
    const std::string_view name = dxfTrimmed(impl.header.value("$ACADVER", hasObjects ? "AC1015" : "AC1009"));
    const int number = name.substr(0, 2) == "AC" ? static_cast<int>(dxfInteger(name.substr(2))) : 0;
    if (number > kVersionNewest || number <= 0)
        fail(placeOfVariable("$ACADVER"),
             OdString(L"drawings of the version \"") + OdString(std::string(name).c_str(), CP_UTF8) +
                 OdString(L"\" are not supported"),
             eUnsupportedFileFormat);
    impl.version = std::max(number, 1000);
    const std::string_view page = dxfTrimmed(impl.header.value("$DWGCODEPAGE", "ANSI_1252"));
    bool known = true;
    impl.codec = impl.version >= kVersionR2007 ? DxfCodec() : DxfCodec::forCodePage(page, &known);
    if (!known)
        warn(placeOfVariable("$DWGCODEPAGE"), OdString(L"the code page \"") +
                                                  OdString(std::string(page).c_str(), CP_UTF8) +
                                                  OdString(L"\" is not known: texts are read as western"));
}

// A number that no record has, but a reference, is not free either: what gets it would be taken for the lost
// one.
std::uint64_t OdDbDrawingReader::highestReference() const {
    std::uint64_t highest = 0;
    DxfScanner scanner(scannedText);
    DxfTag tag;
    while (scanner.next(tag)) {
        const std::uint64_t handle = dxfIsReference(tag.code) ? dxfHandle(tag.value()) : 0;
        if (handle < OdDbHandleMap::kCounted)
            highest = std::max(highest, handle);
    }
    return highest;
}

// Records without a handle of their own get one that the file doesn't use.
void OdDbDrawingReader::numberTheRest() {
    impl.fileHasHandles = impl.version >= kVersionR13 || impl.handles.highest() > 0;
    const std::uint64_t seed = dxfHandle(impl.header.value("$HANDSEED", "0"));
    impl.nextHandle = std::max(impl.handles.highest() + 1, seed < OdDbHandleMap::kCounted ? seed : 0);
    if (impl.fileHasHandles && !unnumbered.empty())
        impl.nextHandle = std::max(impl.nextHandle, highestReference() + 1);
    for (OdDbStub* stub : unnumbered) {
        stub->set(OdDbStub::kNoHandle, true);
        stub->handle = impl.takeHandle();
        impl.handles.insert(stub);
    }
}

void OdDbDrawingReader::addMissingTables() {
    for (const char* name : kStandardTables) {
        OdDbTableContent& table = impl.tables[name];
        if (table.record)
            continue;
        const std::string typeTitle = std::string("TABLE:") + name;
        const auto object = odrxCast<OdDbObject>(odDbClassForDxfName(typeTitle, false)->create());
        table.record = &impl.addMissing(*object, "TABLE", name, typeTitle);
    }
    adoptBlockRecords();
}

// Block records that stand in a table of another name are blocks all the same.
void OdDbDrawingReader::adoptBlockRecords() {
    OdDbTableContent& table = impl.tables["BLOCK_RECORD"];
    for (const NamedStub& record_ : blockRecords) {
        if (record_.stub->owner == table.record)
            continue;
        warn(record_.stub->source, L"a block record outside of the table of blocks");
        record_.stub->owner = table.record;
        table.entries.push_back(record_.stub);
    }
}

OdDbStub& OdDbDrawingReader::addBlockRecord(const OdString& name) {
    OdSmartPtr<OdDbBlockTableRecord> block(new OdDbBlockTableRecord);
    block->setTextValue("AcDbBlockTableRecord", 2, name);
    OdDbTableContent& table = impl.tables["BLOCK_RECORD"];
    OdDbStub& stub = impl.addUnwritten(*block, table.record);
    table.entries.push_back(&stub);
    return stub;
}

// Ties each BLOCK to its record: by name, since the oldest versions have no records at all.
void OdDbDrawingReader::linkBlocks() {
    std::unordered_map<std::wstring, OdDbStub*> records;
    for (const NamedStub& record_ : blockRecords)
        records.emplace(odDbFoldedName(impl.codec.decode(record_.name)), record_.stub);
    for (const NamedStub& begin : blockBegins) {
        const OdString name = impl.codec.decode(begin.name);
        const auto found = records.find(odDbFoldedName(name));
        const bool isFree = found != records.end() && impl.blocks.count(found->second) == 0;
        if (!isFree && impl.version >= kVersionR13)
            warn(begin.stub->source, found == records.end() ? L"a block without a block record"
                                                            : L"a second block of the same name");
        OdDbStub* owner = isFree ? found->second : &addBlockRecord(name);
        OdDbBlockContent& content = impl.blocks[owner] = std::move(parts[begin.stub]);
        content.begin->owner = owner;
        if (content.end)
            content.end->owner = owner;
        for (OdDbStub* entity : content.entities)
            entity->owner = owner;
        if (isSpaceName(name, kModelSpace) && !impl.modelSpace)
            impl.modelSpace = owner;
        if (isSpaceName(name, kPaperSpace) && !impl.paperSpace)
            impl.paperSpace = owner;
    }
}

// A file without a table of blocks may have layouts all the same, which know their blocks by handle.
void OdDbDrawingReader::addBlocksOfLayouts() {
    if (!impl.tables["BLOCK_RECORD"].entries.empty())
        return;
    for (std::size_t i = 0; i < impl.fileStubCount; ++i)
        if (impl.typeName(impl.stubs[i]) == "LAYOUT")
            addBlockOfLayout(DxfTagList::parse(impl.stubs[i].bytes(), impl.source, impl.carriageReturns));
}

void OdDbDrawingReader::addBlockOfLayout(const DxfTagList& layout) {
    const DxfTagList::Range own = layout.subclass("AcDbLayout");
    const std::size_t name = layout.find(1, own), block = layout.find(330, own);
    const std::uint64_t handle = block == DxfTagList::npos ? 0 : dxfHandle(layout[block].value());
    if (name == DxfTagList::npos || handle == 0 || handle >= OdDbHandleMap::kCounted ||
        impl.handles.find(handle))
        return;
    const bool isModel = odDbFoldedName(impl.codec.decode(layout[name].value())) == odDbFoldedName(L"Model");
    if (isModel && impl.modelSpace)
        return;
    const std::size_t papers = impl.blocksOfLayouts.size() - (impl.modelSpace ? 1 : 0);
    OdDbStub*& space = isModel ? impl.modelSpace : impl.paperSpace;
    const std::uint64_t next = std::exchange(impl.nextHandle, handle);
    const OdString number = papers == 0 ? OdString() : OdString(std::to_wstring(papers - 1));
    OdDbStub& made = addBlockRecord(isModel ? OdString(kModelSpace) : OdString(kPaperSpace) + number);
    impl.nextHandle = std::max(next, handle + 1);
    impl.blocksOfLayouts.push_back(&made);
    space = space ? space : &made;
}

void OdDbDrawingReader::linkSpaces() {
    const auto settle = [this](OdDbStub*& space, const wchar_t* name, OdDbBlockContent& loose) {
        for (const NamedStub& record_ : blockRecords)
            if (!space && isSpaceName(impl.codec.decode(record_.name), name))
                space = record_.stub;
        if (!space)
            space = &addBlockRecord(name);
        std::vector<OdDbStub*>& entities = impl.blocks[space].entities;
        entities.insert(entities.end(), loose.entities.begin(), loose.entities.end());
        for (OdDbStub* entity : loose.entities)
            entity->owner = space;
    };
    addBlocksOfLayouts();
    settle(impl.modelSpace, kModelSpace, modelEntities);
    settle(impl.paperSpace, kPaperSpace, paperEntities);
}
