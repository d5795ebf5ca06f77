// Ids are stubs; what they can tell without opening the object is here.
#include "sdk/db/object_id.h"

#include "sdk/db/database_impl.h"

const OdDbObjectId OdDbObjectId::kNull;

OdDbHandle::OdDbHandle(const OdString& hexadecimal) : value(dxfHandle(hexadecimal.toUtf8())) {}

OdString OdDbHandle::ascii() const { return OdString(dxfHandleText(value).c_str(), CP_UTF8); }

bool OdDbObjectId::isErased() const { return !stub || stub->has(OdDbStub::kErased); }

OdDbDatabase* OdDbObjectId::database() const { return stub ? stub->database : nullptr; }

OdDbHandle OdDbObjectId::getHandle() const { return stub ? stub->handle : 0; }

OdRxClass* OdDbObjectId::objectClass() const {
    return stub ? stub->database->impl().classOf(*stub) : nullptr;
}

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode mode, bool openErased) const {
    if (!stub || (isErased() && !openErased))
        return {};
    OdDbObjectPtr object = stub->database->impl().load(*stub);
    if (mode == OdDb::kForWrite)
        object->upgradeOpen();
    return object;
}

OdDbObjectPtr OdDbObjectId::safeOpenObject(OdDb::OpenMode mode, bool openErased) const {
    if (!stub)
        throw OdError(eNullObjectId);
    if (isErased() && !openErased)
        throw OdError(eWasErased);
    return openObject(mode, openErased);
}
