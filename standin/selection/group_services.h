// What the workbench's host supplies to the group commands beside the selection.
#pragma once

#include "host/group_services.h"

namespace standin {

// The reason of a failed creation is printed on the console of the current document; an Explode gives up its
// row.
class GroupServices : public CKWUnknownImpl<IGroupServices> {
public:
    void creationFailed(const OdError& error) override;
    bool explodeGivesUpRow() override { return true; }
};

} // namespace standin
