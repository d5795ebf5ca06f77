// Root of all that a drawing holds: an object with an id, an owner and its tags.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/dxf/tag_list.h"

class DxfCodec;

class OdDbObject : public OdRxObject {
    ODRX_DECLARE_CLASS(OdDbObject)
public:
    OdDbObject() = default;
    // References are those of callers. An object that nobody refers to is closed: no longer open for write.
    void addRef() override { ++references; }
    void release() override;
    long numRefs() const override { return references; }

    OdDbObjectId objectId() const { return OdDbObjectId(ownStub); }
    OdDbDatabase* database() const { return ownStub ? owningDatabase() : nullptr; }
    OdDbHandle getDbHandle() const { return objectId().getHandle(); }
    OdDbObjectId ownerId() const; // null outside of a database
    OdString dxfName() const;
    bool isErased() const { return ownStub && objectId().isErased(); }

    // An object outside of a database is always open for write.
    bool isWriteEnabled() const { return !ownStub || writable; }
    void upgradeOpen() { writable = true; }
    void downgradeOpen() { writable = false; }
    // false brings an erased object back. eOk, or why the object stays as it is.
    virtual OdResult erase(bool erasing = true);

    // Dictionary of extra data; null when there is none.
    OdDbObjectId extensionDictionary() const;

    // The tags, the one place of the object's data. Setters go through edit(), which throws eNotOpenForWrite
    // and remembers the state before the change.
    const DxfTagList& tags() const { return content; }
    DxfTagList& edit();
    // The tags as they are to be written: without references to erased objects.
    virtual DxfTagList tagsForFile() const { return content; }
    // Whether tagsForFile leaves something out.
    virtual bool refersToErased() const { return false; }

    OdString textValue(std::string_view subclassName, int code) const;
    OdString decoded(std::string_view value) const; // a text as it stands in a tag
    void setTextValue(std::string_view subclassName, int code, const OdString& value);

protected:
    friend class OdDbDatabaseImpl;
    friend class OdDbImageChange;
    friend class OdDbSpliceChange;
    // Starts the tags of a new object: name, handle, owner and, for an entity, its layer.
    void startTags(std::string_view name) { content.append(0, name); }
    void assertWriteEnabled();
    // Puts `tags` in the place of `count` tags and remembers no more than these: for a change of little in an
    // object of many tags.
    void splice(std::size_t position, std::size_t count, DxfTagList tags);
    // The tags were replaced as a whole: what was derived from them is no longer true.
    virtual void contentReplaced() {}
    // A few of them were: `inserted` tags stand at `position` now, in the place of `removed` ones.
    virtual void contentSpliced(std::size_t /*position*/, std::size_t /*removed*/, std::size_t /*inserted*/) {
        contentReplaced();
    }
    // Whether an unchanged object is kept when it is closed, because it is dear to read.
    virtual bool staysInMemory() const { return false; }
    // The object has just entered a database.
    virtual void enteredDatabase() {}
    const DxfCodec& codec() const;

    DxfTagList content;

private:
    OdDbDatabase* owningDatabase() const;
    OdDbStub* ownStub = nullptr;
    long references = 0;
    bool writable = false;
};
