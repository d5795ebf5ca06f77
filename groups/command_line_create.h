// The command that makes a group of selected objects.
#pragma once

#include "groups/command_line_unified.h"

class CCommandLineGroupCreate : public CCommandLineGroupUnified {
public:
    // Without a selection step of the host it asks nothing, makes nothing and leaves `status` at 2.
    int Run(IParam* params) override;

private:
    int askForDescription(const Scene& scene, OdString& description);
    int askForNewName(const Scene& scene, OdString& name);
    int create(const Scene& scene, GroupData& data);
};
