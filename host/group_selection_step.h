// What a host may supply so that the prompts of the group commands, which are only composed otherwise, really
// ask for objects. Reached from theOnlyIApp like every service; without it the commands end where they
// compose the prompt.
#pragma once

#include "host/ref.h"
#include "host/selection.h"
#include "sdk/db/object_id.h"

struct GroupSelectionRequest {
    OdDbDatabase* database = nullptr;
    OdString prompt;                  // ready to be shown
    OdString keywords;                // as those of HostCommandIO; empty when there are none
    bool single = false;              // one object is enough
    OdDbObjectIdArray highlightedIds; // what the command has highlighted for the time of the selection
    bool pickStyleCleared = false;    // the command has set PICKSTYLE to 0 ...
    int formerPickStyle = 0;          // ... from this value
};

class IGroupSelectionStep : public IKWUnknown {
public:
    // Asks for objects and puts them into `result`, which is empty at first. kInputPicked with at least one
    // object, kInputNone for none, kInputCancelled, or kInputKeyword + k for keyword number k. Afterwards,
    // whatever the result, the step has taken the highlight off `highlightedIds` and put PICKSTYLE back where
    // it was cleared. It changes nothing else: what the objects are for is the command's business.
    virtual int selectObjects(HostEditorSelection& editor, const GroupSelectionRequest& request,
                              hostSelectionSet& result) = 0;
};
