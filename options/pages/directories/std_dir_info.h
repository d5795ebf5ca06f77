// One directory of a list, as this module makes it. The host sees it as an IStdDirInfo only.
#pragma once

#include "host/std_dirs.h"
#include "host/xstring.h"

class CStdDirInfo : public CKWUnknownImpl<IStdDirInfo> {
public:
    const char* GetKey() override { return key; }
    const wchar_t* GetPath() override { return path; }
    int GetEditable() override { return editable; }
    void SetPath(const wchar_t* newPath) override { path = newPath; }

private:
    friend IStdDirInfo* new_StdDirInfo(const char* key, const wchar_t* path, int editable);
    CStdDirInfo(const char* newKey, const wchar_t* newPath, int isEditable)
        : key(newKey), path(newPath), editable(isEditable) {}

    CXString key;
    CXStringW path;
    int editable;
};

// The only way to make one: with one reference for the caller. A null text gives an empty one.
IStdDirInfo* new_StdDirInfo(const char* key, const wchar_t* path, int editable);
