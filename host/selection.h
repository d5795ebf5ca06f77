// The selection of a document.
#pragma once

#include "sdk/rx/rx_object.h"

#include <vector>

class OdDbDatabase;
class OdDbObjectId;

class hostSelectionSet : public OdRxObject {
    ODRX_DECLARE_CLASS(hostSelectionSet)
    static OdSmartPtr<hostSelectionSet> createObject(OdDbDatabase* database);
    virtual void objectIds(std::vector<OdDbObjectId>& ids) const = 0; // replaces what `ids` holds
    virtual int count() const = 0;
    virtual void clear() = 0;
    virtual void append(const OdDbObjectId& id) = 0;
};
using hostSelectionSetPtr = OdSmartPtr<hostSelectionSet>;

class HostEditorSelection {
public:
    virtual ~HostEditorSelection() = default;
    virtual hostSelectionSetPtr getSelection() = 0; // possibly null
    virtual void setSelection(const hostSelectionSetPtr& set) = 0;
    // Asks for objects; results as those of HostCommandIO, with the set in `result`.
    virtual int selectObjects(hostSelectionSetPtr* result, int, const wchar_t* prompt,
                              const wchar_t* keywords, int flags, int, int, int, int) = 0;
    virtual void clearSelection() = 0;
};

// Redraws the views after highlighting or a change.
void HostUpdateDisplay();
// Moves the view so that it shows the object.
void ZoomObject(const OdDbObjectId& id);
