// Names of the error codes as users read them.
#include "sdk/rx/od_error.h"

#include "sdk/rx/rx_object.h"

#include <map>

namespace {

const wchar_t* plainText(OdResult code) {
    static const std::map<OdResult, const wchar_t*> texts{
        {eOk, L"No error"},
        {eInvalidInput, L"Invalid input"},
        {eOutOfMemory, L"Out of memory"},
        {eKeyNotFound, L"Key not found"},
        {eDuplicateKey, L"Name is already in use"},
        {eInvalidIndex, L"Invalid index"},
        {eBadDxfSequence, L"Bad DXF sequence"},
        {eUnsupportedFileFormat, L"File version is not supported"},
        {eCantOpenFile, L"Can't open file"},
        {eNotThatKindOfClass, L"Object is not of the expected class"},
        {eBadDwgFile, L"Drawing file is not valid"},
        {eFileWriteError, L"Can't write file"},
        {eInvalidDrawing, L"Drawing is not valid"},
        {eNotInDatabase, L"Object is not in a database"},
        {eWasErased, L"Object was erased"},
        {eNotOpenForWrite, L"Object is not open for write"},
        {eNullObjectPointer, L"Null object pointer"},
        {eNullObjectId, L"Null object id"},
        {eAlreadyInDb, L"Object is already in a database"},
        {eNoActiveTransactions, L"No active transactions"},
        {eSelfReference, L"Object refers to itself"},
        {eIsReferenced, L"Object is still referred to"},
        {eUserBreak, L"Cancelled by the user"},
        {eDxfReadError, L"DXF file can't be read"},
        {eAmbiguousInput, L"Ambiguous input"},
    };
    const auto found = texts.find(code);
    return found == texts.end() ? L"Unknown error" : found->second;
}

} // namespace

OdString OdError::description() const {
    return detailText.isEmpty() ? OdString(plainText(resultCode)) : detailText;
}

OdString OdError_NotThatKindOfClass::description() const {
    const OdString from = actualClass ? actualClass->name() : OdString(L"?");
    const OdString to = wantedClass ? wantedClass->name() : OdString(L"?");
    return from + OdString(L" is not a ") + to;
}
