// The parameter tree: nodes with named values and named child sections. All of the host's stores have this
// form.
#pragma once

#include "host/ref.h"
#include "host/variant.h"

class IParam;

// Hands out names. They are valid until the enumerator is released.
class IParamEnum : public IKWUnknown {
public:
    // The number of names delivered, 0 at the end. `count` and `reserved` are always 1 and 0.
    virtual int next(int count, const char** name, int reserved) = 0;
};

class IParam : public IKWUnknown {
public:
    // Each call that returns a pointer hands out one reference, or null. The name of a section may be a path
    // with '\' or the directory delimiter between its parts; the name of a value is plain.
    virtual IParam* createChild(const char* name) = 0;
    virtual IParam* openSection(const char* name, int create) = 0;
    virtual void removeEntry(const char* name) = 0; // a child section with all it holds; may be missing
    virtual void clear() = 0;                       // removes all children
    virtual IParamEnum* newEnum() = 0;              // the child names, in the order of the store
    // 1 if found. A code preset in `out` is a request: 19 asks for wide text and is honoured for 8-bit text
    // too.
    virtual int getValue(const char* name, tagKWVARIANT* out) = 0;
    virtual int setValue(const char* name, const tagKWVARIANT* in) = 0; // 1 when stored
    virtual void removeValue(const char* name) = 0;
};

// The stores of the application, asked from theOnlyIApp.
class IProfile : public IParam {};     // what the user sets
class IConfigParam : public IParam {}; // the option tree, in its section "PrefTree"
class IIOParams : public IParam {};    // raster and save formats

// An empty tree in memory, with one reference for the caller.
IParam* new_MemParam();
// Copies values and children, over what is there.
void Param_CopyTo(IParam* from, IParam* to);
// The profile store below an application root directory, with one reference; null when it can't be opened.
IProfile* new_IProfileByRootDir(const CXStringW& rootDir);
