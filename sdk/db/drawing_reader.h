// Finds the records of a drawing text in one pass and fills a database with their places.
#pragma once

#include "sdk/db/database_impl.h"
#include "sdk/db/read_notices.h"
#include "sdk/dxf/scanner.h"

class OdDbDrawingReader {
public:
    // `name` is for messages.
    OdDbDrawingReader(OdDbDatabaseImpl& database, OdString name)
        : impl(database), fileName(std::move(name)) {}

    // Throws OdError with the codes told at OdDbDatabase::readFile.
    void read(std::string bytes);

private:
    struct Record {
        const char* start = nullptr;
        std::string_view type;
        std::string_view name; // the first text with code 2
        std::uint64_t handle = 0;
        const char* handlePlace = nullptr;
        bool inPaperSpace = false;
    };
    struct NamedStub {
        OdDbStub* stub;
        std::string_view name;
    };
    enum class Place { Outside, Opaque, Tables, Blocks, Entities, Objects };

    void checkKind(const std::string& bytes) const;
    void keepSource(std::string bytes);
    void scan(std::string_view text);
    void takeRecord(const DxfTag& tag, bool first);
    void note(const DxfTag& tag);
    void checkNumber(const DxfTag& tag);
    void finishWithoutEndMark(const char* end);
    void noteOpenEnd(const OdDbStub& end);
    void reportProgress(const char* at);
    void finish(const char* end);
    void finishOutside(const char* end);
    void enterSection(std::string_view name);
    static Place placeOf(std::string_view name);
    void finishTableRecord(OdDbStub& stub);
    void finishBlockRecord(OdDbStub& stub);
    void finishEntity(OdDbStub& stub, OdDbBlockContent& content);
    void leaveSection(OdDbStub& stub);
    OdDbStub& addStub(const char* end, std::uint8_t flags);
    void registerHandle(OdDbStub& stub);
    void shareHandle(OdDbStub& stub, OdDbStub& former);
    std::uint16_t typeNumber(std::string_view name);

    void readHeader();
    void readVersion();
    const char* placeOfVariable(const char* name) const;
    std::uint64_t highestReference() const;
    void numberTheRest();
    void addMissingTables();
    void adoptBlockRecords();
    void linkBlocks();
    void linkSpaces();
    void addBlocksOfLayouts();
    void addBlockOfLayout(const DxfTagList& layout);
    OdDbStub& addBlockRecord(const OdString& name);

    void warn(const char* position, const OdString& reason, const char* other = nullptr) {
        notices.add(position, reason, other);
    }
    [[noreturn]] void fail(const char* position, const OdString& reason, OdResult code = eDxfReadError) const;

    OdDbDatabaseImpl& impl;
    OdString fileName;
    Record record;
    Place place = Place::Outside;
    bool ended = false;
    bool sectionNamed = false;
    OdDbTableContent* openTable = nullptr;
    OdDbStub* openBlock = nullptr; // the BLOCK
    OdDbStub* lastMain = nullptr;  // the entity that vertices and attributes belong to
    std::string sectionName;
    std::vector<NamedStub> blockRecords;
    std::vector<NamedStub> blockBegins;
    std::unordered_map<const OdDbStub*, OdDbBlockContent> parts; // by BLOCK, until the records are known
    OdDbBlockContent modelEntities, paperEntities;
    std::vector<OdDbStub*> unnumbered;
    std::uint16_t recentTypes[256] = {};
    OdDbReadNotices notices;
    bool isBinary = false;
    const char* safeEnd = nullptr; // up to here 32 bytes can be read at once
    const char* reported = nullptr;
    std::string_view scannedText; // without a byte order mark
};
