// Opening, closing and changing of one object; every change passes through here.
#include "sdk/db/object.h"

#include "sdk/db/database.h"
#include "sdk/db/database_impl.h"

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbObject, OdRxObject)

namespace {

constexpr int kOwnerCode = 330;

const DxfCodec& unicodeCodec() {
    static const DxfCodec codec;
    return codec;
}

} // namespace

void OdDbObject::release() {
    if (--references > 0)
        return;
    writable = false;
    if (!ownStub) {
        delete this;
    } else if (!ownStub->has(OdDbStub::kChanged) && !staysInMemory()) {
        ownStub->object = nullptr;
        delete this;
    }
}

OdDbDatabase* OdDbObject::owningDatabase() const { return ownStub->database; }

OdDbObjectId OdDbObject::ownerId() const {
    if (!ownStub)
        return {};
    if (ownStub->owner)
        return OdDbObjectId(ownStub->owner);
    const std::size_t found = content.find(kOwnerCode);
    return found == DxfTagList::npos ? OdDbObjectId()
                                     : ownStub->database->getOdDbObjectId(dxfHandle(content[found].value()));
}

OdString OdDbObject::dxfName() const {
    return content.empty() ? OdString() : codec().decode(content[0].value());
}

OdResult OdDbObject::erase(bool erasing) {
    if (!ownStub)
        return eOk;
    assertWriteEnabled();
    if (isErased() != erasing)
        ownStub->database->impl().setErased(*ownStub, erasing);
    return eOk;
}

OdDbObjectId OdDbObject::extensionDictionary() const {
    for (std::size_t i = 0; ownStub && i + 1 < content.size(); ++i)
        if (content[i].code == 102 && content[i].value() == "{ACAD_XDICTIONARY")
            return ownStub->database->getOdDbObjectId(dxfHandle(content[i + 1].value()));
    return {};
}

DxfTagList& OdDbObject::edit() {
    assertWriteEnabled();
    return content;
}

void OdDbObject::assertWriteEnabled() {
    if (!isWriteEnabled())
        throw OdError(eNotOpenForWrite);
    if (ownStub)
        ownStub->database->impl().rememberImage(*this);
}

void OdDbObject::splice(std::size_t position, std::size_t count, DxfTagList tags) {
    if (!isWriteEnabled())
        throw OdError(eNotOpenForWrite);
    if (ownStub) {
        ownStub->database->impl().splice(*this, position, count, std::move(tags));
        return;
    }
    const std::size_t inserted = tags.size();
    content.exchange(position, count, tags);
    contentSpliced(position, count, inserted);
}

const DxfCodec& OdDbObject::codec() const {
    return ownStub ? ownStub->database->impl().codec : unicodeCodec();
}

OdString OdDbObject::textValue(std::string_view subclassName, int code) const {
    const std::size_t found = content.find(subclassName, code);
    return found == DxfTagList::npos ? OdString() : codec().decode(content[found].value());
}

OdString OdDbObject::decoded(std::string_view value) const { return codec().decode(value); }

void OdDbObject::setTextValue(std::string_view subclassName, int code, const OdString& value) {
    edit().set(subclassName, code, codec().encode(value));
}
