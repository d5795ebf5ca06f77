// References lead from changed records to others, and from these to their owners, until all have a handle.
#include "sdk/db/missing_handles.h"

#include "sdk/db/handle_text.h"
#include "sdk/dxf/value_kinds.h"

namespace {

constexpr int kHandle = 5;
constexpr int kHandleOfDimStyle = 105;
constexpr int kOwner = 330;
constexpr int kMarker = 100;

} // namespace

OdDbMissingHandles::OdDbMissingHandles(OdDbDatabaseImpl& database) : impl(database) {
    if (!impl.fileHasHandles)
        return;
    for (OdDbStub* stub : impl.changed)
        if (!stub->has(OdDbStub::kErased) && !stub->has(OdDbStub::kUnwritten) && isOtherThanInFile(*stub))
            lookThrough(*stub);
    followReferences();
    if (loserIsWanted) {
        lookThroughGroups();
        followReferences();
    }
}

// What was changed and undone refers to what it did before, and nothing has to be renumbered for that.
bool OdDbMissingHandles::isOtherThanInFile(OdDbStub& stub) const {
    return impl.sharedHandles.empty() || impl.load(stub)->tagsForFile().bytes() != stub.bytes();
}

void OdDbMissingHandles::followReferences() {
    while (!open.empty()) {
        OdDbStub& stub = *open.back();
        open.pop_back();
        if (impl.hasSubclassMarkers())
            want(stub.owner);
        if (stub.has(OdDbStub::kUnwritten))
            lookThrough(stub);
    }
}

void OdDbMissingHandles::lookThrough(OdDbStub& stub) {
    const OdDbObjectPtr object = impl.load(stub);
    for (const DxfTag& tag : object->tags())
        if (dxfIsReference(tag.code))
            wantNumber(dxfHandle(tag.value()));
}

// Others that have the number in the file get another one there, or who reads it may take them for this one.
void OdDbMissingHandles::wantNumber(std::uint64_t number) {
    want(impl.handles.find(number));
    for (OdDbStub* loser : impl.sharedHandles.losersOf(number)) {
        loserIsWanted = true;
        want(loser);
    }
}

// An entity that is renumbered may be a member of groups that are not changed themselves.
void OdDbMissingHandles::lookThroughGroups() {
    for (std::size_t i = 0; i < impl.fileStubCount; ++i) {
        OdDbStub& stub = impl.stubs[i];
        if (stub.has(OdDbStub::kErased) || impl.typeName(stub) != "GROUP")
            continue;
        wanted.insert(&stub);
        lookThrough(stub);
    }
}

void OdDbMissingHandles::want(OdDbStub* stub) {
    const bool isThere = !stub || (!stub->has(OdDbStub::kNoHandle) && !stub->has(OdDbStub::kUnwritten));
    if (isThere || stub->has(OdDbStub::kErased) || !wanted.insert(stub).second)
        return;
    open.push_back(stub);
    if (stub->has(OdDbStub::kUnwritten))
        unwritten.push_back(stub);
    if (stub == impl.tables.at("BLOCK_RECORD").record)
        for (OdDbStub* block : impl.blocksOfLayouts)
            want(block);
}

DxfTagList OdDbMissingHandles::tagsOf(OdDbStub& stub) const {
    DxfTagList tags = impl.load(stub)->tagsForFile();
    if (!concerns(stub) || !stub.has(OdDbStub::kNoHandle))
        return tags;
    const std::string handle = dxfHandleText(stub.handle);
    const int code = impl.typeName(stub) == "DIMSTYLE" ? kHandleOfDimStyle : kHandle;
    const std::size_t found = tags.find(code);
    if (found != DxfTagList::npos)
        tags.replace(found, handle);
    else
        tags.insert(1, code, handle);
    if (impl.hasSubclassMarkers())
        addOwner(stub, tags);
    return tags;
}

void OdDbMissingHandles::addOwner(const OdDbStub& stub, DxfTagList& tags) const {
    const std::size_t marker = std::min(tags.find(kMarker), tags.own().end);
    const bool isKnown = stub.owner || !stub.has(OdDbStub::kEntity);
    if (!isKnown || tags.find(kOwner, {0, marker}) != DxfTagList::npos)
        return;
    const bool hasMarker = marker != tags.own().end;
    tags.insert(hasMarker ? marker : 2, kOwner, stub.owner ? odDbHandleText(*stub.owner) : "0");
}
