// One section of standard directories as the dialog holds it between reading and Apply, and the abstract base
// of such named parameter values.
#pragma once

#include "host/dir_list.h"
#include "host/ref.h"
#include "host/xstring.h"

// The value travels as a CKWVariant. Load and Store go through the IParam that `source` offers, under `key`;
// both return 0 when `source` has no such interface or the value can't be read or written.
template <class W> class CStdParamItem {
public:
    virtual void SetValue(const CKWVariant& value) = 0;
    virtual int GetValue(CKWVariant& value) = 0;
    virtual void ClearValue() = 0;
    virtual int Load(IKWUnknown* source);
    virtual int Store(IKWUnknown* source);
    virtual ~CStdParamItem() = default;

    CXString key;
};

// Load and Store go through IStdDirs, under the same rules.
class CStdDirItem : public CStdParamItem<_TWrapper<StdDirList>> {
public:
    void SetValue(const CKWVariant& value) override; // an empty variant or a null object leaves no list
    int GetValue(CKWVariant& value) override;        // always 1
    void ClearValue() override;                      // a new empty list
    int Load(IKWUnknown* source) override;           // an empty list when it fails
    int Store(IKWUnknown* source) override;

    CXStringW name;       // as shown, already translated
    Ref<StdDirList> list; // null: the section has no list, which is not the same as an empty one
};
