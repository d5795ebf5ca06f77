// Vertices and attributes follow their entity in the file and end with a mark of their own.
#include "sdk/db/sub_entities.h"

#include "sdk/db/database_impl.h"

bool odDbIsSubEntityName(std::string_view dxfName) {
    return dxfName == "VERTEX" || dxfName == "ATTRIB" || dxfName == "SEQEND";
}

OdDbObjectIdArray odDbSubEntities(OdDbObjectId owner) {
    OdDbObjectIdArray ids;
    OdDbStub* main = owner.getStub();
    if (!main)
        return ids;
    const OdDbDatabaseImpl& impl = main->database->impl();
    for (std::size_t i = main->index + 1; main->source && i < impl.fileStubCount; ++i) {
        OdDbStub& stub = impl.stubs[i];
        if (stub.owner != main || !odDbIsSubEntityName(impl.typeName(stub)))
            break;
        if (!stub.has(OdDbStub::kErased) && impl.typeName(stub) != "SEQEND")
            ids.emplace_back(&stub);
    }
    return ids;
}
