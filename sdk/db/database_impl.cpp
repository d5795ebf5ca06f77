// What changes a database from within: new objects, erasing, and the changes that undo takes back.
#include "sdk/db/database_impl.h"

#include "sdk/db/class_registry.h"
#include "sdk/db/handle_text.h"
#include "sdk/db/symbol_table.h"
#include "sdk/dxf/unfilled_tags.h"
#include "sdk/rx/wide_text.h"

#include <QString>
#include <algorithm>
#include <utility>

std::wstring odDbFoldedName(const OdString& name) {
    std::wstring folded = name.wide();
    for (wchar_t& c : folded) {
        if (c >= 0x80)
            return odQString(folded).toCaseFolded().toStdWString();
        if (c >= L'A' && c <= L'Z')
            c += L'a' - L'A';
    }
    return folded;
}

// The tags of an object before a change.
class OdDbImageChange : public OdDbChange {
public:
    explicit OdDbImageChange(OdDbObject& changed) : stub(*changed.ownStub), image(changed.content) {}
    void swap() override {
        std::swap(stub.object->content, image);
        stub.object->contentReplaced();
        stub.database->impl().tellModified(stub);
    }

private:
    OdDbStub& stub;
    DxfTagList image;
};

// Some tags of an object in the place of others.
class OdDbSpliceChange : public OdDbChange {
public:
    OdDbSpliceChange(OdDbObject& changed, std::size_t at, std::size_t count, DxfTagList tags)
        : stub(*changed.ownStub), position(at), present(count), others(std::move(tags)) {}
    void apply() {
        const std::size_t inserted = others.size();
        stub.object->content.exchange(position, present, others);
        stub.object->contentSpliced(position, std::exchange(present, inserted), inserted);
    }
    void swap() override {
        apply();
        stub.database->impl().tellModified(stub);
    }

private:
    OdDbStub& stub;
    std::size_t position;
    std::size_t present; // tags that stand there now
    DxfTagList others;
};

