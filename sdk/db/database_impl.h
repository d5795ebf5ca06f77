// The inside of a database, for the files of this folder.
#pragma once

#include "sdk/db/change_log.h"
#include "sdk/db/database.h"
#include "sdk/db/file_dependency.h"
#include "sdk/db/header.h"
#include "sdk/db/object.h"
#include "sdk/db/reactor.h"
#include "sdk/db/shared_handles.h"
#include "sdk/db/stub.h"
#include "sdk/dxf/codec.h"
#include "sdk/rx/file_bytes.h"

#include <chrono>
#include <map>
#include <optional>
#include <unordered_map>

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kVersionR12 = 1009;
constexpr int kVersionR13 = 1012;
constexpr int kVersionR2000 = 1015;
constexpr int kVersionR2004 = 1018;
constexpr int kVersionR2007 = 1021; // texts are UTF-8 from here on
constexpr int kVersionNewest = 1032;

struct OdDbBlockContent {
    OdDbStub* begin = nullptr; // BLOCK; null while the block has none
    OdDbStub* end = nullptr;   // ENDBLK
    std::vector<OdDbStub*> entities;
    OdDbDatabasePtr xrefDatabase;
    OdGeExtents3d extents; // true while extentsChange is the database's changeCount
    std::uint64_t extentsChange = static_cast<std::uint64_t>(-1);
    bool measuring = false;
};

struct OdDbTableContent {
    OdDbStub* record = nullptr;
    OdDbStub* end = nullptr; // ENDTAB
    std::vector<OdDbStub*> entries;
    std::unordered_map<std::wstring, OdDbStub*> byName; // empty until somebody looks for a name
};

// Vertices or attributes without the end mark that belongs behind them.
struct OdDbOpenEnd {
    OdDbStub* main = nullptr; // the entity that they belong to
    std::uint64_t handle = 0; // of the mark that is written; 0 until it is
};

struct OdDbSection {
    OdDbStub* begin = nullptr;
    OdDbStub* end = nullptr;
};

// Names are equal when this is.
std::wstring odDbFoldedName(const OdString& name);

class OdDbDatabaseImpl {
public:
    explicit OdDbDatabaseImpl(OdDbDatabase& database) : self(database) {}
    ~OdDbDatabaseImpl();

    OdDbDatabase& self;
    std::shared_ptr<const std::string> source;
    std::shared_ptr<const std::string>
        fileBytes; // where they differ from the source: by line ends, see there
    bool carriageReturns = false;
    bool fileHasHandles = true;
    DxfCodec codec;
    int version = kVersionR12;
    OdString filename;
    OdFileStamp fileStamp; // of the file when it was read or last written
    std::vector<OdString> warnings;
    OdDbHeader header;
    std::size_t headerStart = 0; // of the first variable in the header section's record
    OdDbChangeLog log;
    std::uint64_t savedState = 0;
    bool headerModified = false;           // a header value was set since the last save
    std::optional<std::string> newPreview; // bitmap set since the drawing was read
    void headerSaved() { headerModified = false; }
    OdFileDependencyManager dependencies;
    std::map<std::wstring, OdResBufPtr> sessionVariables;
    using Clock = std::chrono::steady_clock;
    Clock::time_point openedAt = Clock::now();
    // Total editing time, finer than the milliseconds of a date: what is rounded at each of many quick saves
    // would be lost.
    double editingDays(Clock::time_point until = Clock::now()) const;
    std::vector<OdDbDatabaseReactor*> reactors;
    OdDbStub* activeViewport = nullptr;

    OdDbStubStore stubs;
    std::size_t fileStubCount = 0;
    OdDbHandleMap handles;
    OdDbSharedHandles sharedHandles;
    std::uint64_t nextHandle = 1;
    std::uint64_t takeHandle();     // one that is free
    std::vector<OdDbStub*> changed; // each record that was ever changed or new, once
    std::unordered_map<const OdDbStub*, OdDbOpenEnd> openEnds; // by the record behind them
    std::map<std::string, OdDbSection> sections;
    std::map<std::string, OdDbTableContent> tables;
    std::unordered_map<const OdDbStub*, OdDbBlockContent> blocks;
    OdDbStub* rootDictionary = nullptr;
    OdDbStub* waitingGroups = nullptr; // a group dictionary that was asked for; unwritten while it is empty
    OdDbStub* modelSpace = nullptr;
    OdDbStub* paperSpace = nullptr;
    std::vector<OdDbStub*> blocksOfLayouts; // that the file lacks although its layouts refer to them
    std::size_t erasures = 0;               // objects that are erased now
    std::uint64_t changeCount = 0;          // grows with every change, undo and abort included

    std::uint16_t typeNumber(std::string_view name);
    const std::string& typeName(const OdDbStub& stub) const { return typeNames[stub.type]; }
    bool hasTypeName(std::uint16_t number, std::string_view name) const {
        return number < typeNames.size() && typeNames[number] == name;
    }
    OdRxClass* classOf(const OdDbStub& stub) const;
    OdDbObjectPtr load(OdDbStub& stub);
    bool hasSubclassMarkers() const { return version >= kVersionR13; }

    // Gives a new object its stub and handle, and has the creation undone on undo and abort.
    OdDbStub& add(OdDbObject& object, OdDbStub* owner);
    // The same for one that stands for something the file's version doesn't write; never undone.
    OdDbStub& addUnwritten(OdDbObject& object, OdDbStub* owner);
    void setWritten(OdDbStub& stub); // one that was added as unwritten; recorded
    void enterGroups();              // before something is put into the dictionary that waits
    // A table that the file lacks.
    OdDbStub& addMissing(OdDbObject& object, std::string_view dxfName, std::string_view name,
                         std::string_view typeTitle);
    void appendEntity(OdDbStub& block, OdDbObject& entity);
    void rememberImage(OdDbObject& object);
    void splice(OdDbObject& object, std::size_t position, std::size_t count, DxfTagList tags); // recorded
    // For a change that has just been made in the object's tags and knows its own way back.
    void rememberChange(OdDbObject& object, std::unique_ptr<OdDbChange> change);
    // For a change that is no step of its own and that undo passes over.
    DxfTagList& editUnrecorded(OdDbObject& object);
    void tellModified(OdDbStub& stub);
    void setErased(OdDbStub& stub, bool erased); // recorded
    void applyErased(OdDbStub& stub, bool erased);
    void setXrefDatabase(OdDbStub& block, OdDbDatabasePtr loaded); // recorded
    OdDbTableContent& tableOf(const OdDbStub& table);
    void forgetNames(const OdDbStub* table);

    template <class Call> void notify(Call call) {
        const std::vector<OdDbDatabaseReactor*> present = reactors;
        for (OdDbDatabaseReactor* reactor : present)
            call(*reactor);
    }

private:
    void attach(OdDbObject& object, OdDbStub& stub);
    void noteChanged(OdDbStub& stub);
    void adaptTags(OdDbObject& object, const OdDbStub& stub);
    std::vector<std::string> typeNames;
    std::unordered_map<std::string, std::uint16_t> typeNumbers;
};
