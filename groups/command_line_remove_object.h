// The command that takes the selected objects out of a group that is asked for by its name.
#pragma once

#include "groups/group_cmd.h"

class CCommandLineGroupRemoveObject : public CGroupCmd {
public:
    // `params` may name the group, as "GroupName". Leaves `status` alone.
    int Run(IParam* params) override;

private:
    int removeFrom(const OdDbDatabasePtr& database, GroupData& data, const OdString& name);
};
