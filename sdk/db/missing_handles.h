// What has to be written because something that is written refers to it: the handles of records that have
// none in the file, and records that the file leaves out.
#pragma once

#include "sdk/db/database_impl.h"

#include <unordered_set>

class OdDbMissingHandles {
public:
    // Looks through all that was changed or is new.
    explicit OdDbMissingHandles(OdDbDatabaseImpl& database);
    bool empty() const { return wanted.empty(); }
    const std::vector<OdDbStub*>& unwrittenRecords() const { return unwritten; }
    // The tags of a record as they are to be written: with its handle and its owner, where it needs them.
    DxfTagList tagsOf(OdDbStub& stub) const;
    bool concerns(const OdDbStub& stub) const { return !wanted.empty() && wanted.count(&stub) != 0; }

private:
    bool isOtherThanInFile(OdDbStub& stub) const;
    void followReferences();
    void lookThrough(OdDbStub& stub);
    void lookThroughGroups();
    void wantNumber(std::uint64_t number);
    void want(OdDbStub* stub);
    void addOwner(const OdDbStub& stub, DxfTagList& tags) const;

    OdDbDatabaseImpl& impl;
    std::unordered_set<const OdDbStub*> wanted;
    bool loserIsWanted = false;             // one of several with one handle
    std::vector<OdDbStub*> unwritten, open; // open: not yet looked through
};
