// Puts a drawing together for its file: unchanged records as the bytes they were read from, changed and new
// ones in their places between them.
#pragma once

#include "sdk/db/missing_handles.h"

#include <deque>

class OdDbDrawingWriter {
public:
    explicit OdDbDrawingWriter(OdDbDatabaseImpl& database) : impl(database), handles(database) {}
    // The whole file in pieces, which live as long as the writer and the unchanged database.
    std::vector<std::string_view> pieces();
    // Whether the version of the drawing has a place for all that is in it; pieces() throws otherwise. For a
    // writer that writes nothing.
    bool hasPlaceForAll();

private:
    using Stubs = std::vector<OdDbStub*>;
    void prepareHeader();
    void placeNewRecords();
    void placeNewRecord(OdDbStub& stub);
    void placeRoot(OdDbStub& root);
    bool versionLacksPlace() const;
    void writeBytes(std::string_view bytes);
    void emitOwned(std::string text);
    void emitTag(int code, std::string_view value);
    void emitFileRecord(OdDbStub& stub);
    void emitObject(OdDbStub& stub);
    void emitBlock(const OdDbStub& record);
    void emitTableHead(OdDbStub& stub);
    void openSection(std::string_view name);
    void placeMissingSections();
    void closeOpenEnds();
    void emitSeqEnd(const OdDbOpenEnd& end);
    void emitSection(const std::string& name);
    void emitHeaderSection();
    void emitMissingTables();
    void restoreLineEnds();
    std::size_t markSize() const;
    std::string_view withoutMark(const OdDbStub& stub, std::string_view bytes) const;
    bool isLeftOut(const OdDbStub& stub) const;
    bool refersToErased(OdDbStub& stub) const;
    void emitAdded(const OdDbStub& stub);
    const OdDbStub* beginOf(const std::string& sectionName) const;
    const OdDbStub* endOf(const std::string& sectionName) const;

    OdDbDatabaseImpl& impl;
    OdDbHeader header;
    std::unordered_map<const OdDbStub*, Stubs> before; // new records to write before a record of the file
    std::unordered_map<const OdDbStub*, Stubs> blocksBefore;
    std::map<std::string, Stubs> missing; // by section or table name: new records without such a place
    std::unordered_map<const OdDbStub*, std::vector<std::string>> sectionsBefore; // names of missing sections
    OdDbMissingHandles handles;
    bool writesNewHandles = false;
    bool hasNewObjects = false;
    const OdDbStub* headerBegin = nullptr;
    const OdDbStub* previewBegin = nullptr;
    std::vector<std::string_view> result;
    std::deque<std::string> texts;
};
