// The command that takes the group of a selected object apart.
#pragma once

#include "groups/command_line_unified.h"

class CCommandLineGroupUngroup : public CCommandLineGroupUnified {
public:
    // Without a selection step of the host it asks nothing, changes nothing and leaves `status` at 2.
    int Run(IParam* params) override;
    int enableQuery() override;

private:
    int ungroupMember(const Scene& scene, OdDbObjectId member);
    int ungroupByName(const Scene& scene);
};
