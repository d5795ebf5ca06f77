// The command that makes a group with an automatic name from the current selection, without a question.
#pragma once

#include "groups/group_cmd.h"

class CCommandLineGroupFromSelection : public CGroupCmd {
public:
    int Run(IParam* params) override; // leaves `status` alone

private:
    Ref<IKWUnknown> furtherHeld; // released before `held`
};
