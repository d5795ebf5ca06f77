// Documents, system variables and the context of the running command.
#pragma once

#include "host/param.h"
#include "sdk/ed/command.h"
#include "sdk/rx/res_buf.h"

class HostCommandIO;
class HostEditorSelection;
class OdDbDatabase;

enum { kVarUnavailable = 5000 };

class HostVarService {
public:
    virtual ~HostVarService() = default;
    // kVarUnavailable means that there is no such variable or it can't be read; otherwise `out` is set.
    virtual int getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int) = 0;
    virtual int setVar(const OdString& name, OdResBuf* value, OdRxObject* context, int) = 0;
    virtual void openOptionTree(IParam* tree) = 0;
    virtual void closeOptionTree(IParam* tree) = 0;
};

class HostDocument {
public:
    virtual ~HostDocument() = default;
    virtual OdSmartPtr<OdDbDatabase> database() = 0;
    virtual HostCommandIO* commandIO() = 0;
    virtual HostEditorSelection* selection() = 0;
    virtual const wchar_t* fileName() = 0; // empty for a drawing that was never saved
    virtual const wchar_t* title() = 0;
};

class HostDocumentManager {
public:
    virtual ~HostDocumentManager() = default;
    virtual HostDocument* currentDocument() = 0; // null when no document is open
    virtual HostCommandIO* fallbackIO() = 0;     // for output without a document
    virtual HostVarService* varService() = 0;
};

HostDocumentManager* HostDocManager();
HostDocument* currentDocument(); // null when none is open, or there is no manager

// Stores the context of the running command in the host; null clears it.
void setCtx(OdEdCommandContext* ctx);
