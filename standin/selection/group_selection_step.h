// The selection behind the prompts of the group commands.
#pragma once

#include "host/group_selection_step.h"

namespace standin {

// Asks at the console of the document, and leaves the document's selection as it was.
class GroupSelectionStep : public CKWUnknownImpl<IGroupSelectionStep> {
public:
    int selectObjects(HostEditorSelection& editor, const GroupSelectionRequest& request,
                      hostSelectionSet& result) override;
};

} // namespace standin
