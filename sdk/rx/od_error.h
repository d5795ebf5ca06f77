// Exceptions of the drawing SDK: a result code, and for some of them the classes or the text concerned.
#pragma once

#include "sdk/rx/od_string.h"

class OdRxClass;

enum OdResult : int {
    eOk = 0,
    eInvalidInput = 3,
    eOutOfMemory = 9,
    eKeyNotFound = 22,
    eDuplicateKey = 24,
    eInvalidIndex = 25,
    eBadDxfSequence = 41,
    eUnsupportedFileFormat = 42, // version of the file is not supported
    eCantOpenFile = 53,
    eNotThatKindOfClass = 57,
    eBadDwgFile = 58,
    eFileWriteError = 60,
    eInvalidDrawing = 67,
    eNotInDatabase = 80,
    eWasErased = 81,
    eNotOpenForWrite = 84,
    eNullObjectPointer = 86,
    eNullObjectId = 87,
    eAlreadyInDb = 88,
    eNoActiveTransactions = 95,
    eSelfReference = 96,
    eIsReferenced = 98,
    eUserBreak = 160,
    eDxfReadError = 169,
    eAmbiguousInput = 300
};

class OdError {
public:
    explicit OdError(OdResult result) : resultCode(result) {}
    OdError(OdResult result, OdString detail) : resultCode(result), detailText(std::move(detail)) {}
    explicit OdError(OdString text) : resultCode(eInvalidInput), detailText(std::move(text)) {}
    virtual ~OdError() = default;

    OdResult code() const { return resultCode; }
    // What went wrong, with the file, line or name concerned where it is known.
    virtual OdString description() const;

private:
    OdResult resultCode;
    OdString detailText;
};

class OdError_NotThatKindOfClass : public OdError {
public:
    OdError_NotThatKindOfClass(const OdRxClass* actual, const OdRxClass* wanted)
        : OdError(eNotThatKindOfClass), actualClass(actual), wantedClass(wanted) {}
    const OdRxClass* fromClass() const { return actualClass; }
    const OdRxClass* toClass() const { return wantedClass; }
    OdString description() const override;

private:
    const OdRxClass* actualClass;
    const OdRxClass* wantedClass;
};

class OdError_InvalidIndex : public OdError {
public:
    OdError_InvalidIndex() : OdError(eInvalidIndex) {}
};
