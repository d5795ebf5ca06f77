// What a host may supply to the attaching of external references, which otherwise has no base for relative
// paths, keeps no settings and prints nothing of its own. Reached from theOnlyIApp like every service.
#pragma once

#include "host/param.h"

class HostCommandIO;
class OdDbDatabase;

class IAttachServices : public IKWUnknown {
public:
    // The folder that relative paths of a drawing start from; empty when it has none.
    virtual CXStringW basePath(OdDbDatabase* database) = 0;
    // Where the attach dialog keeps its seven settings: integers under their own keys. One reference for the
    // caller, or null.
    virtual IParam* settings() = 0;
    // A text of the attach command that no message box shows, already translated. `io` may be null.
    virtual void report(HostCommandIO* io, const wchar_t* text) = 0;
    // Why a file can't be attached, with its path, where the command shows nothing by itself: for a box and
    // the console.
    virtual void refuse(const wchar_t* text) = 0;
    // Whether a file chosen with Browse whose name a plain block has gets a number behind it. If not, the
    // dialog takes the plain block for the file's.
    virtual bool numbersTakenNames() = 0;
};