namespace {

// Of a file: its tags come next.
OdDbObjectPtr unfilled(const OdRxClass& itsClass) {
    const DxfUnfilledTags tags;
    return OdDbObjectPtr(static_cast<OdDbObject*>(itsClass.create().detach()), kOdRxObjAttach);
}

class EraseChange : public OdDbChange {
public:
    explicit EraseChange(OdDbStub& changed) : stub(changed) {}
    void swap() override { stub.database->impl().applyErased(stub, !stub.has(OdDbStub::kErased)); }

private:
    OdDbStub& stub;
};

class WrittenChange : public OdDbChange {
public:
    explicit WrittenChange(OdDbStub& changed) : stub(changed) {}
    void swap() override { stub.set(OdDbStub::kUnwritten, !stub.has(OdDbStub::kUnwritten)); }

private:
    OdDbStub& stub;
};

// An entity at the end of its block's list: taken off and put back there.
class AppendChange : public OdDbChange {
public:
    AppendChange(std::vector<OdDbStub*>& changed, OdDbStub& appended) : list(changed), stub(appended) {}
    void swap() override {
        if (!list.empty() && list.back() == &stub)
            list.pop_back();
        else
            list.push_back(&stub);
    }

private:
    std::vector<OdDbStub*>& list;
    OdDbStub& stub;
};

class XrefChange : public OdDbChange {
public:
    XrefChange(OdDbBlockContent& changed, OdDbDatabasePtr former)
        : content(changed), other(std::move(former)) {}
    void swap() override { std::swap(content.xrefDatabase, other); }

private:
    OdDbBlockContent& content;
    OdDbDatabasePtr other;
};

bool isPlainText(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

OdDbDatabaseImpl::~OdDbDatabaseImpl() {
    for (std::size_t i = 0; i < stubs.size(); ++i) {
        OdDbObject* object = stubs[i].object;
        if (!object)
            continue;
        object->ownStub = nullptr;
        if (object->references == 0)
            delete object;
    }
}

std::uint16_t OdDbDatabaseImpl::typeNumber(std::string_view name) {
    const auto [found, isNew] =
        typeNumbers.try_emplace(std::string(name), static_cast<std::uint16_t>(typeNames.size()));
    if (isNew && typeNames.size() >= 65535)
        throw OdError(eInvalidDrawing, L"more than 65535 kinds of objects");
    if (isNew)
        typeNames.emplace_back(name);
    return found->second;
}

OdRxClass* OdDbDatabaseImpl::classOf(const OdDbStub& stub) const {
    return odDbClassForDxfName(typeName(stub), stub.has(OdDbStub::kEntity));
}

OdDbObjectPtr OdDbDatabaseImpl::load(OdDbStub& stub) {
    if (!stub.object) {
        OdDbObjectPtr made = unfilled(*classOf(stub));
        made->content = DxfTagList::parse(stub.bytes(), source, carriageReturns);
        made->ownStub = &stub;
        if (!sharedHandles.empty() && typeName(stub) == "GROUP")
            sharedHandles.correctMembers(made->content, handles);
        stub.object = made.get();
        return made;
    }
    return OdDbObjectPtr(stub.object);
}

void OdDbDatabaseImpl::noteChanged(OdDbStub& stub) {
    if (stub.has(OdDbStub::kChanged))
        return;
    stub.set(OdDbStub::kChanged, true);
    changed.push_back(&stub);
}

std::uint64_t OdDbDatabaseImpl::takeHandle() {
    while (handles.find(nextHandle))
        ++nextHandle;
    return nextHandle++;
}

void OdDbDatabaseImpl::attach(OdDbObject& object, OdDbStub& stub) {
    if (object.ownStub)
        throw OdError(eAlreadyInDb);
    stub.database = &self;
    stub.type = typeNumber(object.content[0].value());
    noteChanged(stub);
    stub.set(OdDbStub::kEntity, object.isKindOf(odDbEntityClass()));
    stub.object = &object;
    stub.handle = takeHandle();
    handles.insert(&stub);
    adaptTags(object, stub);
    object.ownStub = &stub;
    object.writable = true;
    object.contentReplaced();
    object.enteredDatabase();
}

// Gives the tags of a new object its handle and owner, and the line ends, code page and markers of the file.
void OdDbDatabaseImpl::adaptTags(OdDbObject& object, const OdDbStub& stub) {
    static const DxfCodec unicode;
    DxfTagList tags;
    tags.restyle(carriageReturns);
    tags.append(0, object.content[0].value());
    if (fileHasHandles)
        tags.append(typeName(stub) == "DIMSTYLE" ? 105 : 5, dxfHandleText(stub.handle));
    if (hasSubclassMarkers())
        tags.append(330, stub.owner ? odDbHandleText(*stub.owner) : "0");
    for (std::size_t i = 1; i < object.content.size(); ++i) {
        const DxfTag& tag = object.content[i];
        if (tag.code == 100 && !hasSubclassMarkers())
            continue;
        if (isPlainText(tag.value()))
            tags.append(tag.code, tag.value());
        else
            tags.append(tag.code, codec.encode(unicode.decode(tag.value())));
    }
    object.content = std::move(tags);
}

OdDbStub& OdDbDatabaseImpl::add(OdDbObject& object, OdDbStub* owner) {
    if (object.ownStub)
        throw OdError(eAlreadyInDb);
    OdDbStub& stub = stubs.add();
    stub.owner = owner;
    attach(object, stub);
    stub.set(OdDbStub::kErased, true);
    ++erasures;
    log.record(std::make_unique<EraseChange>(stub));
    applyErased(stub, false);
    return stub;
}

OdDbStub& OdDbDatabaseImpl::addUnwritten(OdDbObject& object, OdDbStub* owner) {
    OdDbStub& stub = stubs.add();
    stub.owner = owner;
    attach(object, stub);
    stub.set(OdDbStub::kUnwritten, true);
    return stub;
}

void OdDbDatabaseImpl::setWritten(OdDbStub& stub) {
    log.record(std::make_unique<WrittenChange>(stub));
    stub.set(OdDbStub::kUnwritten, false);
}

OdDbStub& OdDbDatabaseImpl::addMissing(OdDbObject& object, std::string_view dxfName, std::string_view name,
                                       std::string_view typeTitle) {
    object.startTags(dxfName);
    object.content.append(2, name);
    object.content.append(100, "AcDbSymbolTable");
    object.content.append(70, "0");
    OdDbStub& stub = addUnwritten(object, nullptr);
    stub.type = typeNumber(typeTitle);
    return stub;
}

void OdDbDatabaseImpl::appendEntity(OdDbStub& block, OdDbObject& entity) {
    OdDbStub& stub = add(entity, &block);
    std::vector<OdDbStub*>& list = blocks[&block].entities;
    log.record(std::make_unique<AppendChange>(list, stub));
    list.push_back(&stub);
}

void OdDbDatabaseImpl::tellModified(OdDbStub& stub) {
    ++changeCount;
    notify([&stub](OdDbDatabaseReactor& reactor) { reactor.objectModified(OdDbObjectId(&stub)); });
}

void OdDbDatabaseImpl::splice(OdDbObject& object, std::size_t position, std::size_t count, DxfTagList tags) {
    auto change = std::make_unique<OdDbSpliceChange>(object, position, count, std::move(tags));
    change->apply();
    rememberChange(object, std::move(change));
}

void OdDbDatabaseImpl::rememberChange(OdDbObject& object, std::unique_ptr<OdDbChange> change) {
    OdDbStub& stub = *object.ownStub;
    tellModified(stub);
    if (stub.imageEpoch == log.epoch())
        return;
    noteChanged(stub);
    log.record(std::move(change));
}

void OdDbDatabaseImpl::rememberImage(OdDbObject& object) {
    OdDbStub& stub = *object.ownStub;
    tellModified(stub);
    if (stub.imageEpoch == log.epoch())
        return;
    noteChanged(stub);
    stub.imageEpoch = log.epoch();
    log.record(std::make_unique<OdDbImageChange>(object));
}

DxfTagList& OdDbDatabaseImpl::editUnrecorded(OdDbObject& object) {
    tellModified(*object.ownStub);
    noteChanged(*object.ownStub);
    return object.content;
}

void OdDbDatabaseImpl::setErased(OdDbStub& stub, bool erased) {
    log.record(std::make_unique<EraseChange>(stub));
    applyErased(stub, erased);
}

void OdDbDatabaseImpl::applyErased(OdDbStub& stub, bool erased) {
    stub.set(OdDbStub::kErased, erased);
    erased ? ++erasures : --erasures;
    ++changeCount;
    forgetNames(stub.owner);
    notify([&stub, erased](OdDbDatabaseReactor& reactor) {
        erased ? reactor.objectErased(OdDbObjectId(&stub)) : reactor.objectAppended(OdDbObjectId(&stub));
    });
}

void OdDbDatabaseImpl::setXrefDatabase(OdDbStub& block, OdDbDatabasePtr loaded) {
    OdDbBlockContent& content = blocks[&block];
    std::swap(content.xrefDatabase, loaded);
    log.record(std::make_unique<XrefChange>(content, std::move(loaded)));
}

OdDbTableContent& OdDbDatabaseImpl::tableOf(const OdDbStub& table) {
    constexpr std::string_view prefix = "TABLE:";
    const std::string& title = typeName(table);
    const auto found = title.compare(0, prefix.size(), prefix) == 0 ? tables.find(title.substr(prefix.size()))
                                                                    : tables.end();
    if (found == tables.end())
        throw OdError(eKeyNotFound);
    return found->second;
}

void OdDbDatabaseImpl::forgetNames(const OdDbStub* table) {
    for (auto& [name, content] : tables)
        if (content.record == table)
            content.byName.clear();
}
