// What a host may supply to the file dialog of the attach command, which otherwise starts in the root of the
// file system each time. Reached from theOnlyIApp like every service.
#pragma once

#include "host/ref.h"
#include "host/xstring.h"

class OdDbDatabase;

class IReferenceFiles : public IKWUnknown {
public:
    // Where to look for files to attach to the drawing, which may be null; empty for no folder.
    virtual CXStringW startFolder(OdDbDatabase* drawing) = 0;
    virtual void chosenIn(const wchar_t* folder) = 0; // files were chosen from there
};
