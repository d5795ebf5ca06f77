// The host's lists of standard directories and the description of one directory.
#pragma once

#include "host/unknown.h"
#include "host/variant.h"

class IStdDirInfo : public IKWUnknown {
public:
    virtual const char* GetKey() = 0;              // origin of the entry
    virtual const wchar_t* GetPath() = 0;          // the directory
    virtual int GetEditable() = 0;                 // non-zero: the user may change it
    virtual void SetPath(const wchar_t* path) = 0; // null stores the empty string
};

class IStdDirs : public IKWUnknown {
public:
    // True if the key has a directory; `out`, preset to the wide type, takes it as wide or 8-bit text.
    virtual bool GetDir(const char* key, tagKWVARIANT* out, int) = 0;
    // True if the section exists; `out` takes its list (a CTListEnum of IStdDirInfo*) as an IKWUnknown.
    virtual bool GetDirList(const char* key, CKWVariant* out) = 0;
    virtual bool SetDirList(const char* key, const CKWVariant& value) = 0;
};
